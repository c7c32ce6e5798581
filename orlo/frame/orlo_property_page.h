// The page that every sheet of the library is made of: closes drop-down lists that a move would leave hanging, sizes
// the drop-down of the library's combos, and takes the focus from a control before the page's data is exchanged.
#pragma once

#include <afxdlgs.h>

#include "orlo/export.h"

class ORLO_API COrloPropertyPage : public CPropertyPage {
    DECLARE_DYNAMIC(COrloPropertyPage)

public:
    // A template is a number or a name; caption 0 is the template's own title.
    COrloPropertyPage(unsigned int nIDTemplate, unsigned int nIDCaption);
    COrloPropertyPage(const char* lpszTemplateName, unsigned int nIDCaption);
    ~COrloPropertyPage() override;

    // 1 if the page may be left. The focus is on the page during the exchange, and back in its control after a refusal.
    BOOL OnKillActive() override;

    // The framework's modified flag.
    virtual int IsModified();

    // The dialog template that the page was made from: a name, or a number with a high word of 0.
    const char* GetTemplateName() const;

    void OnWindowPosChanging(WINDOWPOS* lpwndpos);
    // A multi-line edit control passes Tab to its parent. The tab order is the sheet's, which has the buttons and the
    // tabs.
    LRESULT OnNextDlgCtl(WPARAM wParam, LPARAM lParam) {
        return ::SendMessageA(::GetParent(m_hWnd), WM_NEXTDLGCTL, wParam, lParam);
    }

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;

    DECLARE_MESSAGE_MAP()
};

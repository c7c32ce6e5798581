// The base class of all pages of the library. Closes drop-down lists when the page moves, sizes the lists of the
// library's combo boxes, and moves the focus away from a control before the page's data is exchanged.
#pragma once

#include <afxdlgs.h>

#include <memory>

#include "orlo/export.h"

class ChildWindows;

class ORLO_API COrloPropertyPage : public CPropertyPage {
    DECLARE_DYNAMIC(COrloPropertyPage)

public:
    // The template is a number or a name. If nIDCaption is 0, the title is the caption of the template.
    COrloPropertyPage(unsigned int nIDTemplate, unsigned int nIDCaption);
    COrloPropertyPage(const char* lpszTemplateName, unsigned int nIDCaption);
    ~COrloPropertyPage() override;

    // Returns 1 if the page can be left. The page has the focus during the exchange; if validation fails, the focus
    // returns to the control.
    BOOL OnKillActive() override;

    // Returns the framework's modified flag.
    virtual int IsModified();

    // Returns the dialog template of the page: a name, or a number whose high word is 0.
    const char* GetTemplateName() const;

    void OnWindowPosChanging(WINDOWPOS* lpwndpos);
    // A multiline edit control passes Tab to its parent. The sheet handles it, since the tab order includes its buttons
    // and tabs.
    LRESULT OnNextDlgCtl(WPARAM wParam, LPARAM lParam) {
        return ::SendMessageA(::GetParent(m_hWnd), WM_NEXTDLGCTL, wParam, lParam);
    }

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;

    DECLARE_MESSAGE_MAP()

private:
    friend class PageState;
    std::unique_ptr<ChildWindows> m_children;
};

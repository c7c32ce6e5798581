// The sheet that the library's sheets derive from: finds a page by its dialog template, keeps drop-down lists from
// hanging in the air when the dialog moves, and routes help to the active page.
#pragma once

#include <afxdlgs.h>

#include "orlo/export.h"

class COrloPropertyPage;
struct GraphicSheetData;

class ORLO_API COrloPropertySheet : public CPropertySheet {
    DECLARE_DYNAMIC(COrloPropertySheet)

public:
    COrloPropertySheet(unsigned int nIDCaption, CWnd* pParentWnd, unsigned int iSelectPage);
    COrloPropertySheet(const char* lpszCaption, CWnd* pParentWnd, unsigned int iSelectPage);
    ~COrloPropertySheet() override;

    // The page made from that dialog template, or null. Of a number only the low 16 bits count; a number never matches
    // a name, and names are compared with case.
    COrloPropertyPage* FindPage(unsigned int nIDTemplate) const;
    COrloPropertyPage* FindPage(const char* lpszTemplateName) const;

protected:
    // A derived sheet's record; who sets it frees it.
    GraphicSheetData* m_pSheetData;

    int OnNcCreate(CREATESTRUCTA*);
    void OnHelp();
    void OnWindowPosChanging(WINDOWPOS* lpwndpos);

    DECLARE_MESSAGE_MAP()
};

// The base class of the library's sheets. Finds a page by its dialog template, closes drop-down lists when the dialog
// moves, and forwards help requests to the active page.
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

    // Returns the page that was created from the dialog template, or null. A number is compared by its low 16 bits and
    // never equals a name; names are case-sensitive.
    COrloPropertyPage* FindPage(unsigned int nIDTemplate) const;
    COrloPropertyPage* FindPage(const char* lpszTemplateName) const;

protected:
    // The data of a derived sheet, which allocates and frees it.
    GraphicSheetData* m_pSheetData;

    int OnNcCreate(CREATESTRUCTA*);
    void OnHelp();
    void OnWindowPosChanging(WINDOWPOS* lpwndpos);

    DECLARE_MESSAGE_MAP()
};

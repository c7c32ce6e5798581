// COrloPropertySheet: finding pages, help, and closing drop-down lists when the dialog moves.

#include "orlo/frame/orlo_property_sheet.h"

#include <afxext.h>

#include <cstring>

#include "orlo/frame/orlo_property_page.h"

IMPLEMENT_DYNAMIC(COrloPropertySheet, CPropertySheet)

BEGIN_MESSAGE_MAP(COrloPropertySheet, CPropertySheet)
ON_WM_NCCREATE()
ON_COMMAND(ID_HELP, &ThisClass::OnHelp)
ON_WM_WINDOWPOSCHANGING()
END_MESSAGE_MAP()

COrloPropertySheet::COrloPropertySheet(unsigned int nIDCaption, CWnd* pParentWnd, unsigned int iSelectPage)
    : CPropertySheet(nIDCaption, pParentWnd, iSelectPage), m_pSheetData(nullptr) {}

COrloPropertySheet::COrloPropertySheet(const char* lpszCaption, CWnd* pParentWnd, unsigned int iSelectPage)
    : CPropertySheet(lpszCaption, pParentWnd, iSelectPage), m_pSheetData(nullptr) {}

COrloPropertySheet::~COrloPropertySheet() = default;

COrloPropertyPage* COrloPropertySheet::FindPage(unsigned int nIDTemplate) const {
    return FindPage(MAKEINTRESOURCEA(LOWORD(nIDTemplate)));
}

namespace {

// The template of any page, also of one that is not a COrloPropertyPage.
struct PageTemplate : CPropertyPage {
    static const char* Of(const CPropertyPage& page) { return page.*&PageTemplate::m_lpszTemplateName; }
};

bool SameTemplate(const char* a, const char* b) {
    if (a == b) return true;
    return !IS_INTRESOURCE(a) && !IS_INTRESOURCE(b) && std::strcmp(a, b) == 0;
}

} // namespace

COrloPropertyPage* COrloPropertySheet::FindPage(const char* lpszTemplateName) const {
    for (int i = 0; i < GetPageCount(); ++i) {
        CPropertyPage* page = GetPage(i);
        if (SameTemplate(PageTemplate::Of(*page), lpszTemplateName) && page->IsKindOf(RUNTIME_CLASS(COrloPropertyPage)))
            return static_cast<COrloPropertyPage*>(page);
    }
    return nullptr;
}

int COrloPropertySheet::OnNcCreate(CREATESTRUCT*) {
    return Default() != 0;
}

void COrloPropertySheet::OnHelp() {
    if (CPropertyPage* page = GetActivePage()) page->CWnd::OnHelp();
}

void COrloPropertySheet::OnWindowPosChanging(WINDOWPOS* lpwndpos) {
    CPropertyPage* page = GetActivePage();
    if (page != nullptr && page->m_hWnd != nullptr)
        page->SendMessage(WM_WINDOWPOSCHANGING, 0, reinterpret_cast<LPARAM>(lpwndpos));
    Default();
}

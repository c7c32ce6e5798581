// CGraphicPropertySheet: creation, end codes and shared data. Layout and frame painting are in sheet_layout.cpp.

#include "orlo/frame/graphic_property_sheet.h"

#include "orlo/frame/page_state.h"
#include "orlo/resources/library_text.h"
#include "orlo/win/screen_scale.h"

IMPLEMENT_DYNAMIC(CGraphicPropertySheet, COrloPropertySheet)

BEGIN_MESSAGE_MAP(CGraphicPropertySheet, COrloPropertySheet)
ON_WM_CREATE()
ON_WM_PAINT()
ON_COMMAND(IDOK, &ThisClass::OnOK)
END_MESSAGE_MAP()

namespace {

constexpr unsigned int kPreviewId = 3999;
constexpr int kPreviewSize = 100; // pixels at 96 dpi

// Returns the caption of the library's sheet, or that of a host's class, which is a text of the host.
CString SheetCaption(unsigned int nID) {
    CString caption = LibraryText(nID);
    if (caption.IsEmpty()) caption.LoadString(nID);
    return caption;
}

} // namespace

CGraphicPropertySheet::CGraphicPropertySheet(unsigned int nIDCaption, void* pRegenMethods, DrawingStruct* pDrawing,
                                             void* pGraphics, unsigned long dwGraphicFlags, CWnd* pParentWnd,
                                             unsigned int iSelectPage)
    : COrloPropertySheet(SheetCaption(nIDCaption), pParentWnd, iSelectPage), m_cxPreview(ScreenPixels(kPreviewSize)),
      m_cyPreview(ScreenPixels(kPreviewSize)) {
    m_pSheetData = new GraphicSheetData{pRegenMethods, pDrawing, pGraphics, dwGraphicFlags};
    m_bHasApply = FALSE;
}

// The pages are deleted before the group, because each removes its preview graphic from it.
CGraphicPropertySheet::~CGraphicPropertySheet() {
    m_nCurPage = -1;
    DeletePages();
    if (m_pPreviewGroup != nullptr) ::GraphicDispose(&m_pPreviewGroup);
    delete m_pSheetData;
}

DrawingStruct* CGraphicPropertySheet::GetDrawing() {
    return m_pSheetData ? m_pSheetData->pDrawing : nullptr;
}

unsigned long CGraphicPropertySheet::GetGraphicFlags() {
    return m_pSheetData ? m_pSheetData->dwGraphicFlags : 0;
}

void* CGraphicPropertySheet::GetGraphics() {
    return m_pSheetData ? m_pSheetData->pGraphics : nullptr;
}

void* CGraphicPropertySheet::GetRegenMethods() {
    return m_pSheetData ? m_pSheetData->pRegenMethods : nullptr;
}

GraphicStruct* CGraphicPropertySheet::GetPreviewGroup() {
    return m_pPreviewGroup;
}

GraphicStruct* CGraphicPropertySheet::GetPreviewGraphic() {
    CGraphicPropertyPage* page = GetActiveGraphicPage();
    return page ? page->GetPreviewGraphic() : nullptr;
}

CGraphicPropertyPage* CGraphicPropertySheet::GetActiveGraphicPage() {
    CPropertyPage* page = GetActivePage();
    if (page == nullptr || !page->IsKindOf(RUNTIME_CLASS(CGraphicPropertyPage))) return nullptr;
    return static_cast<CGraphicPropertyPage*>(page);
}

void CGraphicPropertySheet::UpdatePreview(int bNow) {
    if (m_wndPreview.m_hWnd == nullptr || m_defersPreview) return;
    ::InvalidateRect(m_wndPreview.m_hWnd, nullptr, TRUE);
    if (bNow) ::UpdateWindow(m_wndPreview.m_hWnd);
}

void CGraphicPropertySheet::UpdateDesc(int) {}

void CGraphicPropertySheet::DrawPreview(CDC* pDC, void* pViewport, CRect& rect) {
    if (CGraphicPropertyPage* page = GetActiveGraphicPage()) page->DrawPreview(pDC, pViewport, rect);
}

int CGraphicPropertySheet::CreatePreviewRect() {
    const CRect rect(0, 0, m_cxPreview, m_cyPreview);
    if (!m_wndPreview.Create(rect, this, kPreviewId)) return 0;
    m_wndPreview.SubclassCtl3d(2);
    return 1;
}

void CGraphicPropertySheet::DeletePages() {
    while (GetPageCount() > 0) {
        CPropertyPage* page = GetPage(0);
        RemovePage(0);
        delete page;
    }
}

// Resets the end code and the preview graphics of an earlier run, which show its edits even if it was canceled.
void CGraphicPropertySheet::ResetEarlierRun() {
    m_bEndWithCode = 0;
    for (int i = 0; i < GetPageCount(); ++i)
        if (GetPage(i)->IsKindOf(RUNTIME_CLASS(CGraphicPropertyPage)))
            PageState::Of(static_cast<CGraphicPropertyPage&>(*GetPage(i))).DisposePreviewGraphic();
}

int CGraphicPropertySheet::OnCreate(CREATESTRUCT* lpCreateStruct) {
    if (!CreatePreviewRect()) return -1;
    m_wndPreview.ModifyStyle(0, WS_GROUP); // keeps arrow keys within radio buttons at the end of a page
    if (m_pPreviewGroup == nullptr) m_pPreviewGroup = ::GraphicNewEx(kGraphicVertices, 0, 1);
    if (m_pPreviewGroup == nullptr) return -1;
    ::GraphicAttach(m_pPreviewGroup, GetDrawing());
    ResetEarlierRun();
    if (COrloPropertySheet::OnCreate(lpCreateStruct) == -1) return -1;
    RecalcLayout();
    return 0;
}

void CGraphicPropertySheet::EndWithCode(int nEndCode) {
    m_bEndWithCode = 1;
    m_nEndCode = nEndCode;
}

// The flag is tested again after OnKillActive, since leaving a control may set it.
void CGraphicPropertySheet::OnOK() {
    if (m_bEndWithCode) {
        EndDialog(m_nEndCode);
        return;
    }
    CPropertyPage* page = GetActivePage();
    if (page != nullptr) {
        if (!page->OnKillActive()) return;
        page->OnOK();
    }
    if (m_bModeless) return;
    EndDialog(m_bEndWithCode ? m_nEndCode : IDOK);
}

int CGraphicPropertySheet::OnStatusChange(unsigned long dwFlags) {
    CGraphicPropertyPage* page = GetActiveGraphicPage();
    if (page == nullptr || page->GetPreviewGraphic() == nullptr) return 0;
    if (dwFlags & 1) page->SetPreviewProperties(0);
    return 1;
}

// CGraphicPropertyPage: creation and activation, dirty flags of controls, and the preview graphic. The functions that
// read and write properties are in property_access.cpp.

#include "orlo/frame/graphic_property_page.h"

#include <memory>

#include "orlo/frame/control_fitting.h"
#include "orlo/frame/dialog_measure.h"
#include "orlo/frame/graphic_property_sheet.h"
#include "orlo/frame/page_state.h"
#include "orlo/host/regen.h"
#include "orlo/host/viewport.h"

IMPLEMENT_DYNAMIC(CGraphicPropertyPage, COrloPropertyPage)

namespace {

constexpr int kPendingWritesBlock = 10;
constexpr unsigned int kRefreshCommand = 0xFFFF;

} // namespace

CGraphicPropertyPage::CGraphicPropertyPage(unsigned int nIDTemplate, unsigned int nIDCaption)
    : COrloPropertyPage(nIDTemplate, nIDCaption), m_pPreviewGraphic(nullptr), m_mapDDP(kPendingWritesBlock),
      m_nIDTemplate(nIDTemplate), m_nIDCaption(nIDCaption), m_dwHelpContext(0), m_bRefreshPending(0),
      m_bInitializing(1), m_nControls(0), m_pStatus(nullptr), m_hDialog(nullptr),
      m_pState(std::make_unique<PageState>(*this)) {
    m_lpszTemplateName = MAKEINTRESOURCEA(LOWORD(nIDTemplate));
}

CGraphicPropertyPage::~CGraphicPropertyPage() {
    m_pState->DisposePreviewGraphic();
    if (m_hDialog != nullptr) ::FreeResource(m_hDialog);
    delete[] m_pStatus;
}

CGraphicPropertySheet* CGraphicPropertyPage::GetSheet() const {
    CWnd* parent = GetParent();
    if (parent == nullptr || !parent->IsKindOf(RUNTIME_CLASS(CGraphicPropertySheet))) return nullptr;
    return static_cast<CGraphicPropertySheet*>(parent);
}

GraphicStruct* CGraphicPropertyPage::GetPreviewGraphic() const {
    return m_pPreviewGraphic;
}

unsigned int CGraphicPropertyPage::GetTemplateNumber() const {
    return m_nIDTemplate;
}

BOOL CGraphicPropertyPage::OnInitDialog() {
    m_bInitializing = 1;
    if (m_bFitControls) FitControls(m_hWnd, m_pState->Children());
    const BOOL result = COrloPropertyPage::OnInitDialog();
    m_pState->AddPreviewGraphic();
    m_bInitializing = 0;
    m_bChanged = FALSE;
    return result;
}

BOOL CGraphicPropertyPage::OnSetActive() {
    if (m_bFitControls && m_hWnd == nullptr) m_pState->PrepareTemplate();
    if (!COrloPropertyPage::OnSetActive()) return FALSE;
    m_pState->BuildStatusTable();
    if (CGraphicPropertySheet* sheet = GetSheet()) sheet->UpdatePreview(0);
    return TRUE;
}

int CGraphicPropertyPage::GetControlStatus(unsigned int nID) {
    const ControlStatus* status = m_pState->FindStatus(nID);
    return status == nullptr || status->bDirty;
}

int CGraphicPropertyPage::SetControlStatus(unsigned int nID, int bDirty) {
    ControlStatus* status = m_pState->FindStatus(nID);
    if (status == nullptr) return 0;
    status->bDirty = bDirty;
    return 1;
}

int CGraphicPropertyPage::IsEdited(unsigned int nID) {
    return GetControlStatus(nID) && !m_pState->loaded.IsUnchanged(nID);
}

void CGraphicPropertyPage::IgnoreApply(unsigned int nID) {
    m_IDArray.Add(LOWORD(nID));
}

BOOL CGraphicPropertyPage::OnCommand(WPARAM wParam, LPARAM lParam) {
    const BOOL result = COrloPropertyPage::OnCommand(wParam, lParam);
    if (m_bInitializing) return result;
    const unsigned int id = LOWORD(wParam);
    const auto control = reinterpret_cast<HWND>(lParam);
    if (control == nullptr) {
        if (id == kRefreshCommand && m_bRefreshPending) {
            UpdateData(FALSE);
            m_bRefreshPending = 0;
            SetPreviewProperties(1); // notifications are ignored during loading, so the preview must be updated here
        }
        return result;
    }
    m_pState->OnDroppedList(HIWORD(wParam), control);
    if (m_pState->IsIgnored(id)) return result;
    if (const unsigned long flags = m_pState->ChangeFlags(id, HIWORD(wParam), control)) {
        SetModifiedFlag(1);
        if (CGraphicPropertySheet* sheet = GetSheet()) sheet->OnStatusChange(flags);
    }
    return result;
}

void CGraphicPropertyPage::SetModifiedFlag(int bModified) {
    SetModified(bModified);
    if ((m_bChanged != FALSE) == (bModified != 0)) return;
    m_bChanged = bModified;
    if (CGraphicPropertySheet* sheet = GetSheet()) sheet->OnStatusChange(bModified ? 1 : 0);
}

void CGraphicPropertyPage::DrawPreview(CDC* pDC, void* pViewport, CRect& rect) {
    GraphicStruct* graphic = m_pPreviewGraphic;
    CGraphicPropertySheet* sheet = GetSheet();
    if (graphic == nullptr || sheet == nullptr) return;
    auto* viewport = static_cast<ViewportStruct*>(pViewport);
    ::GraphicSetDirty(graphic, 1);
    ::GraphicSetExtentsDirty(graphic, 1);
    ::ViewportSetRect(viewport, &rect);
    if (graphic->wRegenMethod != 0) ::RegenMethodRegen(sheet->GetRegenMethods(), graphic->wRegenMethod, graphic);
    ::ViewportSetExtents(viewport, ::GraphicGetExtentsSel(graphic, 0), kFitWhole);
    ::ViewportSetGDIStuff(viewport, nullptr, pDC->m_hDC, 1, 1);
    ::ViewportSetDrawing(viewport, ::GraphicGetDrawing(graphic));
    ::GraphicDrawEx2(graphic, nullptr, viewport, 1, 1);
}

void* CGraphicPropertyPage::CreatePreviewGraphic() {
    return nullptr;
}
void CGraphicPropertyPage::SetPreviewProperties(int) {}
void CGraphicPropertyPage::OnObjectsChanged() {}
int CGraphicPropertyPage::OnEditProperty(long) {
    return 0;
}

void CGraphicPropertyPage::OnFinalRelease() {
    if (m_hWnd != nullptr) DestroyWindow();
    delete this;
}

void CGraphicPropertyPage::SetPageName(const char* lpszPageName) {
    m_strPageName = lpszPageName;
}

void CGraphicPropertyPage::SetDialogResource(void* hDialog) {
    if (m_hDialog != nullptr && m_hDialog != hDialog) ::FreeResource(m_hDialog);
    m_hDialog = hDialog;
    m_sizePage = MeasureDialog(hDialog);
}

void CGraphicPropertyPage::SetHelpInfo(const char* lpszDocString, const char* lpszHelpFile,
                                       unsigned long dwHelpContext) {
    m_strDocString = lpszDocString;
    m_strHelpFile = lpszHelpFile;
    m_dwHelpContext = dwHelpContext;
}

int CGraphicPropertyPage::MessageBoxA(const char* lpszText, const char* lpszCaption, unsigned int nType) {
    return ::MessageBoxA(nullptr, lpszText, lpszCaption ? lpszCaption : AfxGetAppName(), nType);
}

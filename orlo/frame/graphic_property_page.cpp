// CGraphicPropertyPage: creation and activation, dirty flags of controls, and the preview graphic. The functions that
// read and write properties are in property_access.cpp.

#include "orlo/frame/graphic_property_page.h"

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

#include "orlo/controls/control_items.h"
#include "orlo/frame/control_fitting.h"
#include "orlo/frame/control_notifications.h"
#include "orlo/frame/dialog_measure.h"
#include "orlo/frame/graphic_property_sheet.h"
#include "orlo/frame/loaded_controls.h"
#include "orlo/host/regen.h"
#include "orlo/host/viewport.h"
#include "orlo/win/child_windows.h"

IMPLEMENT_DYNAMIC(CGraphicPropertyPage, COrloPropertyPage)

namespace {

constexpr int kPendingWritesBlock = 10;
constexpr unsigned int kRefreshCommand = 0xFFFF;

GraphicStruct* OwnerOf(const GraphicStruct* graphic) {
    return graphic->dwFlags & kFlagNoParent ? nullptr : graphic->pParent;
}

} // namespace

CGraphicPropertyPage::CGraphicPropertyPage(unsigned int nIDTemplate, unsigned int nIDCaption)
    : COrloPropertyPage(nIDTemplate, nIDCaption), m_pPreviewGraphic(nullptr), m_mapDDP(kPendingWritesBlock),
      m_nIDTemplate(nIDTemplate), m_nIDCaption(nIDCaption), m_dwHelpContext(0), m_bRefreshPending(0),
      m_bInitializing(1), m_nControls(0), m_pStatus(nullptr), m_hDialog(nullptr),
      m_pLoaded(std::make_unique<LoadedControls>(*this)) {
    m_lpszTemplateName = MAKEINTRESOURCEA(LOWORD(nIDTemplate));
}

CGraphicPropertyPage::~CGraphicPropertyPage() {
    DisposePreviewGraphic();
    if (m_hDialog != nullptr) ::FreeResource(m_hDialog);
    delete[] m_pStatus;
}

void CGraphicPropertyPage::DisposePreviewGraphic() {
    if (m_pPreviewGraphic == nullptr) return;
    if (GraphicStruct* owner = OwnerOf(m_pPreviewGraphic)) ::GraphicDelete(owner, m_pPreviewGraphic);
    ::GraphicDispose(&m_pPreviewGraphic);
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
    if (m_bFitControls) FitControls(m_hWnd);
    const BOOL result = COrloPropertyPage::OnInitDialog();
    AddPreviewGraphic();
    m_bInitializing = 0;
    m_bChanged = FALSE;
    return result;
}

// Writes in preview mode go to all graphics of the group, so every open page sets its values on the new graphic.
void CGraphicPropertyPage::AddPreviewGraphic() {
    CGraphicPropertySheet* sheet = GetSheet();
    if (m_pPreviewGraphic != nullptr || sheet == nullptr || sheet->GetPreviewGroup() == nullptr) return;
    auto* graphic = static_cast<GraphicStruct*>(CreatePreviewGraphic());
    if (graphic == nullptr) return;
    m_pPreviewGraphic = ::GraphicAdd(sheet->GetPreviewGroup(), graphic);
    if (m_pPreviewGraphic == nullptr) { // continue without a preview
        if (OwnerOf(graphic) == nullptr) ::GraphicDispose(&graphic);
        return;
    }
    m_pPreviewGraphic->dwFlags |= kFlagPreview;
    for (int i = 0; i < sheet->GetPageCount(); ++i) {
        CPropertyPage* page = sheet->GetPage(i);
        if (page->m_hWnd != nullptr && page->IsKindOf(RUNTIME_CLASS(CGraphicPropertyPage)))
            static_cast<CGraphicPropertyPage*>(page)->SetPreviewProperties(1);
    }
}

BOOL CGraphicPropertyPage::OnSetActive() {
    if (!COrloPropertyPage::OnSetActive()) return FALSE;
    BuildStatusTable();
    if (CGraphicPropertySheet* sheet = GetSheet()) sheet->UpdatePreview(0);
    return TRUE;
}

void CGraphicPropertyPage::BuildStatusTable() {
    std::vector<ControlStatus> rows;
    ForEachChild(m_hWnd, [&rows](HWND child) {
        rows.push_back({static_cast<unsigned int>(::GetDlgCtrlID(child)), 0});
    });
    std::unique_ptr<ControlStatus[]> table(rows.empty() ? nullptr : new ControlStatus[rows.size()]);
    std::copy(rows.begin(), rows.end(), table.get());
    delete[] m_pStatus; // not earlier, so that the old table remains if memory runs out
    m_pStatus = table.release();
    m_nControls = static_cast<int>(rows.size());
    for (const ControlStatus& row : rows)
        m_pLoaded->ShowUnbound(row.nID);
}

ControlStatus* CGraphicPropertyPage::FindStatus(unsigned int nID) const {
    for (int i = 0; i < m_nControls; ++i)
        if (m_pStatus[i].nID == nID) return &m_pStatus[i];
    return nullptr;
}

int CGraphicPropertyPage::GetControlStatus(unsigned int nID) {
    const ControlStatus* status = FindStatus(nID);
    return status == nullptr || status->bDirty;
}

int CGraphicPropertyPage::SetControlStatus(unsigned int nID, int bDirty) {
    ControlStatus* status = FindStatus(nID);
    if (status == nullptr) return 0;
    status->bDirty = bDirty;
    return 1;
}

int CGraphicPropertyPage::IsEdited(unsigned int nID) {
    return GetControlStatus(nID) && !m_pLoaded->Agrees(nID);
}

void CGraphicPropertyPage::IgnoreApply(unsigned int nID) {
    m_IDArray.Add(LOWORD(nID));
}

bool CGraphicPropertyPage::IsIgnored(unsigned int nID) const {
    for (int i = 0; i < static_cast<int>(m_IDArray.GetSize()); ++i)
        if (m_IDArray.GetAt(i) == nID) return true;
    return false;
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
    OnDroppedList(HIWORD(wParam), control);
    if (IsIgnored(id)) return result;
    if (const unsigned long flags = ChangeFlags(id, HIWORD(wParam), control)) {
        SetModifiedFlag(1);
        if (CGraphicPropertySheet* sheet = GetSheet()) sheet->OnStatusChange(flags);
    }
    return result;
}

// Not every system restores the selection when a list is closed by Escape. Moving the focus to another control also
// closes the list, but keeps the new selection.
void CGraphicPropertyPage::OnDroppedList(unsigned int code, HWND combo) {
    const PageNotification notification(combo, code);
    if (!notification.IsOfCombo()) return;
    const ControlItems items = ControlItems::OfCombo(combo);
    if (code == CBN_DROPDOWN) {
        m_hDropped = combo;
        m_nDropped = items.Selected();
        CWnd::FromHandle(combo)->GetWindowText(m_strDropped);
        return;
    }
    if (code != CBN_SELENDCANCEL || std::exchange(m_hDropped, nullptr) != combo) return;
    const HWND focus = ::GetFocus();
    if ((focus != combo && !::IsChild(combo, focus)) || items.Selected() == m_nDropped) return;
    items.Select(m_nDropped);
    AfxSetWindowText(combo, m_strDropped);
    SendMessage(WM_COMMAND, MAKEWPARAM(::GetDlgCtrlID(combo), CBN_SELCHANGE), reinterpret_cast<LPARAM>(combo));
}

// Marks the control as dirty if the notification changes it. The first change on a page never sets the bit for the end
// of an edit.
unsigned long CGraphicPropertyPage::ChangeFlags(unsigned int nID, unsigned int code, HWND control) {
    const PageNotification notification(control, code);
    unsigned long flags = 0;
    if (notification.IsChange()) {
        nID = ChangedControlId(control, nID, notification.className);
        SetControlStatus(nID, 1);
        flags = 1;
    }
    if (m_bChanged && notification.IsEditEnd() && GetControlStatus(nID)) flags |= 2;
    return flags;
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

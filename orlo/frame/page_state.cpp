// PageState: tracks the controls of a page and adds its preview graphic.

#include "orlo/frame/page_state.h"

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

#include "orlo/controls/control_items.h"
#include "orlo/frame/control_notifications.h"
#include "orlo/frame/flag_scope.h"
#include "orlo/frame/graphic_property_sheet.h"
#include "orlo/frame/label_order.h"
#include "orlo/frame/write_outcome.h"
#include "orlo/resources/library_text.h"
#include "orlo/win/child_windows.h"

namespace {

GraphicStruct* OwnerOf(const GraphicStruct* graphic) {
    return graphic->dwFlags & kFlagNoParent ? nullptr : graphic->pParent;
}

} // namespace

ObjectSet PageState::Objects(int bPreview) const {
    CGraphicPropertySheet* sheet = m_page.GetSheet();
    PropertyAccess* access = m_page.m_pProperties;
    if (sheet == nullptr) return ObjectSet(nullptr, 0, bPreview != 0);
    if (bPreview) return ObjectSet(sheet->GetPreviewGroup(), kAllGraphics, true, access);
    return ObjectSet(static_cast<GraphicStruct*>(sheet->GetGraphics()), sheet->GetGraphicFlags(), false, access);
}

orlo::binding::WriteTarget PageState::Target(int bPreview) const {
    if (bPreview || outcome == nullptr) return {Objects(bPreview), nullptr};
    return {Objects(bPreview), &outcome->Unchanged(), outcome->Changed()};
}

void PageState::PrepareTemplate() {
    std::vector<BYTE>& dialog = m_page.m_dialogTemplate;
    if (dialog.empty()) {
        const char* name = m_page.m_lpszTemplateName;
        HINSTANCE& module = m_page.m_hTemplateModule;
        if (module == nullptr) module = AfxFindResourceHandle(name, reinterpret_cast<const char*>(RT_DIALOG));
        dialog = DialogTemplate(module, name);
    }
    OrderLabels(dialog);
}

void PageState::DisposePreviewGraphic() {
    if (m_page.m_pPreviewGraphic == nullptr) return;
    if (GraphicStruct* owner = OwnerOf(m_page.m_pPreviewGraphic)) ::GraphicDelete(owner, m_page.m_pPreviewGraphic);
    ::GraphicDispose(&m_page.m_pPreviewGraphic);
}

// Writes in preview mode go to all graphics of the group, so every open page sets its values on the new graphic.
void PageState::AddPreviewGraphic() {
    CGraphicPropertySheet* sheet = m_page.GetSheet();
    if (m_page.m_pPreviewGraphic != nullptr || sheet == nullptr || sheet->GetPreviewGroup() == nullptr) return;
    auto* graphic = static_cast<GraphicStruct*>(m_page.CreatePreviewGraphic());
    if (graphic == nullptr) return;
    m_page.m_pPreviewGraphic = ::GraphicAdd(sheet->GetPreviewGroup(), graphic);
    if (m_page.m_pPreviewGraphic == nullptr) { // continue without a preview
        if (OwnerOf(graphic) == nullptr) ::GraphicDispose(&graphic);
        return;
    }
    m_page.m_pPreviewGraphic->dwFlags |= kFlagPreview;
    const FlagScope deferred(sheet->m_defersPreview); // the page updates the preview when it is active
    for (int i = 0; i < sheet->GetPageCount(); ++i) {
        CPropertyPage* page = sheet->GetPage(i);
        if (page->m_hWnd != nullptr && page->IsKindOf(RUNTIME_CLASS(CGraphicPropertyPage)))
            static_cast<CGraphicPropertyPage*>(page)->SetPreviewProperties(1);
    }
}

void PageState::BuildStatusTable() {
    std::vector<ControlStatus> rows;
    for (const HWND child : Children())
        rows.push_back({static_cast<unsigned int>(::GetDlgCtrlID(child)), 0});
    std::unique_ptr<ControlStatus[]> table(rows.empty() ? nullptr : new ControlStatus[rows.size()]);
    std::copy(rows.begin(), rows.end(), table.get());
    delete[] m_page.m_pStatus; // not earlier, so that the old table remains if memory runs out
    m_page.m_pStatus = table.release();
    m_page.m_nControls = static_cast<int>(rows.size());
    for (const ControlStatus& row : rows)
        loaded.ShowUnbound(row.nID);
}

ControlStatus* PageState::FindStatus(unsigned int nID) const {
    for (int i = 0; i < m_page.m_nControls; ++i)
        if (m_page.m_pStatus[i].nID == nID) return &m_page.m_pStatus[i];
    return nullptr;
}

const std::vector<HWND>& PageState::Children() const {
    return m_page.m_children->Of(m_page.m_hWnd);
}

HWND PageState::Control(unsigned int nID) const {
    return m_page.m_children->WithId(m_page.m_hWnd, static_cast<int>(nID));
}

bool PageState::IsIgnored(unsigned int nID) const {
    for (int i = 0; i < static_cast<int>(m_page.m_IDArray.GetSize()); ++i)
        if (m_page.m_IDArray.GetAt(i) == nID) return true;
    return false;
}

// Not every system restores the selection when a list is closed by Escape. Moving the focus to another control also
// closes the list, but keeps the new selection.
void PageState::OnDroppedList(unsigned int code, HWND combo) {
    const PageNotification notification(combo, code);
    if (!notification.IsOfCombo()) return;
    const ControlItems items = ControlItems::OfCombo(combo);
    if (code == CBN_DROPDOWN) {
        m_dropped = combo;
        m_droppedItem = items.Selected();
        CWnd::FromHandle(combo)->GetWindowText(m_droppedText);
        return;
    }
    if (code != CBN_SELENDCANCEL || std::exchange(m_dropped, nullptr) != combo) return;
    const HWND focus = ::GetFocus();
    if ((focus != combo && !::IsChild(combo, focus)) || items.Selected() == m_droppedItem) return;
    items.Select(m_droppedItem);
    AfxSetWindowText(combo, m_droppedText);
    m_page.SendMessage(WM_COMMAND, MAKEWPARAM(::GetDlgCtrlID(combo), CBN_SELCHANGE), reinterpret_cast<LPARAM>(combo));
}

// The first change on a page never sets the bit for the end of an edit.
unsigned long PageState::ChangeFlags(unsigned int nID, unsigned int code, HWND control) {
    const PageNotification notification(control, code);
    unsigned long flags = 0;
    if (notification.IsChange()) {
        nID = ChangedControlId(control, nID, notification.className);
        m_page.SetControlStatus(nID, 1);
        flags = 1;
    }
    if (m_page.m_bChanged && notification.IsEditEnd() && m_page.GetControlStatus(nID)) flags |= 2;
    return flags;
}

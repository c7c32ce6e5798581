// The pane with the properties of the selection.

#include "demo/viewer/properties_pane.h"

#include <utility>

#include "demo/viewer/resource.h"

IMPLEMENT_DYNAMIC(CPropertiesPane, CSheetPane)

CPropertiesPane::Edited::Edited(CWnd* owner, const Document& document)
    : graphics(document.Selected()), sheet(owner, document.Drawing(), graphics.Set(), kAllGraphics) {}

CPropertiesPane::CPropertiesPane(Applied applied) : m_applied(std::move(applied)) {}

void CPropertiesPane::SetDocument(Document* document) {
    if (IsOpen()) OnClose();
    DropSheet();
    m_document = document;
    if (IsOpen()) OnOpen();
    Follow();
}

CGraphicPropertySheet* CPropertiesPane::NewSheet() {
    if (!m_document) return nullptr;
    m_edited.emplace(GetParent(), *m_document);
    return m_edited->sheet.get();
}

void CPropertiesPane::DeleteSheet() {
    m_edited.reset();
}

unsigned int CPropertiesPane::LastPage() const {
    return LastSheetPage();
}

void CPropertiesPane::SetLastPage(unsigned int page) {
    SetLastSheetPage(page);
}

bool CPropertiesPane::HasGraphics() const {
    return m_edited && m_edited->graphics.Count() > 0;
}

void CPropertiesPane::OnOpen() {
    if (m_document) m_document->BeginTransaction();
}

void CPropertiesPane::OnClose() {
    if (m_document) m_document->EndTransaction();
}

void CPropertiesPane::OnApplied() {
    const int changed = m_document ? m_document->CommitTransaction() : 0;
    if (changed > 0) m_applied(changed);
}

void CPropertiesPane::OnReset() {
    if (m_document) m_document->RollBackTransaction();
}

void CPropertiesPane::OnCloseButton() {
    ::PostMessageA(::GetParent(m_hWnd), WM_COMMAND, ID_VIEW_PROPERTIES, 0);
}

void CPropertiesPane::OnEscape() {
    Reset();
    GetParent()->SendMessage(WM_COMMAND, ID_VIEW_SWITCH_PANE);
}

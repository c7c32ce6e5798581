// The library's sheet for a set of graphics.

#include "demo/viewer/property_sheet.h"

#include <optional>

#include "demo/viewer/document.h"
#include "demo/viewer/extended_data_page.h"
#include "demo/viewer/geometry_page.h"
#include "demo/viewer/settings.h"
#include "demo/viewer/value_counts.h"
#include "drawcore/application.h"
#include "drawcore/regen.h"
#include "orlo/entry/entry.h"
#include "orlo/frame/graphic_property_page.h"
#include "orlo/host/application.h"
#include "orlo/host/table.h"
#include "orlo/host/walk.h"

namespace {

uint16_t SharedLayer(GraphicStruct* set) {
    std::optional<uint16_t> shared;
    for (GraphicStruct* graphic : orlo::host::Members(set)) {
        const uint16_t layer = LayerOf(graphic);
        if (shared && *shared != layer) return 0;
        shared = layer;
    }
    return shared.value_or(0);
}

TableStruct* Variables() {
    return ::AppGetCurrentApp()->pVariables;
}

} // namespace

PreviewLayer::PreviewLayer(GraphicStruct* set) {
    ::TableGetIntVar(Variables(), kVarPreviewLayer, &m_before);
    ::TableSetIntVar(Variables(), kVarPreviewLayer, SharedLayer(set));
}

PreviewLayer::~PreviewLayer() {
    ::TableSetIntVar(Variables(), kVarPreviewLayer, m_before);
}

void SelectionSheet::RegenMethodsDeleter::operator()(void* methods) const {
    ::RegenMethodsDispose(&methods);
}

SelectionSheet::SelectionSheet(CWnd* owner, DrawingStruct* drawing, GraphicStruct* set, unsigned long flags)
    : m_previewLayer(set), m_methods(::RegenMethodsNew()),
      m_sheet(::InitGraphicPropertySheet(owner, m_methods.get(), drawing, set, flags)) {
    if (!m_sheet) return;
    for (GraphicStruct* graphic : orlo::host::Members(set, flags))
        ::AddGraphicPropertyPage(m_methods.get(), graphic, m_sheet.get());
    if (flags != kAllGraphics) return; // the sheet of a style
    AddGeometryPage(m_sheet.get());
    AddExtendedDataPage(m_sheet.get(), set);
}

unsigned LastSheetPage() {
    return static_cast<unsigned>(Settings::Number(kSettingPage).value_or(0));
}

void SetLastSheetPage(unsigned page) {
    Settings::SetNumber(kSettingPage, static_cast<int>(page));
}

void SelectionSheet::SelectStoredPage() {
    if (CPropertyPage* wanted = m_sheet->FindPage(LastSheetPage())) m_sheet->SetActivePage(wanted);
    m_openedOn = m_sheet->GetActiveIndex();
}

void SelectionSheet::StorePage() const {
    CPropertyPage* page = m_sheet->GetActivePage();
    if (m_sheet->GetActiveIndex() == m_openedOn || !page->IsKindOf(RUNTIME_CLASS(CGraphicPropertyPage))) return;
    SetLastSheetPage(static_cast<CGraphicPropertyPage*>(page)->GetTemplateNumber());
}

int RunSheet(CWnd* owner, DrawingStruct* drawing, GraphicStruct* set, unsigned long flags) {
    const SelectionSheet sheet(owner, drawing, set, flags);
    return sheet.get() ? static_cast<int>(sheet->DoModal()) : kNotShown;
}

SheetOutcome EditSelection(CWnd* owner, Document& document) {
    SheetOutcome outcome = {};
    // A canceled sheet may have written too, since a page is written when it is left.
    outcome.changed = document.Attempt([&] {
        SelectionSheet sheet(owner, document.Drawing(), document.Selected().Set(), kAllGraphics);
        outcome.code = kNotShown;
        if (!sheet.get()) return false;
        sheet.SelectStoredPage();
        outcome.code = static_cast<int>(sheet->DoModal());
        sheet.StorePage();
        return outcome.code != IDCANCEL && outcome.code != kNotShown;
    });
    return outcome;
}

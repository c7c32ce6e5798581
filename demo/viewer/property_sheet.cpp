// The library's sheet over a set of graphics.

#include "demo/viewer/property_sheet.h"

#include "demo/viewer/document.h"
#include "drawcore/regen.h"
#include "orlo/entry/entry.h"
#include "orlo/host/walk.h"

void SelectionSheet::RegenMethodsDeleter::operator()(void* methods) const {
    ::RegenMethodsDispose(&methods);
}

SelectionSheet::SelectionSheet(CWnd* owner, DrawingStruct* drawing, GraphicStruct* set, unsigned long flags)
    : m_methods(::RegenMethodsNew()),
      m_sheet(::InitGraphicPropertySheet(owner, m_methods.get(), drawing, set, flags)) {
    if (!m_sheet) return;
    for (GraphicStruct* graphic : orlo::host::Members(set, flags))
        ::AddGraphicPropertyPage(m_methods.get(), graphic, m_sheet.get());
}

int RunSheet(CWnd* owner, DrawingStruct* drawing, GraphicStruct* set, unsigned long flags) {
    const SelectionSheet sheet(owner, drawing, set, flags);
    return sheet.get() ? static_cast<int>(sheet->DoModal()) : kNotShown;
}

SheetOutcome EditSelection(CWnd* owner, Document& document) {
    SheetOutcome outcome = {};
    // A cancelled sheet may have written too: a page writes when it is left for another one.
    outcome.changed = document.Attempt([&] {
        outcome.code = RunSheet(owner, document.Drawing(), document.Selected().Set(), kAllGraphics);
        return outcome.code != IDCANCEL && outcome.code != kNotShown;
    });
    return outcome;
}

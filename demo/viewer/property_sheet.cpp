// The library's sheet over a set of graphics.

#include "demo/viewer/property_sheet.h"

#include <memory>

#include "demo/viewer/document.h"
#include "drawcore/regen.h"
#include "orlo/entry/entry.h"
#include "orlo/frame/graphic_property_sheet.h"
#include "orlo/host/walk.h"

namespace {

struct RegenMethodsDeleter {
    void operator()(void* methods) const { ::RegenMethodsDispose(&methods); }
};
using RegenMethods = std::unique_ptr<void, RegenMethodsDeleter>;

} // namespace

int RunSheet(CWnd* owner, DrawingStruct* drawing, GraphicStruct* set, unsigned long flags) {
    const RegenMethods methods(::RegenMethodsNew());
    const std::unique_ptr<CGraphicPropertySheet> sheet(
        ::InitGraphicPropertySheet(owner, methods.get(), drawing, set, flags));
    if (!sheet) return kNotShown;
    for (GraphicStruct* graphic : orlo::host::Members(set, flags))
        ::AddGraphicPropertyPage(methods.get(), graphic, sheet.get());
    return static_cast<int>(sheet->DoModal());
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

// The library's sheet over the selection of a document.

#include "demo/property_sheet.h"

#include <memory>

#include "demo/document.h"
#include "drawcore/regen.h"
#include "orlo/frame/entry.h"
#include "orlo/frame/graphic_property_sheet.h"

namespace {

constexpr unsigned long kAllGraphics = 0xFFFFFFFF;

struct RegenMethodsDeleter {
    void operator()(void* methods) const { ::RegenMethodsDispose(&methods); }
};
using RegenMethods = std::unique_ptr<void, RegenMethodsDeleter>;

} // namespace

SheetOutcome EditSelection(CWnd* owner, Document& document) {
    const RegenMethods methods(::RegenMethodsNew());
    Selection& selection = document.Selected();
    const std::unique_ptr<CGraphicPropertySheet> sheet(
        ::InitGraphicPropertySheet(owner, methods.get(), document.Drawing(), selection.Set(), kAllGraphics));
    if (!sheet) return {-1, 0};
    for (GraphicStruct* graphic : selection.Members())
        ::AddGraphicPropertyPage(methods.get(), graphic, sheet.get());

    SheetOutcome outcome;
    // A cancelled sheet may have written too: a page writes when it is left for another one.
    outcome.changed = document.Change([&] { outcome.code = static_cast<int>(sheet->DoModal()); });
    return outcome;
}

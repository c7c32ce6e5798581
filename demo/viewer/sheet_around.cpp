// Finds the sheet of a window.

#include "demo/viewer/sheet_around.h"

COrloPropertySheet* SheetAround(HWND window) {
    for (; window; window = ::GetAncestor(window, GA_PARENT)) {
        CWnd* found = CWnd::FromHandlePermanent(window);
        if (found && found->IsKindOf(RUNTIME_CLASS(COrloPropertySheet))) return static_cast<COrloPropertySheet*>(found);
    }
    return nullptr;
}

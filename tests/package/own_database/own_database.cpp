// Creates a sheet over a drawing of the skeleton. Returns 0 if its General page is there.
#include <orlo.h>

#include <memory>

#include "skeleton.h"

// Returns a function that is not one of those that the library's package has an import library for.
template <class Function>
Function* Own(const char* name) {
    return reinterpret_cast<Function*>(::GetProcAddress(::GetModuleHandleA("drawcore32.dll"), name));
}

int main() {
    CWinApp application("Own");
    DrawingStruct* drawing = Own<decltype(DrawingNew)>("DrawingNew")();
    if (!PropPageInit() || drawing == nullptr || AppGetCurrentApp() == nullptr) return 2;
    Own<decltype(AppSetCurrentDrawing)>("AppSetCurrentDrawing")(drawing);
    GraphicStruct* all = Own<decltype(DrawingGetRoot)>("DrawingGetRoot")(drawing);
    const std::unique_ptr<CGraphicPropertySheet> sheet(
        InitGraphicPropertySheet(nullptr, nullptr, drawing, all, kAllGraphics));
    return sheet && sheet->GetPageCount() == 1 ? 0 : 1;
}

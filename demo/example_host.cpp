// The smallest host there is: opens the drawing that is named on its command line and shows the properties of all that is
// in it. Its main window answers the library's controls, which ask for the tables that they show.

#include <afxwin.h>
#include <drawcore/application.h> // the reference database; a host of your own has its own calls here
#include <drawcore/drawing.h>
#include <drawcore/dxf.h>
#include <orlo.h>

class CHostFrame : public CFrameWnd {
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override {
        const char* table = TableOfControl(LOWORD(wParam)); // by the kind of the library's control
        if (HIWORD(wParam) != kControlReady || table == nullptr) return CFrameWnd::OnCommand(wParam, lParam);
        DrawingStruct* drawing = AppGetCurrentApp()->pCurrentDrawing;
        const ControlFillRecord fill = {DrawingGetTable(drawing, table), 0, 0};
        ::SendMessageA(reinterpret_cast<HWND>(lParam), kFillMessage, 0, reinterpret_cast<LPARAM>(&fill));
        return TRUE;
    }
};

int wmain(int count, wchar_t** arguments) {
    DrawingStruct* drawing = count == 2 ? DrawingOpenDxf(arguments[1], nullptr, nullptr, 0) : nullptr;
    if (drawing == nullptr) return 2;
    CWinApp application("Host");
    auto* frame = new CHostFrame; // goes with its window
    if (!frame->Create(nullptr, "Host")) return 2;
    application.m_pMainWnd = frame; // controls announce themselves there
    PropPageInit();
    AppSetCurrentDrawing(drawing);
    GraphicStruct* all = DrawingGetRoot(drawing);
    CGraphicPropertySheet* sheet = InitGraphicPropertySheet(frame, nullptr, drawing, all, kAllGraphics);
    uint32_t place;
    for (GraphicStruct* g = GraphicFirst(all, &place, 1, kAllGraphics); g;
         g = GraphicNext(all, &place, 1, kAllGraphics))
        AddGraphicPropertyPage(nullptr, g, sheet);
    const auto code = sheet->DoModal(); // 1: OK, and the drawing has changed
    delete sheet;                       // with its pages and previews; the drawing stays the host's
    frame->DestroyWindow();
    DrawingDispose(&drawing);
    return code == IDOK ? 0 : 1;
}

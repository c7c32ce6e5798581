// The smallest host there is: opens the drawing that is named on its command line and shows the properties of all that is
// in it. Its main window answers the library's controls, which ask for the tables that they show.

#include <afxwin.h>
#include <drawcore/application.h> // the reference database; a host of your own has its own calls here
#include <drawcore/drawing.h>
#include <drawcore/dxf.h>
#include <orlo.h>

// Which table each kind of the library's controls shows.
const char* TableOf(int kind) {
    switch (kind) {
    case 0x7D05:
        return "_Colors_";
    case 0x7D08:
        return "_Layers_";
    case 0x7D18:
        return "_BrushStyles_";
    case 0x7D15:
        return "_LineStyles_";
    default:
        return "_Units_"; // fonts: of the drawing that owns the table
    }
}

class CHostFrame : public CFrameWnd {
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override {
        if (HIWORD(wParam) != kControlReady) return CFrameWnd::OnCommand(wParam, lParam);
        DrawingStruct* drawing = AppGetCurrentApp()->pCurrentDrawing;
        const ControlFillRecord fill = {DrawingGetTable(drawing, TableOf(LOWORD(wParam))), 0, 0};
        ::SendMessageA(reinterpret_cast<HWND>(lParam), kFillMessage, 0, reinterpret_cast<LPARAM>(&fill));
        return TRUE;
    }
};

int wmain(int, wchar_t** argv) {
    CWinApp application("Host");
    application.m_pMainWnd = new CHostFrame; // goes with its window
    application.m_pMainWnd->Create(nullptr, "Host", WS_OVERLAPPEDWINDOW, CRect(0, 0, 100, 100), nullptr, 0);
    PropPageInit();
    DrawingStruct* drawing = DrawingOpenDxf(argv[1], nullptr, nullptr, 0);
    AppSetCurrentDrawing(drawing);
    GraphicStruct* all = DrawingGetRoot(drawing);
    CGraphicPropertySheet* sheet =
        InitGraphicPropertySheet(application.m_pMainWnd, nullptr, drawing, all, 0xFFFFFFFF);
    uint32_t place;
    for (GraphicStruct* g = GraphicFirst(all, &place, 1, 0xFFFFFFFF); g;
         g = GraphicNext(all, &place, 1, 0xFFFFFFFF))
        AddGraphicPropertyPage(nullptr, g, sheet);
    const int code = sheet->DoModal(); // 1: OK, and the drawing has changed
    delete sheet;                      // with its pages and previews; the drawing stays the host's
    application.m_pMainWnd->DestroyWindow();
    DrawingDispose(&drawing);
    return code == IDOK ? 0 : 1;
}

// The smallest host: opens the drawing named on its command line and shows the properties of all its graphics. Its main
// window fills the library's controls with the tables that they show.

#include <afxwin.h>
#include <drawcore/application.h> // the reference database; your host uses its own functions
#include <drawcore/drawing.h>
#include <drawcore/dxf.h>
#include <orlo.h>

#include "orlo/host/walk.h"

class CHostFrame : public CFrameWnd {
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override {
        const char* table = TableOfControl(LOWORD(wParam)); // the kind of control determines the table
        if (HIWORD(wParam) != kControlReady || table == nullptr) return CFrameWnd::OnCommand(wParam, lParam);
        DrawingStruct* drawing = AppGetCurrentApp()->pCurrentDrawing;
        const ControlFillRecord fill = {DrawingGetTable(drawing, table), 0, kColorNone};
        ::SendMessageA(reinterpret_cast<HWND>(lParam), kFillMessage, 0, reinterpret_cast<LPARAM>(&fill));
        return TRUE;
    }
};

int wmain(int count, wchar_t** arguments) {
    DrawingStruct* drawing = count == 2 ? DrawingOpenDxf(arguments[1], nullptr, nullptr, 0) : nullptr;
    if (drawing == nullptr) return 2;
    CWinApp application("Host");
    auto* frame = new CHostFrame; // deletes itself with its window
    if (!frame->Create(nullptr, "Host")) return 2;
    application.m_pMainWnd = frame; // receives the notifications of controls
    PropPageInit();
    AppSetCurrentDrawing(drawing);
    GraphicStruct* all = DrawingGetRoot(drawing);
    CGraphicPropertySheet* sheet = InitGraphicPropertySheet(frame, nullptr, drawing, all, kAllGraphics);
    for (GraphicStruct* graphic : orlo::host::Members(all))
        AddGraphicPropertyPage(nullptr, graphic, sheet);
    const auto code = sheet->DoModal(); // 1: OK, and the drawing has changed
    delete sheet;                       // including its pages and previews, not the drawing
    frame->DestroyWindow();
    DrawingDispose(&drawing);
    return code == IDOK ? 0 : 1;
}

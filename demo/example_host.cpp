// The smallest host there is: opens the drawing that is named on its command line, selects everything in it and shows the
// properties. The program's main window answers the library's controls, which ask for the tables that they show.

#include <afxwin.h>
#include <drawcore/application.h>
#include <drawcore/drawing.h>
#include <orlo.h>

class CHostFrame : public CFrameWnd {
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override {
        if (HIWORD(wParam) != kControlReady) return CFrameWnd::OnCommand(wParam, lParam);
        const char* table = LOWORD(wParam) == 0x7D05 ? "_Colors_" : "_LineStyles_";
        const ControlFillRecord fill = {DrawingGetTable(AppGetCurrentApp()->pCurrentDrawing, table), 0, 0};
        ::SendMessageA(reinterpret_cast<HWND>(lParam), kFillMessage, 0, reinterpret_cast<LPARAM>(&fill));
        return TRUE;
    }
};

class CHostApp : public CWinApp {
    BOOL InitInstance() override {
        PropPageInit();
        m_pMainWnd = new CHostFrame;
        m_pMainWnd->Create(nullptr, "Host", WS_OVERLAPPEDWINDOW, CRect(), nullptr, 0);

        DrawingStruct* drawing = DrawingOpenDxf(m_lpCmdLine, nullptr, nullptr, nullptr);
        AppSetCurrentDrawing(drawing);
        GraphicStruct* all = DrawingGetRoot(drawing);
        CGraphicPropertySheet* sheet =
            InitGraphicPropertySheet(m_pMainWnd, nullptr, drawing, all, 0xFFFFFFFF);
        uint32_t place;
        for (GraphicStruct* g = GraphicFirst(all, &place, 1, 0xFFFFFFFF); g;
             g = GraphicNext(all, &place, 1, 0xFFFFFFFF))
            AddGraphicPropertyPage(nullptr, g, sheet);
        sheet->DoModal();
        delete sheet; // with its pages and previews; the drawing stays the host's
        DrawingDispose(&drawing);
        return FALSE; // nothing more to do
    }
} application;

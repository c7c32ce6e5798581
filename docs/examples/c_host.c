// A host in C99: opens the drawing named on the command line and shows the properties of all its graphics.

#include <stdio.h>
#include <windows.h>

#include <drawcore/application.h> // the reference database; your host includes its own headers here
#include <drawcore/drawing.h>
#include <drawcore/dxf.h>
#include <orlo_c.h>

static int ShowProperties(HWND window, DrawingStruct* drawing) {
    OrloSheet sheet = ORLO_INIT(OrloSheet);
    int32_t code;
    sheet.filter = kOrloAllGraphics;
    sheet.owner = window; // disabled while the sheet is open
    sheet.drawing = drawing;
    sheet.selection = DrawingGetRoot(drawing);
    if (OrloRunSheet(&sheet, &code) != kOrloOk) {
        char reason[256];
        OrloGetErrorText(reason, sizeof reason);
        fprintf(stderr, "cannot open the sheet: %s\n", reason);
        return 2;
    }
    return code == IDOK ? 0 : 1;
}

int wmain(int count, wchar_t** arguments) {
    DrawingStruct* drawing = count == 2 ? DrawingOpenDxf(arguments[1], NULL, NULL, 0) : NULL;
    HWND window;
    int result;
    if (drawing == NULL || OrloGetVersion() < ORLO_VERSION) return 2;
    AppSetCurrentDrawing(drawing);
    window =
        CreateWindowA("STATIC", "Host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 50, 50, 400, 300, NULL, NULL, NULL, NULL);
    result = ShowProperties(window, drawing);
    DestroyWindow(window);
    DrawingDispose(&drawing);
    return result;
}

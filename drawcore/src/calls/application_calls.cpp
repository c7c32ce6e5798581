// Functions of the host contract and of drawcore/include for the application.

#include "orlo/host/application.h"

#include "drawcore/include/drawcore/application.h"
#include "drawcore/src/database/application.h"
#include "drawcore/src/database/drawing.h"

using namespace drawcore;

AppStruct* AppGetCurrentApp(void) {
    return &Application::Get();
}

int AppGetINIFileName(AppStruct* application, char* buffer, int size) {
    if (application != &Application::Get() || !buffer || size <= 0) return 0;
    return CopyText(Application::Get().configurationFile, buffer, size);
}

int IsPaletteSupported(HDC dc) {
    return dc && (::GetDeviceCaps(dc, RASTERCAPS) & RC_PALETTE) != 0;
}

int AppSetCurrentDrawing(DrawingStruct* drawing) {
    Drawing* found = Drawing::Find(drawing);
    if (drawing && !found) return 0;
    Application::Get().SetCurrentDrawing(found);
    return 1;
}

void AppSetINIFileName(const char* path) {
    Application::Get().configurationFile = path ? path : "";
}

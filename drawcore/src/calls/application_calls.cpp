// Functions of the host contract and of drawcore/include for the application, its strings and palettes.

#include "orlo/host/application.h"

#include <windows.h>

#include "drawcore/include/drawcore/application.h"
#include "drawcore/src/database/application.h"
#include "drawcore/src/database/drawing.h"
#include "orlo/host/dib_palette.h"
#include "orlo/host/picture.h"
#include "orlo/host/strings.h"

extern "C" IMAGE_DOS_HEADER __ImageBase;

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

uint16_t PaletteSize(const void* dib) {
    return orlo::host::PaletteSizeOf(dib);
}

int DrawCoreLoadString(unsigned int id, char* buffer, int size) {
    if (!buffer || size <= 0) return 0;
    buffer[0] = '\0';
    if (size == 1) return 0;
    return ::LoadStringA(reinterpret_cast<HINSTANCE>(&__ImageBase), id, buffer, size);
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

// The application, its strings, and memory that is passed to the library.

#include <algorithm>
#include <cstdlib>
#include <cstring>

#include "database.h"
#include "skeleton.h"

int CopyText(const std::string& text, char* buffer, int size) {
    if (!buffer || size <= 0) return 0;
    const size_t length = std::min(text.size(), static_cast<size_t>(size) - 1);
    std::memcpy(buffer, text.data(), length);
    buffer[length] = '\0';
    return static_cast<int>(length);
}

namespace {

struct Application : AppStruct {
    Application() : AppStruct{}, variables(nullptr) {
        pVariables = &variables;
        hPalette = static_cast<HPALETTE>(::GetStockObject(DEFAULT_PALETTE));
        variables.variables[kVarPreviewBackground] = static_cast<long>(RGB(255, 255, 255));
    }
    TableStruct variables;
};

Application& TheApplication() {
    static Application application;
    return application;
}

struct Text {
    unsigned int number;
    const char* text;
};
constexpr Text kTexts[] = {{kStringByBlock, "By Block"},       {kStringByLayer, "By Layer"},
                           {kStringLastColor, "Pen Color"},    {kStringNoBrush, "No Brush"},
                           {kStringPaperScale, "Paper Scale"}, {kStringWorldScale, "World Scale"},
                           {kStringSampleText, "Sample Text"}};

} // namespace

AppStruct* AppGetCurrentApp(void) {
    return &TheApplication();
}

int AppSetCurrentDrawing(DrawingStruct* drawing) {
    TheApplication().pCurrentDrawing = drawing;
    return 1;
}

// This database has no configuration file: the lists of widths and heights are empty.
int AppGetINIFileName(AppStruct*, char*, int) {
    return 0;
}

int IsPaletteSupported(HDC dc) {
    return dc && (::GetDeviceCaps(dc, RASTERCAPS) & RC_PALETTE) != 0;
}

int DrawCoreLoadString(unsigned int id, char* buffer, int size) {
    for (const Text& text : kTexts)
        if (text.number == id) return CopyText(text.text, buffer, size);
    return 0;
}

void* DrawCoreNew(size_t size) {
    return std::malloc(size);
}

void DrawCoreDispose(void* block) {
    std::free(block);
}

void BStringNULL(char** string) {
    if (!string) return;
    DrawCoreDispose(*string);
    *string = nullptr;
}

// No graphic of this database has a regen method.
int RegenMethodGetPropPage(void*, uint16_t, GraphicStruct*, void*) {
    return 0;
}

void RegenMethodRegen(void*, uint16_t, GraphicStruct*) {}

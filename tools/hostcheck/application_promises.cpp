// The application, its texts, memory that crosses the boundary, regen methods, bitmaps.

#include <cstring>

#include "orlo/win/gdi.h"
#include "promise.h"

namespace {

constexpr char kUntouched = '\x5A';

void HasTheCurrentDrawing(const Subject& s) {
    const AppStruct* application = CALL(s.host, AppGetCurrentApp)();
    Expect(application, "gave null");
    Expect(application->pCurrentDrawing == s.drawing, "pCurrentDrawing is another drawing");
    Expect(s.drawing->pApplication == application, "pApplication of the drawing is another one");
}

void HasItsTables(const Subject& s) {
    const AppStruct* application = CALL(s.host, AppGetCurrentApp)();
    Expect(application->pVariables, "pVariables is null");
    long color = -1;
    Expect(CALL(s.host, TableGetIntVar)(application->pVariables, kVarPreviewBackground, &color),
           "there is no whole number 0x%X, the background of previews", kVarPreviewBackground);
    Expect(color >= 0 && color <= 0xFFFFFF, "the background of previews is 0x%lX, no COLORREF", color);
    Expect(s.drawing->pUnits == s.Table(kTableUnits), "pUnits of the drawing is not its table %s",
           kTableUnits);
}

void NamesItsFileInTheBuffer(const Subject& s) {
    char path[MAX_PATH + 1];
    std::memset(path, kUntouched, sizeof path);
    const int found = CALL(s.host, AppGetINIFileName)(CALL(s.host, AppGetCurrentApp)(), path, MAX_PATH);
    Expect(path[MAX_PATH] == kUntouched, "wrote behind the buffer");
    Expect(!found || std::memchr(path, '\0', MAX_PATH), "gave a path without its NUL");
}

void TellsPaletteDevices(const Subject& s) {
    const orlo::OwnedDC screen(::CreateCompatibleDC(nullptr));
    const int expected = (::GetDeviceCaps(screen.get(), RASTERCAPS) & RC_PALETTE) != 0;
    const int found = CALL(s.host, IsPaletteSupported)(screen.get()) != 0;
    Expect(found == expected, "gave %d where GetDeviceCaps says %d", found, expected);
}

void HasTheTexts(const Subject& s) {
    for (const unsigned int id : {kStringByBlock, kStringByLayer, kStringLastColor, kStringNoBrush,
                                  kStringPaperScale, kStringWorldScale, kStringSampleText}) {
        char text[64] = "";
        const int length = CALL(s.host, DrawCoreLoadString)(id, text, sizeof text);
        Expect(length > 0 && length == static_cast<int>(std::strlen(text)),
               "text 0x%X: gave %d, and \"%s\" in the buffer", id, length, text);
    }
}

void CutsTexts(const Subject& s) {
    char text[5] = {kUntouched, kUntouched, kUntouched, kUntouched, kUntouched};
    const int length = CALL(s.host, DrawCoreLoadString)(kStringSampleText, text, 4);
    Expect(length == 3 && text[3] == '\0' && text[4] == kUntouched,
           "gave %d for a buffer of 4 bytes, which takes 3 and the NUL", length);
}

void KnowsNoOtherText(const Subject& s) {
    char text[64] = "";
    const int length = CALL(s.host, DrawCoreLoadString)(1, text, sizeof text);
    Expect(length == 0, "gave %d for text 1, which no host has", length);
}

void GivesBlocks(const Subject& s) {
    void* first = CALL(s.host, DrawCoreNew)(1000);
    void* second = CALL(s.host, DrawCoreNew)(1000);
    Expect(first && second && first != second, "gave %p and %p", first, second);
    std::memset(first, 1, 1000);
    std::memset(second, 2, 1000);
    const bool whole = static_cast<char*>(first)[999] == 1;
    CALL(s.host, DrawCoreDispose)(first);
    CALL(s.host, DrawCoreDispose)(second);
    Expect(whole, "two blocks overlap");
}

void TakesNull(const Subject& s) {
    CALL(s.host, DrawCoreDispose)(nullptr);
}

void ClearsTheVariable(const Subject& s) {
    auto* text = static_cast<char*>(CALL(s.host, DrawCoreNew)(8));
    std::strcpy(text, "text");
    CALL(s.host, BStringNULL)(&text);
    Expect(text == nullptr, "left %p in the variable", static_cast<void*>(text));
    CALL(s.host, BStringNULL)(&text); // a second time: harmless
}

void BearsAnUnknownMethod(const Subject& s) {
    const auto square = s.NewSquare(1);
    CALL(s.host, RegenMethodRegen)(nullptr, 0x7FFF, square.get());
}

void HasNoPageOfAnUnknownMethod(const Subject& s) {
    const auto square = s.NewSquare(1);
    const int result = CALL(s.host, RegenMethodGetPropPage)(nullptr, 0x7FFF, square.get(), nullptr);
    Expect(result == 0, "gave %d", result);
}

void SizesPalettes(const Subject& s) {
    struct Row {
        DWORD size;
        WORD bits;
        DWORD used, compression;
        int expected;
    };
    const Row rows[] = {{sizeof(BITMAPINFOHEADER), 1, 0, BI_RGB, 8},
                        {sizeof(BITMAPINFOHEADER), 8, 0, BI_RGB, 1024},
                        {sizeof(BITMAPINFOHEADER), 8, 10, BI_RGB, 40},
                        {sizeof(BITMAPINFOHEADER), 24, 0, BI_RGB, 0},
                        {sizeof(BITMAPINFOHEADER), 32, 0, BI_BITFIELDS, 12},
                        {sizeof(BITMAPINFOHEADER), 8, 0xFFFFFFFF, BI_RGB, 0},
                        {sizeof(BITMAPINFOHEADER) + 1, 8, 0, BI_RGB, 0}};
    for (const Row& row : rows) {
        BITMAPV5HEADER header = {};
        header.bV5Size = row.size;
        header.bV5Planes = 1;
        header.bV5BitCount = row.bits;
        header.bV5ClrUsed = row.used;
        header.bV5Compression = row.compression;
        const int found = CALL(s.host, PaletteSize)(&header);
        Expect(found == row.expected, "gave %d, not %d, for a header of %lu bytes, %u bits, %lu colours",
               found, row.expected, row.size, row.bits, row.used);
    }
}

constexpr Promise kRows[] = {
    {"AppGetCurrentApp", "gives the application, and the current drawing belongs to it",
     HasTheCurrentDrawing},
    {"AppGetCurrentApp", "has variables, and the drawing its units", HasItsTables},
    {"AppGetINIFileName", "gives 0, or a path with its NUL that fits the buffer", NamesItsFileInTheBuffer},
    {"IsPaletteSupported", "says what the device says", TellsPaletteDevices},
    {"DrawCoreLoadString", "has the seven texts and gives their lengths", HasTheTexts},
    {"DrawCoreLoadString", "cuts a text to the buffer", CutsTexts},
    {"DrawCoreLoadString", "gives 0 for a number without a text", KnowsNoOtherText},
    {"DrawCoreNew", "gives blocks of the size that was asked for", GivesBlocks},
    {"DrawCoreDispose", "takes null", TakesNull},
    {"BStringNULL", "frees the string and clears the variable, and takes null", ClearsTheVariable},
    {"RegenMethodRegen", "leaves a graphic alone whose method it does not know", BearsAnUnknownMethod},
    {"RegenMethodGetPropPage", "gives 0 for a method that it does not know", HasNoPageOfAnUnknownMethod},
    {"PaletteSize", "gives the bytes between header and pixels", SizesPalettes},
};

} // namespace

const Topic kApplicationPromises = TopicOf(kRows);

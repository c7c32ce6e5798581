// Requirements of the application, strings, memory blocks, regen methods and bitmaps.

#include <cstring>

#include "orlo/win/gdi.h"
#include "requirement.h"

namespace {

constexpr char kUntouched = '\x5A';

void HasTheCurrentDrawing(const Subject& s) {
    const AppStruct* application = CALL(s.host, AppGetCurrentApp)();
    Require(application, "returned null");
    Require(application->pCurrentDrawing == s.Drawing(), "pCurrentDrawing is not the current drawing");
    Require(s.Drawing()->pApplication == application, "pApplication of the drawing is not the application");
}

void HasItsTables(const Subject& s) {
    const AppStruct* application = CALL(s.host, AppGetCurrentApp)();
    Require(application->pVariables, "pVariables is null");
    long color = -1;
    Require(CALL(s.host, TableGetIntVar)(application->pVariables, kVarPreviewBackground, &color),
            "pVariables has no integer 0x%X (background of previews)", kVarPreviewBackground);
    Require(color >= 0 && color <= 0xFFFFFF, "the background of previews is 0x%lX, which is not a COLORREF", color);
    Require(s.Drawing()->pUnits == s.Table(kTableUnits), "pUnits of the drawing is not its table %s", kTableUnits);
}

void StoresAPathThatFits(const Subject& s) {
    char path[MAX_PATH + 1];
    std::memset(path, kUntouched, sizeof path);
    const int found = CALL(s.host, AppGetINIFileName)(CALL(s.host, AppGetCurrentApp)(), path, MAX_PATH);
    Require(path[MAX_PATH] == kUntouched, "wrote past the end of the buffer");
    RequireNoStub(found, "AppGetINIFileName");
    Require(std::memchr(path, '\0', MAX_PATH), "the path does not end with a NUL");
}

void DetectsPaletteDevices(const Subject& s) {
    const orlo::OwnedDC screen(::CreateCompatibleDC(nullptr));
    const int expected = (::GetDeviceCaps(screen.get(), RASTERCAPS) & RC_PALETTE) != 0;
    const int found = CALL(s.host, IsPaletteSupported)(screen.get()) != 0;
    Require(found == expected, "returned %d, but GetDeviceCaps reports %d", found, expected);
}

void HasTheStrings(const Subject& s) {
    Violations violations;
    for (const unsigned int id : {kStringByBlock, kStringByLayer, kStringLastColor, kStringNoBrush, kStringPaperScale,
                                  kStringWorldScale, kStringSampleText}) {
        char text[64] = "";
        const int length = CALL(s.host, DrawCoreLoadString)(id, text, sizeof text);
        violations.Collect([&] {
            Require(length > 0 && length == static_cast<int>(std::strlen(text)),
                    "string 0x%X: returned %d and stored \"%s\"", id, length, text);
        });
    }
    violations.Report();
}

void TruncatesStrings(const Subject& s) {
    char text[5] = {kUntouched, kUntouched, kUntouched, kUntouched, kUntouched};
    const int length = CALL(s.host, DrawCoreLoadString)(kStringSampleText, text, 4);
    Require(length == 3 && text[3] == '\0' && text[4] == kUntouched, "returned %d instead of 3 for a buffer of 4 bytes",
            length);
}

void RejectsUnknownStrings(const Subject& s) {
    // A host may have any other strings, but not all of them.
    for (unsigned int id = 0; id <= UINT16_MAX; id += 257) {
        char text[64] = "";
        if (CALL(s.host, DrawCoreLoadString)(id, text, sizeof text) == 0) return;
    }
    Require(false, "never returned 0 for 256 different numbers");
}

void ReturnsBlocks(const Subject& s) {
    void* first = CALL(s.host, DrawCoreNew)(1000);
    void* second = CALL(s.host, DrawCoreNew)(1000);
    Require(first && second && first != second, "returned %p and %p", first, second);
    std::memset(first, 1, 1000);
    std::memset(second, 2, 1000);
    const bool whole = static_cast<char*>(first)[999] == 1;
    CALL(s.host, DrawCoreDispose)(first);
    CALL(s.host, DrawCoreDispose)(second);
    Require(whole, "two blocks overlap");
}

void AcceptsNull(const Subject& s) {
    CALL(s.host, DrawCoreDispose)(nullptr);
}

void ClearsTheVariable(const Subject& s) {
    auto* text = static_cast<char*>(CALL(s.host, DrawCoreNew)(8));
    std::strcpy(text, "text");
    CALL(s.host, BStringNULL)(&text);
    Require(text == nullptr, "the variable is %p afterward", static_cast<void*>(text));
    CALL(s.host, BStringNULL)(&text); // a second call must do nothing
}

void IgnoresUnknownMethods(const Subject& s) {
    const auto square = s.NewSquare(1);
    CALL(s.host, RegenMethodRegen)(nullptr, 0x7FFF, square.get());
}

void HasNoPagesForUnknownMethods(const Subject& s) {
    const auto square = s.NewSquare(1);
    const int result = CALL(s.host, RegenMethodGetPropPage)(nullptr, 0x7FFF, square.get(), nullptr);
    Require(result == 0, "returned %d", result);
}

void SizesPalettes(const Subject& s) {
    struct Row {
        DWORD size;
        WORD bits;
        DWORD used, compression;
        int expected;
    };
    const Row rows[] = {
        {sizeof(BITMAPINFOHEADER), 1, 0, BI_RGB, 8},         {sizeof(BITMAPINFOHEADER), 8, 0, BI_RGB, 1024},
        {sizeof(BITMAPINFOHEADER), 8, 10, BI_RGB, 40},       {sizeof(BITMAPINFOHEADER), 24, 0, BI_RGB, 0},
        {sizeof(BITMAPINFOHEADER), 32, 0, BI_BITFIELDS, 12}, {sizeof(BITMAPINFOHEADER), 8, 0xFFFFFFFF, BI_RGB, 0},
        {sizeof(BITMAPINFOHEADER) + 1, 8, 0, BI_RGB, 0}};
    Violations violations;
    bool isStub = true;
    for (const Row& row : rows) {
        BITMAPV5HEADER header = {};
        header.bV5Size = row.size;
        header.bV5Planes = 1;
        header.bV5BitCount = row.bits;
        header.bV5ClrUsed = row.used;
        header.bV5Compression = row.compression;
        const int found = CALL(s.host, PaletteSize)(&header);
        isStub = isStub && found == 0;
        violations.Collect([&] {
            Require(found == row.expected, "returned %d, expected %d, for a header of %lu bytes, %u bits, %lu colors",
                    found, row.expected, row.size, row.bits, row.used);
        });
    }
    RequireNoStub(!isStub, "PaletteSize");
    violations.Report();
}

constexpr Requirement kRows[] = {
    {"AppGetCurrentApp", "returns the application with the current drawing", HasTheCurrentDrawing},
    {"AppGetCurrentApp", "returns an application with variables, and a drawing with units", HasItsTables},
    {"AppGetINIFileName", "stores a path that fits into the buffer", StoresAPathThatFits},
    {"IsPaletteSupported", "returns what the device reports", DetectsPaletteDevices},
    {"DrawCoreLoadString", "copies the seven strings and returns their lengths", HasTheStrings},
    {"DrawCoreLoadString", "truncates a string to the size of the buffer", TruncatesStrings},
    {"DrawCoreLoadString", "returns 0 for a string that does not exist", RejectsUnknownStrings},
    {"DrawCoreNew", "returns blocks of the requested size", ReturnsBlocks},
    {"DrawCoreDispose", "accepts null", AcceptsNull},
    {"BStringNULL", "frees the string, sets the variable to null, and accepts null", ClearsTheVariable},
    {"RegenMethodRegen", "ignores an unknown method", IgnoresUnknownMethods},
    {"RegenMethodGetPropPage", "returns 0 for an unknown method", HasNoPagesForUnknownMethods},
    {"PaletteSize", "returns the number of bytes between the header and the pixels", SizesPalettes},
};

} // namespace

const Topic kApplicationRequirements = TopicOf(kRows);

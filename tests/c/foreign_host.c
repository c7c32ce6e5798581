// A host for any compiler: C99, orlo_c.h, and its own declarations of a few functions of the system.
//
//   foreign_host DATABASE.dll DRAWING.dxf
//
// The exit code is 0 if all graphics have the same pen color and the rating 7, otherwise the error.
//
// The functions of the database are looked up by name. If drawcore32.dll is the adapter, they are passed to it first.

#include <orlo_c.h>

#ifdef WITH_ADAPTER
#include <drawcore_host.h>
#else
typedef struct HWND__* HWND;
typedef void* HMODULE;
#define WINAPI __stdcall
__declspec(dllimport) HMODULE WINAPI LoadLibraryW(const wchar_t* name);
__declspec(dllimport) void* WINAPI GetProcAddress(HMODULE module, const char* name);
__declspec(dllimport) const wchar_t* WINAPI GetCommandLineW(void);
__declspec(dllimport) HWND WINAPI
    CreateWindowExA(uint32_t exStyle, const char* type, const char* title, uint32_t style, int x, int y, int cx, int cy,
                    HWND parent, void* menu, HMODULE module, void* parameter);
__declspec(dllimport) int WINAPI IsWindowEnabled(HWND window);
__declspec(dllimport) HWND WINAPI GetActiveWindow(void);
__declspec(dllimport) void WINAPI ExitProcess(unsigned int code);
#endif

int _fltused = 1; // programs with floating-point numbers refer to it; it is part of the C library, which is not linked

// The functions in a graphic's property table, as the contract defines them.
typedef struct Slots {
    void* first;
    int (*lookup)(void* graphic, const char* const* name, int count, int reserved, int32_t* number);
    int (*get)(void* graphic, int32_t number, int type, void* value);
} Slots;

typedef struct Database {
    struct DrawingStruct* (*open)(const wchar_t* path, const void* listener, char* message, int size);
    int (*makeCurrent)(struct DrawingStruct*);
    struct GraphicStruct* (*root)(struct DrawingStruct*);
    struct GraphicStruct* (*first)(struct GraphicStruct*, void* place, int flags, uint32_t filter);
    struct GraphicStruct* (*next)(struct GraphicStruct*, void* place, int flags, uint32_t filter);
    const Slots* (*slots)(struct GraphicStruct*);
} Database;

static void* Take(HMODULE module, const char* name) {
    void* found = (void*)(uintptr_t)GetProcAddress(module, name);
    if (found == 0) ExitProcess(20);
    return found;
}

static void TakeAll(HMODULE module, Database* all) {
    *(void**)&all->open = Take(module, "DrawingOpenDxf");
    *(void**)&all->makeCurrent = Take(module, "AppSetCurrentDrawing");
    *(void**)&all->root = Take(module, "DrawingGetRoot");
    *(void**)&all->first = Take(module, "GraphicFirst");
    *(void**)&all->next = Take(module, "GraphicNext");
    *(void**)&all->slots = Take(module, "GraphicGetVtbl");
}

// Returns 1 if all graphics with a pen color have the same one.
static int OneColor(const Database* database, struct GraphicStruct* set) {
    static const char* const name = kPropPenColor;
    uint32_t place, color = 0, other;
    int count = 0;
    struct GraphicStruct* graphic;
    for (graphic = database->first(set, &place, 1, kAllGraphics); graphic != 0;
         graphic = database->next(set, &place, 1, kAllGraphics)) {
        const Slots* slots = database->slots(graphic);
        int32_t number;
        if (slots == 0 || !slots->lookup(graphic, &name, 1, 0, &number) || !slots->get(graphic, number, 0x13, &other))
            continue;
        if (count++ > 0 && other != color) return 0;
        color = other;
    }
    return count > 1;
}

// Leaves the control of layers empty.
static void ORLO_CALL Fill(void* context, OrloFill* fill) {
    ++*(int*)context;
    if (fill->kind == kOrloControlLayers) fill->table = 0;
}

// The host's own data: a rating that all graphics share, and how often the sheet has set it.
typedef struct Ratings {
    double rating;
    int writes;
} Ratings;

static int32_t ORLO_CALL GetRating(void* context, struct GraphicStruct* graphic, uint32_t field, OrloValue* value) {
    (void)graphic;
    value->number = ((Ratings*)context)->rating;
    return field == 0;
}

static int32_t ORLO_CALL SetRating(void* context, struct GraphicStruct* graphic, uint32_t field,
                                   const OrloValue* value) {
    Ratings* ratings = context;
    (void)graphic;
    ratings->rating = value->number;
    ++ratings->writes;
    return field == 0;
}

static OrloPage RatingPage(const OrloField* field, Ratings* ratings) {
    OrloPage page = ORLO_INIT(OrloPage);
    page.number = 1;
    page.caption = "Rating";
    page.fields = field;
    page.fieldCount = 1;
    page.get = GetRating;
    page.set = SetRating;
    page.context = ratings;
    return page;
}

static int RunSheet(const Database* database, struct DrawingStruct* drawing) {
    struct GraphicStruct* all = database->root(drawing);
    int filled = 0;
    int32_t code = 99;
    Ratings ratings = {1, 0};
    OrloField field = ORLO_INIT(OrloField);
    const OrloPage page = RatingPage(&field, &ratings);
    OrloSheet sheet = ORLO_INIT(OrloSheet);
    HWND owner = CreateWindowExA(0, "STATIC", "Host", 0x10CF0000u, 50, 50, 400, 300, 0, 0, 0, 0);
    if (OneColor(database, all)) return 3; // OK would change nothing
    field.kind = kOrloFieldInteger;
    field.flags = kOrloFieldByCallback;
    field.label = "Ra&ting:";
    sheet.filter = kOrloAllGraphics;
    sheet.owner = owner;
    sheet.drawing = drawing;
    sheet.selection = all;
    sheet.fill = Fill;
    sheet.context = &filled;
    sheet.pages = &page;
    sheet.pageCount = 1;
    if (OrloRunSheet(&sheet, &code) != kOrloOk) return 4;
    if (code != 1) return 5;
    if (!IsWindowEnabled(owner) || GetActiveWindow() != owner) return 6;
    if (filled < 3) return 7;
    if (ratings.rating != 7 || ratings.writes < 2) return 9;
    return OneColor(database, all) ? 0 : 8;
}

// Splits the command line at blanks.
static const wchar_t* Argument(const wchar_t* line, int count, wchar_t* buffer) {
    while (count-- > 0) {
        while (*line != 0 && *line != ' ')
            ++line;
        while (*line == ' ')
            ++line;
    }
    for (count = 0; line[count] != 0 && line[count] != ' ' && count < 1023; ++count)
        buffer[count] = line[count];
    buffer[count] = 0;
    return buffer;
}

#ifdef WITH_ADAPTER
static void HandOver(HMODULE module) {
    static DrawCoreHost host; // too large for the stack, which is not probed
    const char* text = "12";
    char* end = 0;
#define TAKE(function) *(void**)&host.function = Take(module, #function);
    DRAWCORE_HOST_FUNCTIONS(TAKE)
    if (AppGetCurrentApp() != 0 || StringToDouble(0, text, &end) != 0 || end != text) ExitProcess(10);
    if (DrawCoreSetHost(&host, 0) || DrawCoreSetHost(&host, sizeof host + sizeof(void*))) ExitProcess(11);
    if (!DrawCoreSetHost(&host, sizeof(void*)) || AppGetCurrentApp() == 0) ExitProcess(12); // early version
    if (StringToDouble(0, text, &end) != 0) ExitProcess(13);
    if (!DrawCoreSetHost(&host, sizeof host) || StringToDouble(0, text, &end) != 12) ExitProcess(14);
}
#endif

void Start(void) {
    static wchar_t name[1024];
    Database database;
    struct DrawingStruct* drawing;
    HMODULE module = LoadLibraryW(Argument(GetCommandLineW(), 1, name));
    if (module == 0 || OrloGetVersion() != ORLO_VERSION) ExitProcess(1);
    TakeAll(module, &database);
#ifdef WITH_ADAPTER
    HandOver(module);
#endif
    drawing = database.open(Argument(GetCommandLineW(), 2, name), 0, 0, 0);
    if (drawing == 0 || !database.makeCurrent(drawing)) ExitProcess(2);
    ExitProcess((unsigned int)RunSheet(&database, drawing));
}

// Requirements of memory and GDI objects: if the caller frees all results, their number does not grow with the calls.

#include "picture.h"

namespace {

constexpr int kCalls = 1000;
constexpr ULONGLONG kMaxTime = 5000; // milliseconds, within the time limit of a check
constexpr int kMaxBytes = 24;        // for each call: a table can keep a pointer for each identifier that was in use

// Returns the bytes of all blocks on all heaps of the process.
size_t HeapBytes() {
    size_t bytes = 0;
    HANDLE heaps[256];
    const DWORD count = std::min<DWORD>(::GetProcessHeaps(256, heaps), 256);
    for (DWORD i = 0; i < count; ++i) {
        PROCESS_HEAP_ENTRY entry = {};
        while (::HeapWalk(heaps[i], &entry))
            if (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) bytes += entry.cbData;
    }
    return bytes;
}

// Some systems count no objects, but accept the low word of a handle.
int GdiObjects() {
    if (const DWORD counted = ::GetGuiResources(::GetCurrentProcess(), GR_GDIOBJECTS)) return static_cast<int>(counted);
    int count = 0;
    for (uintptr_t word = 1; word <= UINT16_MAX; ++word)
        count += ::GetObjectType(reinterpret_cast<HGDIOBJ>(word)) != 0;
    return count;
}

// Throws Violation if 1,000 calls, or as many as a slow database makes in a few seconds, leave memory or GDI objects
// allocated. Some calls before that fill caches.
template <class Action>
void RequireNothingLeft(Action action) {
    for (int i = 0; i < 10; ++i)
        action();
    const size_t bytes = HeapBytes();
    const int objects = GdiObjects();
    const ULONGLONG end = ::GetTickCount64() + kMaxTime;
    int calls = 0;
    for (; calls < kCalls && ::GetTickCount64() < end; ++calls)
        action();
    const int leftObjects = GdiObjects() - objects;
    const auto leftBytes = static_cast<ptrdiff_t>(HeapBytes() - bytes);
    Require(leftObjects * 2 < calls, "%d calls leaked %d GDI objects", calls, leftObjects);
    Require(leftBytes < calls * kMaxBytes, "%d calls leaked %td bytes", calls, leftBytes);
}

void FreesStrings(const Subject& s) {
    const auto graphic = s.NewSquare(1);
    const char* name = kPropInfo;
    const PropertyTable* table = CALL(s.host, GraphicGetVtbl)(graphic.get());
    int32_t number = 0;
    if (!table->PropLookup(graphic.get(), &name, 1, 0, &number)) return;
    Require(table->PropSet(graphic.get(), number, VT_BSTR, "a text that is long enough to need a block"),
            "PropSet rejects a text");
    RequireNothingLeft([&] {
        char* text = nullptr;
        table->PropGet(graphic.get(), number, VT_BSTR, &text);
        table->PropGet(graphic.get(), number, VT_BSTR, &text); // replaces the first string
        CALL(s.host, BStringNULL)(&text);
    });
}

void FreesGraphics(const Subject& s) {
    RequireNothingLeft([&] {
        const auto group = s.NewSquare(1);
        CALL(s.host, GraphicAdd)(group.get(), s.NewSquare(1).release());
    });
}

void FreesCopies(const Subject& s) {
    const auto square = s.NewSquare(1);
    RequireNothingLeft([&] {
        const Owned<GraphicStruct> copy(CALL(s.host, GraphicCopyEx)(square.get(), 0, 0, 7), square.get_deleter());
        RequireNoStub(copy != nullptr, "GraphicCopyEx");
    });
}

void FreesBlocks(const Subject& s) {
    TableStruct* blocks = CALL(s.host, BlocksFromDrawing)(s.Drawing());
    RequireNoStub(blocks, "BlocksFromDrawing");
    RequireNothingLeft([&] {
        auto square = s.NewSquare(1);
        const uint16_t id = CALL(s.host, BlocksAddBlock)(blocks, "$HOSTCHECK", square.get());
        RequireNoStub(id != 0, "BlocksAddBlock");
        square.release();
        CALL(s.host, BlockDispose)(blocks, id);
    });
}

void FreesTemporaries(const Subject& s) {
    RequireNothingLeft([&] { s.NewVertex(1, 2, 3); });
}

void FreesMatrices(const Subject& s) {
    const auto by = s.NewVertex(1, 2, 3);
    RequireNothingLeft([&] { s.Own(CALL(s.host, MatrixOffset)(nullptr, by.get()), "MatrixOffset"); });
}

void FreesViewports(const Subject& s) {
    RequireNothingLeft([&] { s.NewViewport(); });
}

void FreesWhatItDrawsWith(const Subject& s) {
    const auto square = s.NewSquare(10), text = s.NewGraphic(kGraphicText);
    CALL(s.host, GraphicSetBrushStyle)(square.get(), 1);
    CALL(s.host, GraphicAttach)(text.get(), s.Drawing());
    CALL(s.host, TextSetVWHAEx)(text.get(), s.NewVertex(1, 1, 0).get(), 0, 3, 0, "text");
    Scene scene(s);
    RequireNothingLeft([&] { scene.Draw(square.get()).Draw(text.get()); });
}

constexpr Requirement kRows[] = {
    {"GraphicGetVtbl", "PropGet and BStringNULL leak no strings in 1,000 calls", FreesStrings},
    {"GraphicDispose", "leaks no members or vertices in 1,000 calls", FreesGraphics},
    {"GraphicCopyEx", "returns copies that GraphicDispose frees completely, in 1,000 calls", FreesCopies},
    {"BlockDispose", "leaks no contents in 1,000 calls", FreesBlocks},
    {"VertexDispose", "leaks no memory in 1,000 calls", FreesTemporaries},
    {"MatrixDispose", "leaks no memory in 1,000 calls", FreesMatrices},
    {"ViewportDispose", "leaks no memory in 1,000 calls", FreesViewports},
    {"GraphicDrawEx2", "leaks no memory or GDI objects in 1,000 calls", FreesWhatItDrawsWith},
};

} // namespace

const Topic kLeakRequirements = TopicOf(kRows);

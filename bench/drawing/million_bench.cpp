// A drawing of a million entities in the viewer: frames during movement, a change of all graphics and its undo, memory.
//
// The baseline of a frame is copying a bitmap of the view's size in memory, which every frame requires.

#include "bench/drawing/drawing_bench.h"

#include <afxwin.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

#include "bench/paired_timer.h"
#include "demo/automation/sheet_pages.h"
#include "demo/tour/page_edits.h"
#include "demo/viewer/file_name.h"
#include "demo/viewer/main_frame.h"
#include "demo/viewer/memory_picture.h"
#include "demo/viewer/resource.h"
#include "drawcore/view.h"
#include "orlo/entry/entry.h"
#include "orlo/host/property.h"
#include "orlo/host/walk.h"

namespace {

namespace fs = std::filesystem;

constexpr int kSide = 1000; // number of entities along each side of the square that they cover
constexpr int kEntities = kSide * kSide;
constexpr int kRounds = 3;

void WriteEntity(FILE* file, int number) {
    const int x = number % kSide * 10, y = number / kSide * 10, layer = number % 7;
    const auto begin = [&](const char* kind) {
        std::fprintf(file, "  0\n%s\n  8\nL%d\n 62\n%d\n 10\n%d.25\n 20\n%d.5\n", kind, layer, number % 6 + 1, x, y);
    };
    switch (number % 10) {
    case 0:
        begin("CIRCLE");
        std::fputs(" 40\n4.0\n", file);
        break;
    case 1:
        begin("TEXT");
        std::fprintf(file, " 40\n2.5\n  1\nT%d\n", number % 1000);
        break;
    case 2:
        begin("INSERT");
        std::fprintf(file, "  2\nMark\n 50\n%d.0\n", number % 360);
        break;
    default:
        begin("LINE");
        std::fprintf(file, " 11\n%d.75\n 21\n%d.0\n", x + 5 + number % 30, y + number % 17);
    }
}

// Seven of ten are lines, the others circles, texts and insertions.
void WriteDrawing(const fs::path& path) {
    FILE* file = ::_wfopen(path.c_str(), L"wb");
    std::fputs("  0\nSECTION\n  2\nHEADER\n  9\n$ACADVER\n  1\nAC1009\n  0\nENDSEC\n"
               "  0\nSECTION\n  2\nBLOCKS\n  0\nBLOCK\n  8\n0\n  2\nMark\n 70\n0\n 10\n0.0\n 20\n0.0\n"
               "  0\nLINE\n  8\n0\n 10\n-3.0\n 20\n0.0\n 11\n3.0\n 21\n0.0\n"
               "  0\nLINE\n  8\n0\n 10\n0.0\n 20\n-3.0\n 11\n0.0\n 21\n3.0\n"
               "  0\nENDBLK\n  0\nENDSEC\n  0\nSECTION\n  2\nENTITIES\n",
               file);
    for (int i = 0; i < kEntities; ++i)
        WriteEntity(file, i);
    std::fputs("  0\nENDSEC\n  0\nEOF\n", file);
    std::fclose(file);
}

// Returns the bytes of all blocks in all heaps, including the overhead of each block.
double HeapBytes() {
    double bytes = 0;
    HANDLE heaps[64];
    const DWORD count = ::GetProcessHeaps(64, heaps);
    for (DWORD i = 0; i < count && i < 64; ++i) {
        PROCESS_HEAP_ENTRY entry{};
        while (::HeapWalk(heaps[i], &entry))
            if (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) bytes += entry.cbData + entry.cbOverhead;
    }
    return bytes;
}

// The viewer with the drawing.
class MillionViewer {
public:
    MillionViewer() : m_path(fs::temp_directory_path() / "bench_mixed.dxf"), m_frame(new CMainFrame) {
        WriteDrawing(m_path);
        ::PropPageInit();
        m_frame->Create();
        AfxGetThread()->m_pMainWnd = m_frame;
        m_frame->ShowWindow(SW_SHOW);
        const double before = HeapBytes();
        m_frame->Show(Document::Open(Utf8(m_path.c_str()), [](int) { return true; }));
        Paint();
        ::ViewportPick(View().GetCamera().Viewport(), Drawing().Root(), {0, 0}, 1,
                       kAllGraphics); // creates the index
        m_bytes = HeapBytes() - before - TextBytes();
    }
    ~MillionViewer() {
        m_frame->DestroyWindow();
        AfxGetThread()->m_pMainWnd = nullptr;
        fs::remove(m_path);
    }

    CMainFrame& Frame() { return *m_frame; }
    CDrawingView& View() { return m_frame->View(); }
    Document& Drawing() { return *m_frame->GetDocument(); }
    double Bytes() const { return m_bytes; } // of the drawing and all views of it, without the text of its file

    // of the file's text, which is kept for saving
    double TextBytes() const { return static_cast<double>(fs::file_size(m_path)); }

    void Paint() { ::UpdateWindow(View().m_hWnd); }

private:
    const fs::path m_path;
    CMainFrame* const m_frame; // deleted with its window
    double m_bytes = 0;
};

// Copies a bitmap of the view's size.
class Copy {
public:
    explicit Copy(CWnd& view) {
        CRect client;
        view.GetClientRect(client);
        m_from.Resize(client.Size());
        m_to.Resize(client.Size());
        m_from.Fill(client, RGB(40, 40, 40));
    }
    void operator()() { m_to.CopyFrom(m_from.Dc(), m_to.Bounds()); }

private:
    MemoryPicture m_from, m_to;
};

// Measures the frames of steps in alternating directions.
template <class Forward, class Backward>
void PrintFrames(const char* name, MillionViewer& viewer, Copy& copy, Forward forward, Backward backward) {
    constexpr int kRepetitions = 4;
    const auto frames = [&] {
        for (int i = 0; i < kRepetitions; ++i) {
            forward();
            viewer.Paint();
            backward();
            viewer.Paint();
        }
    };
    const Pair pair = Compare(kRounds, frames, [&] {
        for (int i = 0; i < 2 * kRepetitions; ++i)
            copy();
    });
    Print(name, pair.ratio, "x_copy_of_the_picture");
    Print((std::string(name) + "_frame").c_str(), pair.seconds / (2 * kRepetitions) * 1000, "ms");
}

void BenchFrames(MillionViewer& viewer) {
    CDrawingView& view = viewer.View();
    Copy copy(view);
    const auto pan = [&](const char* name) {
        PrintFrames(
            name, viewer, copy, [&] { view.Pan(CSize(37, -23)); }, [&] { view.Pan(CSize(-37, 23)); });
    };
    pan("view_pan_all_1000000");
    PrintFrames(
        "view_zoom_all_1000000", viewer, copy, [&] { view.ZoomIn(); }, [&] { view.ZoomOut(); });
    PrintFrames(
        "view_draw_all_1000000", viewer, copy, [&] { view.Redraw(); }, [&] { view.Redraw(); });
    for (int i = 0; i < 16; ++i)
        view.ZoomIn();
    PrintFrames(
        "view_draw_part_1000000", viewer, copy, [&] { view.Redraw(); }, [&] { view.Redraw(); });
    pan("view_pan_part_1000000");
    view.FitAll();
    viewer.Paint();
}

void SetAll(GraphicStruct* set, uint32_t color) {
    for (GraphicStruct* graphic : orlo::host::Members(set))
        orlo::host::WriteProperty(graphic, kPropPenColor, color);
}

void PrintSeconds(const char* name, const Pair& pair) {
    Print(name, pair.ratio, "x_bare_host_calls");
    Print((std::string(name) + "_time").c_str(), pair.seconds, "s");
}

// Changes one property of all graphics as an undo step, and undoes it, each against a plain loop; also measures the
// time until the window shows the change.
void BenchChange(MillionViewer& viewer) {
    Document& drawing = viewer.Drawing();
    uint32_t color = 0;
    const auto bare = [&] { SetAll(drawing.Root(), ++color); };
    PrintSeconds("write_undoable_1000000", Compare(
                                               kRounds, [&] { drawing.Change(bare); }, bare));
    PrintSeconds("undo_1000000", Compare(
                                     kRounds, [&] { drawing.Undo(); }, bare));
    PrintSeconds("redo_1000000", Compare(
                                     kRounds, [&] { drawing.Redo(); }, bare));
    const auto undo = [&] {
        ::SendMessageA(viewer.Frame().m_hWnd, WM_COMMAND, ID_EDIT_UNDO, 0);
        viewer.Paint();
    };
    PrintSeconds("view_undo_1000000", Compare(kRounds, undo, bare));
}

// Measures how long the user waits after changing the color of all graphics on the Pen page and going to another page:
// the value is written, the next page is loaded, and the view is drawn.
double SecondsOfPageChange(MillionViewer& viewer) {
    UserInput user(0);
    double seconds = 0;
    const auto open = [&] { ::SendMessageA(viewer.Frame().m_hWnd, WM_COMMAND, ID_EDIT_PROPERTIES, 0); };
    user.InDialog(open, [&](HWND sheet) {
        const std::vector<std::string> titles = PageTitles(sheet);
        const PageEdit* edit = FindPageEdit("Pen");
        ClickTab(user, sheet, static_cast<int>(std::find(titles.begin(), titles.end(), "Pen") - titles.begin()));
        edit->edit(user, ActivePageOf(sheet));
        seconds = Seconds([&] {
            ClickTab(user, sheet, 0);
            viewer.Paint();
        });
        ::SendMessageA(sheet, WM_COMMAND, IDCANCEL, 0);
    });
    return seconds;
}

void BenchPageChange(MillionViewer& viewer) {
    viewer.View().SelectAll();
    std::vector<double> ratios, seconds;
    for (uint32_t round = 1; round <= kRounds; ++round) {
        seconds.push_back(SecondsOfPageChange(viewer));
        ratios.push_back(seconds.back() / Seconds([&] { SetAll(viewer.Drawing().Root(), round); }));
    }
    Print("view_page_change_1000000", Median(ratios), "x_bare_host_calls");
    Print("view_page_change_1000000_time", Median(seconds), "s");
}

} // namespace

void BenchMillion() {
    MillionViewer viewer;
    Print("drawing_bytes_1000000", viewer.Bytes() / kEntities, "bytes_an_entity");
    Print("drawing_text_1000000", viewer.TextBytes() / kEntities, "bytes_an_entity");
    BenchFrames(viewer);
    BenchChange(viewer);
    BenchPageChange(viewer);
}

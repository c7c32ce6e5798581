// Opening the sheet, showing its Pen page and closing it, against the system's property sheet with the same number of
// pages and controls.

#include "bench/sheet/sheet_bench.h"

#include <string>

#include "bench/paired_timer.h"
#include "bench/sheet/open_sheet.h"
#include "bench/sheet/selected_drawing.h"
#include "orlo/entry/entry.h"
#include "support/host_frame.h"

namespace {

constexpr int kRounds = 15;
constexpr int kPages = 3; // General, Pen, Brush

Pair OpenOver(int n) {
    const UniformDrawing drawing(n, kGraphicVertices);
    HostFrame frame(drawing.Drawing());
    LoopWatch watch;
    ::PropPageInit();
    const auto ours = [&] {
        const auto sheet = NewSheet(&frame, drawing.Drawing(), drawing.Selection());
        RunSheet(watch, *sheet, [&](HWND window) {
            PaintSheet(window);
            sheet->SetActivePage(1);
            PaintSheet(window);
        });
    };
    const auto systems = [&] {
        RunSystemSheet(watch, kPages, [](HWND window) {
            PaintSheet(window);
            ShowSystemPage(window, 1);
            PaintSheet(window);
        });
    };
    return Compare(n > 10000 ? 3 : kRounds, ours, systems);
}

} // namespace

void BenchOpen() {
    double before = 0;
    for (const int n : {1, 1000, 10000, 100000}) {
        const Pair pair = OpenOver(n);
        Print(("open_sheet_" + std::to_string(n)).c_str(), pair.ratio, "x_system_property_sheet");
        if (n > 1000) Print(("open_sheet_growth_to_" + std::to_string(n)).c_str(), pair.seconds / before, "x_for_10n");
        before = pair.seconds;
    }
}

// Opening and closing the sheet through the C interface, against the C++ classes.

#include "bench/sheet/sheet_bench.h"

#include <orlo_c.h>

#include "bench/paired_timer.h"
#include "bench/sheet/open_sheet.h"
#include "orlo/entry/entry.h"
#include "support/graphic_kit.h"
#include "support/host_frame.h"

void BenchC() {
    constexpr int kRounds = 15;
    GraphicKit kit;
    HostFrame frame(kit.Drawing());
    kit.Add({{kPropPenWidth, 0.1}, {kPropPenColor, 255}, {kPropPenScale, 1.0}});
    LoopWatch watch;
    ::PropPageInit();
    const auto act = [](HWND window) {
        PaintSheet(window);
        ::SendMessageA(window, WM_COMMAND, IDCANCEL, 0);
    };
    const auto byC = [&] {
        OrloSheet sheet = {};
        sheet.size = sizeof sheet;
        sheet.filter = kAllGraphics;
        sheet.owner = frame.m_hWnd;
        sheet.drawing = kit.Drawing();
        sheet.selection = kit.Selection();
        int32_t code;
        watch.Await(act);
        OrloRunSheet(&sheet, &code);
    };
    const auto byClasses = [&] {
        const auto sheet = NewSheet(&frame, kit.Drawing(), kit.Selection());
        watch.Await(act);
        sheet->DoModal();
    };
    Print("c_open_sheet_1", Compare(kRounds, byC, byClasses).ratio, "x_by_classes");
}

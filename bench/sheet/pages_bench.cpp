// The sheet with all five pages for real graphics of every kind, against the system's property sheet with the same
// templates: opening it, changing pages, and many pages against few.

#include "bench/sheet/sheet_bench.h"

#include <string>

#include "bench/paired_timer.h"
#include "bench/sheet/mixed_drawing.h"
#include "bench/sheet/open_sheet.h"
#include "orlo/entry/entry.h"
#include "support/host_frame.h"
#include "support/test_sheet.h"

namespace {

constexpr int kRounds = 15;
constexpr int kPages = 5;
constexpr int kManyPages = 20;

struct Results {
    Pair open, change;
};

// Shows and paints each page once.
template <class Show>
void WalkPages(HWND window, Show show) {
    for (int page = 0; page < kPages; ++page) {
        show(page);
        PaintSheet(window);
    }
}

Pair ComparePageChanges(LoopWatch& watch, const MixedDrawing& drawing, HostFrame& frame, int rounds) {
    const auto sheet = NewSheet(&frame, drawing.Drawing(), drawing.Selection());
    Pair result{};
    RunSheet(watch, *sheet, [&](HWND ours) {
        LoopWatch inner;
        RunSystemSheet(inner, kPages, [&](HWND systems) {
            result = Compare(
                rounds, [&] { WalkPages(ours, [&](int page) { sheet->SetActivePage(page); }); },
                [&] { WalkPages(systems, [&](int page) { ShowSystemPage(systems, page); }); });
        });
    });
    return result;
}

Results Measure(int n) {
    const MixedDrawing drawing(n);
    HostFrame frame(drawing.Drawing());
    LoopWatch watch;
    const int rounds = n > 10000 ? 3 : kRounds;
    Results results{};
    results.open = Compare(
        rounds,
        [&] {
            const auto sheet = NewSheet(&frame, drawing.Drawing(), drawing.Selection());
            RunSheet(watch, *sheet, PaintSheet);
        },
        [&] { RunSystemSheet(watch, kPages, PaintSheet); });
    results.change = ComparePageChanges(watch, drawing, frame, rounds);
    return results;
}

double ManySystemPages() {
    LoopWatch watch;
    return Compare(
               kRounds, [&] { RunSystemSheet(watch, kManyPages, PaintSheet); },
               [&] { RunSystemSheet(watch, kPages, PaintSheet); })
        .ratio;
}

// Pages that are never shown should cost almost nothing.
double ManyPages() {
    const MixedDrawing drawing(3);
    HostFrame frame(drawing.Drawing());
    LoopWatch watch;
    const auto open = [&](int pages) {
        const auto sheet = NewSheet(&frame, drawing.Drawing(), drawing.Selection());
        while (sheet->GetPageCount() < pages)
            sheet->AddPage(new ExchangePage([](CDataExchange*) {}));
        RunSheet(watch, *sheet, PaintSheet);
    };
    return Compare(
               kRounds, [&] { open(kManyPages); }, [&] { open(kPages); })
        .ratio;
}

} // namespace

void BenchPages() {
    ::PropPageInit();
    Results before{};
    for (const int n : {3, 1000, 10000, 100000}) { // 3: one of each kind
        const Results results = Measure(n);
        const std::string number = std::to_string(n);
        Print(("open_five_pages_" + number).c_str(), results.open.ratio, "x_system_property_sheet");
        Print(("change_five_pages_" + number).c_str(), results.change.ratio, "x_system_property_sheet");
        if (n > 1000) {
            Print(("open_five_pages_growth_to_" + number).c_str(), results.open.seconds / before.open.seconds,
                  "x_for_10n");
            Print(("change_five_pages_growth_to_" + number).c_str(), results.change.seconds / before.change.seconds,
                  "x_for_10n");
        }
        before = results;
    }
    Print("open_twenty_pages", ManyPages(), "x_five_pages");
    Print("open_twenty_pages_baseline", ManySystemPages(), "x_five_pages_of_the_system");
}

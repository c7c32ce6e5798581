// Merging the parts of many insertions on the Block Insertion page, against a plain loop with the same host calls.

#include "bench/sheet/sheet_bench.h"

#include <memory>

#include "bench/paired_timer.h"
#include "bench/sheet/selected_drawing.h"
#include "orlo/entry/entry.h"
#include "orlo/frame/graphic_property_page.h"
#include "orlo/frame/graphic_property_sheet.h"
#include "orlo/host/host.h"
#include "orlo/pages/insert_parts.h" // not exported; compiled in to measure it without the page
#include "orlo/resources/resource.h"
#include "support/sheet_driver.h"

namespace {

constexpr int kRounds = 5;

// Insertions in the drawing plane, or rotated out of it.
class Insertions : public SelectedDrawing {
public:
    Insertions(int n, bool plane) {
        using orlo::host::OwnedMatrix;
        TableStruct* blocks = ::BlocksFromDrawing(Drawing());
        const uint16_t block = ::BlocksAddBlock(blocks, "FLAG", ::GraphicNewEx(kGraphicVertices, 0, 1));
        const OwnedMatrix about(plane ? nullptr : ::MatrixRotateX(nullptr, 0.3, 0));
        for (int i = 0; i < n; ++i) {
            const OwnedMatrix matrix(::MatrixRotateZ(about.get(), i % 7 * 0.1, 0));
            GraphicStruct* insertion = ::GraphicNewEx(kGraphicInsert, 0, 1);
            ::InsertSetData(insertion, blocks, block, matrix.get());
            Add(insertion);
        }
    }
};

// Makes only the host calls of a merge.
double BareLoop(GraphicStruct* set) {
    double sum = 0;
    for (GraphicStruct* graphic : orlo::host::Members(set)) {
        int cookie = 0;
        VertexStruct* vertex = ::GraphicVertexFirst(graphic, &cookie, 0, 0xFFFF);
        for (int i = 1; i < 4; ++i) {
            sum += vertex->x + vertex->y + vertex->z;
            vertex = ::GraphicVertexNext(graphic, &cookie, 0, 0xFFFF);
        }
        sum += vertex->x;
    }
    return sum;
}

// Also computes the parts of every insertion.
double PartsLoop(GraphicStruct* set) {
    double sum = 0;
    for (GraphicStruct* graphic : orlo::host::Members(set)) {
        InsertParts parts{};
        ::InsertGetParts(graphic, &parts);
        sum += parts.rotation[2];
    }
    return sum;
}

struct Merge {
    Pair calls, parts; // against each of the loops
};

Merge MeasureMerge(int n, bool plane) {
    const Insertions insertions(n, plane);
    ::PropPageInit();
    const std::unique_ptr<CGraphicPropertySheet> sheet(
        ::InitGraphicPropertySheet(nullptr, nullptr, insertions.Drawing(), insertions.Selection(), kAllGraphics));
    uint32_t position;
    ::AddGraphicPropertyPage(nullptr, ::GraphicFirst(insertions.Selection(), &position, 1, kAllGraphics), sheet.get());
    Merge merge{};
    SheetDriver().Run(*sheet, [&](SheetDriver& user) {
        user.SelectPage(1);
        CPropertyPage* page = sheet->FindPage(IDD_INSERT_PAGE);
        volatile double sink = 0;
        const auto load = [&] { page->UpdateData(FALSE); };
        merge.calls = Compare(kRounds, load, [&] { sink = BareLoop(insertions.Selection()); });
        merge.parts = Compare(kRounds, load, [&] { sink = PartsLoop(insertions.Selection()); });
    });
    return merge;
}

} // namespace

void BenchInsert() {
    const Merge small = MeasureMerge(100000, true), plane = MeasureMerge(1000000, true),
                solid = MeasureMerge(1000000, false);
    Print("merge_insertions_1000000", plane.parts.ratio, "x_bare_host_calls_and_taking_apart");
    Print("merge_insertions_turned_anyhow_1000000", solid.parts.ratio, "x_bare_host_calls_and_taking_apart");
    Print("merge_insertions_calls_1000000", plane.calls.ratio, "x_bare_host_calls");
    PrintGrowth("merge_insertions", small.calls, plane.calls);
}

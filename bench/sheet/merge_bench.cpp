// Merging and writing one property of many graphics, against a plain loop with the same host calls.

#include "bench/sheet/sheet_bench.h"

#include <memory>
#include <string>

#include <oaidl.h>

#include "bench/paired_timer.h"
#include "bench/sheet/selected_drawing.h"
#include "orlo/entry/entry.h"
#include "orlo/host/memory.h"
#include "orlo/host/walk.h"
#include "support/test_sheet.h"

namespace {

constexpr int kRounds = 5;

// Makes only the host calls of a merge or a write.
template <class Visit>
void BareLoop(GraphicStruct* set, const char* name, Visit visit) {
    for (GraphicStruct* graphic : orlo::host::Members(set)) {
        int32_t number;
        const PropertyTable* table = ::GraphicGetVtbl(graphic);
        if (table != nullptr && table->PropLookup(graphic, &name, 1, 0, &number)) visit(graphic, table, number);
    }
}

void BareGet(GraphicStruct* set, const char* name) {
    double sum = 0;
    BareLoop(set, name, [&](GraphicStruct* graphic, const PropertyTable* table, int32_t number) {
        double value = 0;
        table->PropGet(graphic, number, VT_R8, &value);
        sum += value;
    });
}

void BareGetText(GraphicStruct* set, const char* name) {
    char* text = nullptr;
    BareLoop(set, name, [&](GraphicStruct* graphic, const PropertyTable* table, int32_t number) {
        table->PropGet(graphic, number, VT_BSTR, &text);
    });
    ::BStringNULL(&text);
}

struct Results {
    Pair number, text, writeNumber, writeText;
    double mixed; // seconds of a merge that ends at the second graphic
};

Results Measure(CGraphicPropertyPage& page, GraphicStruct* selection) {
    Results results{};
    double width = 0.5;
    CString info("a text of usual length");
    results.writeNumber = Compare(
        kRounds, [&] { page.SetPropText(kPropPenWidth, width, 0); },
        [&] {
            BareLoop(selection, kPropPenWidth, [&](GraphicStruct* graphic, const PropertyTable* table, int32_t number) {
                table->PropSet(graphic, number, VT_R8, &width);
            });
        });
    results.writeText = Compare(
        kRounds, [&] { page.SetPropText(kPropInfo, info, 0); },
        [&] {
            BareLoop(selection, kPropInfo, [&](GraphicStruct* graphic, const PropertyTable* table, int32_t number) {
                table->PropSet(graphic, number, VT_BSTR, static_cast<const char*>(info));
            });
        });
    results.number = Compare(
        kRounds, [&] { page.GetPropText(kPropPenWidth, &width, 0); }, [&] { BareGet(selection, kPropPenWidth); });
    results.text = Compare(
        kRounds, [&] { page.GetPropText(kPropInfo, &info, 0); }, [&] { BareGetText(selection, kPropInfo); });

    uint32_t position;
    ::GraphicFirst(selection, &position, 1, kAllGraphics);
    GraphicStruct* second = ::GraphicNext(selection, &position, 1, kAllGraphics);
    const PropertyTable* table = ::GraphicGetVtbl(second);
    const char* name = kPropPenWidth;
    int32_t number;
    const double other = 7;
    if (table->PropLookup(second, &name, 1, 0, &number)) table->PropSet(second, number, VT_R8, &other);
    results.mixed = Seconds([&] { page.GetPropText(kPropPenWidth, &width, 0); });
    return results;
}

// Merges the bits for effects and styles of texts.
Pair MeasureBits(CGraphicPropertyPage& page, GraphicStruct* selection) {
    unsigned short bits[2] = {};
    return Compare(
        kRounds, [&] { page.GetPropBits(kPropTextStyle, bits, 0); },
        [&] {
            unsigned all = 0;
            BareLoop(selection, kPropTextStyle,
                     [&](GraphicStruct* graphic, const PropertyTable* table, int32_t number) {
                         uint16_t value = 0;
                         table->PropGet(graphic, number, VT_UI2, &value);
                         all |= value;
                     });
            bits[1] = static_cast<unsigned short>(all);
        });
}

// Measures in a sheet for n graphics of that type.
template <class Measuring>
auto MeasureSheet(int n, int type, Measuring measure) {
    const UniformDrawing drawing(n, type);
    ::PropPageInit();
    const std::unique_ptr<CGraphicPropertySheet> sheet(
        ::InitGraphicPropertySheet(nullptr, nullptr, drawing.Drawing(), drawing.Selection(), kAllGraphics));
    auto* page = new ExchangePage([](CDataExchange*) {});
    sheet->AddPage(page);
    decltype(measure(*page, drawing.Selection())) results{};
    SheetDriver().Run(*sheet, [&](SheetDriver& user) {
        user.SelectPage(1);
        results = measure(*page, drawing.Selection());
    });
    return results;
}

} // namespace

void BenchMerge() {
    const Results small = MeasureSheet(100000, kGraphicVertices, Measure);
    const Results large = MeasureSheet(1000000, kGraphicVertices, Measure);
    Print("merge_number_1000000", large.number.ratio, "x_bare_host_calls");
    PrintGrowth("merge_number", small.number, large.number);
    Print("merge_text_1000000", large.text.ratio, "x_bare_host_calls");
    PrintGrowth("merge_text", small.text, large.text);
    Print("merge_mixed_at_second_1000000", large.mixed / large.number.seconds, "x_merge_of_equal_values");
    Print("write_number_1000000", large.writeNumber.ratio, "x_bare_host_calls");
    PrintGrowth("write_number", small.writeNumber, large.writeNumber);
    Print("write_text_1000000", large.writeText.ratio, "x_bare_host_calls");
    PrintGrowth("write_text", small.writeText, large.writeText);

    const Pair fewTexts = MeasureSheet(100000, kGraphicText, MeasureBits);
    const Pair texts = MeasureSheet(1000000, kGraphicText, MeasureBits);
    Print("merge_text_style_1000000", texts.ratio, "x_bare_host_calls");
    PrintGrowth("merge_text_style", fewTexts, texts);
}

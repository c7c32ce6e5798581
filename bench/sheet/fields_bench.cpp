// A page from a table against a page of a dialog template with the same controls and exchange functions, and scrolling
// a page of many rows.

#include "bench/sheet/sheet_bench.h"

#include <array>
#include <map>
#include <string>

#include "bench/paired_timer.h"
#include "bench/sheet/open_sheet.h"
#include "orlo/entry/entry.h"
#include "orlo/exchange/ddp.h"
#include "orlo/exchange/ddx_text.h"
#include "orlo/pages/field_page.h"
#include "support/graphic_kit.h"
#include "support/host_frame.h"

namespace {

constexpr int kRounds = 31;
constexpr unsigned kPage = 605; // in system_pages.rc, with a label and an edit field for each row
constexpr int kRows = 30, kManyRows = 200;
constexpr int kFirstField = 101; // in the template

std::string PropertyOf(int row) {
    return "P" + std::to_string(row);
}

class TemplatePage : public CGraphicPropertyPage {
public:
    TemplatePage() : CGraphicPropertyPage(kPage, 0) {
        m_bFitControls = 1;
        for (int row = 0; row < kRows; ++row)
            m_names[static_cast<size_t>(row)] = PropertyOf(row);
    }
    void DoDataExchange(CDataExchange* pDX) override {
        CGraphicPropertyPage::DoDataExchange(pDX);
        for (size_t row = 0; row < kRows; ++row) {
            const int id = kFirstField + static_cast<int>(row);
            DDP_Text(pDX, id, m_texts[row], m_names[row].c_str());
            DDX_Text(1, pDX, id, m_texts[row]);
        }
        DDP_PostProcessing(pDX);
    }

private:
    std::array<std::string, kRows> m_names;
    std::array<CString, kRows> m_texts;
};

CPropertyPage* AddTable(CGraphicPropertySheet& sheet, int rows) {
    FieldTable table;
    table.caption = "Table";
    for (int row = 0; row < rows; ++row)
        table.rows.emplace_back(FieldKind::Text, "Row " + std::to_string(row) + ":", PropertyOf(row));
    return ::AddFieldPage(&sheet, kPage, std::move(table));
}

class Sheets {
public:
    Sheets() : m_frame(m_kit.Drawing()) {
        std::map<std::string, KitValue> values;
        for (int row = 0; row < kManyRows; ++row)
            values[PropertyOf(row)] = "value";
        m_kit.Add(values);
    }
    // Opens the sheet on the page that `add` adds.
    template <class Add>
    void Run(Add add, const std::function<void(HWND sheet)>& act) {
        const auto sheet = NewSheet(&m_frame, m_kit.Drawing(), m_kit.Selection());
        sheet->SetActivePage(add(*sheet));
        RunSheet(m_watch, *sheet, act);
    }

private:
    GraphicKit m_kit;
    HostFrame m_frame;
    LoopWatch m_watch;
};

// Returns the milliseconds for one notch of the wheel, with painting.
double ScrollTime(Sheets& sheets) {
    double time = 0;
    sheets.Run([](CGraphicPropertySheet& sheet) { return AddTable(sheet, kManyRows); },
               [&](HWND window) {
                   PaintSheet(window);
                   const HWND page = ::GetParent(::GetFocus());
                   constexpr int kSteps = 40;
                   time = 1000 / kSteps * Seconds([&] {
                              for (int i = 0; i < kSteps; ++i) {
                                  const int delta = i < kSteps / 2 ? -WHEEL_DELTA : WHEEL_DELTA;
                                  ::SendMessageA(page, WM_MOUSEWHEEL, MAKEWPARAM(0, delta), 0);
                                  PaintSheet(window);
                              }
                          });
               });
    return time;
}

} // namespace

void BenchFields() {
    ::PropPageInit();
    Sheets sheets;
    const auto table = [](CGraphicPropertySheet& sheet) { return AddTable(sheet, kRows); };
    const auto fromTemplate = [](CGraphicPropertySheet& sheet) {
        auto* page = new TemplatePage;
        sheet.AddPage(page);
        return page;
    };
    const Pair open = Compare(
        kRounds, [&] { sheets.Run(table, PaintSheet); }, [&] { sheets.Run(fromTemplate, PaintSheet); });
    Print("open_page_of_30_rows", open.ratio, "x_page_of_a_template");
    Print("scroll_page_of_200_rows_time", ScrollTime(sheets), "ms");
}

// Lengths and angles in fields, with the conversions of a real drawing.

#include "exchange_dialog.h"

#include <cmath>
#include <functional>

#include <drawcore/units.h>

#include "orlo/exchange/ddx_unit_text.h"
#include "support/test_drawing.h"

namespace {

class UnitText : public ExchangeDialog {
protected:
    UnitText() {
        TableSetStringVar(m_drawing.Get()->pUnits, kUnitDrawing, "in");
        TableSetIntVar(m_drawing.Get()->pUnits, kUnitLinearSystem, 4);
    }

    // Returns the result of saving the text silently, and the value of the variable afterward.
    template <class Exchange>
    int Save(const char* text, Exchange exchange) {
        SetText(IDC_EDIT, text);
        m_value = 7.0;
        return exchange(0, &m_save, IDC_EDIT, m_value);
    }
    template <class Exchange>
    std::string Load(double value, Exchange exchange, int id = IDC_EDIT) {
        SetText(id, "old");
        m_value = value;
        m_result = exchange(0, &m_load, static_cast<unsigned>(id), m_value);
        return Text(id);
    }

    TestDrawing m_drawing;
    double m_value = 0.0;
    int m_result = 0;
};

// A common signature for all functions.
using Exchange = std::function<int(int, CDataExchange*, unsigned, double&)>;

Exchange Linear(DrawingStruct* d, int bBlank = 0, double dDefault = 3.0) {
    return [=](int r, CDataExchange* x, unsigned c, double& v) {
        return DDX_TextLinear(r, x, c, v, d, dDefault, 0, bBlank);
    };
}
Exchange Paper(DrawingStruct* d, int bBlank = 0) {
    return [=](int r, CDataExchange* x, unsigned c, double& v) { return DDX_TextPaper(r, x, c, v, d, bBlank); };
}
Exchange PaperMM(DrawingStruct* d, int bBlank = 0) {
    return [=](int r, CDataExchange* x, unsigned c, double& v) { return DDX_TextPaperMM(r, x, c, v, d, bBlank); };
}
Exchange PaperWorld(DrawingStruct* d, double scale, int bBlank = 0) {
    return [=](int r, CDataExchange* x, unsigned c, double& v) {
        return DDX_TextPaperWorld(r, x, c, v, d, scale, bBlank);
    };
}
Exchange Angular(DrawingStruct* d, int bBlank = 0) {
    return [=](int r, CDataExchange* x, unsigned c, double& v) { return DDX_TextAngular(r, x, c, v, d, bBlank); };
}

TEST_F(UnitText, ShowsAndSavesValuesInTheirUnits) {
    DrawingStruct* const d = m_drawing.Get();
    const struct {
        Exchange exchange;
        double value;
        const char* text;
    } kRows[] = {{Linear(d), -18.5, "-1'-6 1/2\""},    {Paper(d), 25.4, "25.4 mm"},
                 {PaperMM(d), 0.35, "0.35 mm"},        {PaperWorld(d, 2.0), 10, "508 mm"},
                 {PaperWorld(d, -0.5), 2, "-25.4 mm"}, {Angular(d), 0.7853981633974483, "45"}};
    for (const auto& row : kRows) {
        EXPECT_EQ(row.text, Load(row.value, row.exchange));
        EXPECT_EQ(m_result, 1);
        EXPECT_EQ(Save(row.text, row.exchange), 1) << row.text;
        EXPECT_NEAR(row.value, m_value, 1e-9) << row.text;
    }
    EXPECT_EQ(Save("1 in", PaperMM(d)), 1);
    EXPECT_NEAR(25.4, m_value, 1e-9);
}

TEST_F(UnitText, RejectsInvalidTextWithoutAMessage) {
    DrawingStruct* const d = m_drawing.Get();
    const struct {
        Exchange exchange;
        double left;
    } kRows[] = {{Linear(d), 3.0}, {Paper(d), 7.0}, {PaperMM(d), 7.0}, {PaperWorld(d, 2), 7.0}, {Angular(d), 7.0}};
    MessageBoxWatcher boxes;
    for (const auto& row : kRows)
        for (const char* text : {"", "much", "2 2", "1e999"}) {
            EXPECT_EQ(Save(text, row.exchange), 0) << text;
            EXPECT_EQ(row.left, m_value) << text;
            EXPECT_TRUE(Fails([&] { row.exchange(1, &m_save, IDC_EDIT, m_value); })) << text;
        }
    EXPECT_TRUE(boxes.Boxes().empty());
    for (const auto& row : kRows) {
        EXPECT_EQ(Load(HUGE_VAL, row.exchange), "old") << "no text";
        EXPECT_EQ(m_result, 0);
    }
}

TEST_F(UnitText, BlankFieldsSaveZeroAndDisabledOnesAreShownEmpty) {
    DrawingStruct* const d = m_drawing.Get();
    for (const Exchange& exchange : {Linear(d, 1), Paper(d, 1), PaperMM(d, 1), PaperWorld(d, 2, 1), Angular(d, 1)}) {
        EXPECT_EQ(Save(" \t ", exchange), 1);
        EXPECT_EQ(m_value, 0.0) << "nor the default";
        EXPECT_EQ(Load(5.0, exchange, IDC_DISABLED_EDIT), "");
        EXPECT_EQ(m_result, 1);
        EXPECT_NE(Load(5.0, exchange), "");
    }
    EXPECT_NE(Load(5.0, Linear(d, 0), IDC_DISABLED_EDIT), "") << "it is shown nevertheless without the rule";
}

TEST_F(UnitText, NeedsADrawingAndAScale) {
    const Exchange kRows[] = {Linear(nullptr),
                              Paper(nullptr),
                              PaperMM(nullptr),
                              PaperWorld(nullptr, 2),
                              Angular(nullptr),
                              PaperWorld(m_drawing.Get(), 0.0),
                              PaperWorld(m_drawing.Get(), 1e-8),
                              PaperWorld(m_drawing.Get(), NAN)};
    for (const Exchange& exchange : kRows) {
        EXPECT_EQ(Load(5.0, exchange), "old");
        EXPECT_EQ(m_result, 0);
        EXPECT_EQ(Save("1", exchange), 0);
        EXPECT_EQ(m_value, 7.0);
        EXPECT_TRUE(Fails([&] { exchange(1, &m_load, IDC_EDIT, m_value); }));
    }
    EXPECT_EQ(Save("1", PaperWorld(m_drawing.Get(), 2e-7)), 1);
    EXPECT_NEAR(1 / 25.4 / 2e-7, m_value, 1e-6);
}

TEST_F(UnitText, RadiansAreShownInDegrees) {
    const Exchange radians = [](int r, CDataExchange* x, unsigned c, double& v) { return DDX_TextRadians(r, x, c, v); };
    EXPECT_EQ(Load(3.141592653589793, radians), "180");
    EXPECT_EQ(Load(HUGE_VAL, radians), "*****");
    EXPECT_EQ(Load(1.0, radians, IDC_DISABLED_EDIT), "");
    EXPECT_EQ(Save("180", radians), 1);
    EXPECT_NEAR(3.141592653589793, m_value, 1e-6);
    EXPECT_EQ(Save("", radians), 1);
    EXPECT_EQ(m_value, 0.0);
    EXPECT_EQ(Save("north", radians), 0);
    EXPECT_EQ(m_value, 7.0);
}

} // namespace

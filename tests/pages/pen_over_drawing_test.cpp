// The Pen page over all graphics of a real drawing: in paper and in world scale, with undo.

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include <oaidl.h>

#include "orlo/resources/resource.h"
#include "pages/over_drawing.h"

namespace {

constexpr const char* kProperties[] = {kPropPenColor, kPropPenWidth,    kPropPenScale,
                                       kPropPenStyle, kPropScaleSystem, kPropPenAlignment};

using Pen = std::map<std::string, double>;

Pen PenOf(GraphicStruct* graphic) {
    Pen pen;
    const PropertyTable* table = ::GraphicGetVtbl(graphic);
    for (const char* name : kProperties) {
        int32_t number;
        double value = 0;
        uint32_t integer = 0;
        if (table == nullptr || !table->PropLookup(graphic, &name, 1, 0, &number)) continue;
        if (table->PropGet(graphic, number, VT_UI4, &integer)) value = integer;
        if (std::string(name) == kPropPenWidth || std::string(name) == kPropPenScale)
            table->PropGet(graphic, number, VT_R8, &value);
        pen[name] = value;
    }
    return pen;
}

class PenOverDrawing : public OverDrawing {
protected:
    PenOverDrawing() : OverDrawing(ORLO_TEST_DRAWING, IDD_PEN_PAGE) {}

    std::vector<Pen> Pens() const {
        std::vector<Pen> pens;
        for (GraphicStruct* graphic : graphics)
            pens.push_back(PenOf(graphic));
        return pens;
    }
};

TEST_F(PenOverDrawing, AnUntouchedPageLeavesEveryPenAsItWas) {
    const std::vector<Pen> before = Pens();
    ASSERT_GT(before.size(), 500u);
    EXPECT_EQ(IDOK, RunSheet([](SheetDriver& user) { user.Ok(); }));
    EXPECT_EQ(before, Pens());
}

TEST_F(PenOverDrawing, ChangesReachEveryPenAndNothingElseAndUndoTakesThemBack) {
    struct Step {
        int system; // item of the combo: 0 world, 1 paper
        const char* width;
        double stored;
    };
    const std::vector<Pen> before = Pens();
    for (const Step& step : {Step{1, "0.7 mm", 0.7 / 25.4}, Step{0, "12.5", 12.5}}) {
        SCOPED_TRACE(step.width);
        ASSERT_TRUE(::DrawingBeginUndo(drawing));
        EXPECT_EQ(IDOK, RunSheet([&](SheetDriver& user) {
                      user.Choose(IDC_SCALE_SYSTEM, step.system);
                      user.Choose(IDC_COLOR, 3);
                      user.Type(IDC_PEN_WIDTH, step.width);
                      user.Ok();
                  }));
        EXPECT_GT(::DrawingEndUndo(drawing), 0);
        const std::vector<Pen> after = Pens();
        const double color = [&] {
            for (const Pen& pen : after)
                if (pen.count(kPropPenColor)) return pen.at(kPropPenColor);
            return -1.0;
        }();
        for (size_t i = 0; i < after.size(); ++i) {
            Pen expected = before[i];
            if (expected.count(kPropPenColor)) expected[kPropPenColor] = color;
            if (expected.count(kPropPenWidth)) expected[kPropPenWidth] = step.stored;
            if (expected.count(kPropScaleSystem)) expected[kPropScaleSystem] = step.system == 0 ? 0 : 2;
            ASSERT_EQ(expected.size(), after[i].size());
            for (const auto& [name, value] : expected)
                ASSERT_NEAR(value, after[i].at(name), 1e-6) << i << " " << name;
        }
        EXPECT_GT(::DrawingUndo(drawing), 0);
        EXPECT_EQ(before, Pens());
    }
}

} // namespace

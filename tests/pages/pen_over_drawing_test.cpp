// The Pen page over all graphics of a real drawing: in paper and in world scale, with undo.

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <string>
#include <vector>

#include <oaidl.h>

#include "drawcore/application.h"
#include "drawcore/drawing.h"
#include "drawcore/dxf.h"
#include "drawcore/selection.h"
#include "drawcore/undo.h"
#include "orlo/frame/entry.h"
#include "orlo/frame/graphic_property_page.h"
#include "orlo/frame/graphic_property_sheet.h"
#include "support/host_frame.h"
#include "support/sheet_driver.h"

namespace {

enum : int { kColor = 32005, kSystem = 109, kScale = 104, kWidth = 103 };
constexpr const char* kProperties[] = {"PenColor", "PenWidth", "PenScale", "PenStyle", "ScaleSystem", "PenAlignment"};

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
        if (std::string(name) == "PenWidth" || std::string(name) == "PenScale") table->PropGet(graphic, number, VT_R8, &value);
        pen[name] = value;
    }
    return pen;
}

class PenOverDrawing : public ::testing::Test {
protected:
    PenOverDrawing() {
        char message[256] = "";
        drawing = ::DrawingOpenDxf(ORLO_TEST_DRAWING, nullptr, message, sizeof message);
        EXPECT_NE(nullptr, drawing) << message;
        ::AppSetCurrentDrawing(drawing);
        selection = ::SelectionNew();
        frame = std::make_unique<HostFrame>(drawing);
        ::PropPageInit();
        uint32_t position;
        GraphicStruct* root = ::DrawingGetRoot(drawing);
        for (GraphicStruct* graphic = ::GraphicFirst(root, &position, 1, 0xFFFFFFFF); graphic != nullptr;
             graphic = ::GraphicNext(root, &position, 1, 0xFFFFFFFF)) {
            ::SelectionAdd(selection, graphic);
            graphics.push_back(graphic);
        }
    }
    ~PenOverDrawing() override {
        frame.reset();
        ::GraphicDispose(&selection);
        ::DrawingDispose(&drawing);
    }

    std::vector<Pen> Pens() const {
        std::vector<Pen> pens;
        for (GraphicStruct* graphic : graphics) pens.push_back(PenOf(graphic));
        return pens;
    }

    int RunSheet(std::function<void(SheetDriver&)> script) {
        const std::unique_ptr<CGraphicPropertySheet> sheet(
            ::InitGraphicPropertySheet(frame.get(), nullptr, drawing, selection, 0xFFFFFFFF));
        for (GraphicStruct* graphic : graphics) ::AddGraphicPropertyPage(nullptr, graphic, sheet.get());
        return SheetDriver().Run(*sheet, [&](SheetDriver& user) {
            const int pen = sheet->GetPageIndex(sheet->FindPage(29001));
            ASSERT_GT(pen, 0);
            user.SelectPage(pen);
            script(user);
        });
    }

    DrawingStruct* drawing;
    GraphicStruct* selection;
    std::unique_ptr<HostFrame> frame;
    std::vector<GraphicStruct*> graphics;
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
            user.Choose(kSystem, step.system);
            user.Choose(kColor, 3);
            user.Type(kWidth, step.width);
            user.Ok();
        }));
        EXPECT_GT(::DrawingEndUndo(drawing), 0);
        const std::vector<Pen> after = Pens();
        const double color = [&] {
            for (const Pen& pen : after)
                if (pen.count("PenColor")) return pen.at("PenColor");
            return -1.0;
        }();
        for (size_t i = 0; i < after.size(); ++i) {
            Pen expected = before[i];
            if (expected.count("PenColor")) expected["PenColor"] = color;
            if (expected.count("PenWidth")) expected["PenWidth"] = step.stored;
            if (expected.count("ScaleSystem")) expected["ScaleSystem"] = step.system == 0 ? 0 : 2;
            ASSERT_EQ(expected.size(), after[i].size());
            for (const auto& [name, value] : expected) ASSERT_NEAR(value, after[i].at(name), 1e-6) << i << " " << name;
        }
        EXPECT_GT(::DrawingUndo(drawing), 0);
        EXPECT_EQ(before, Pens());
    }
}

} // namespace

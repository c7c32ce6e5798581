// The Pen and Text pages for all graphics of real drawings, with undo.

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
#include "orlo/entry/entry.h"
#include "orlo/frame/graphic_property_page.h"
#include "orlo/frame/graphic_property_sheet.h"
#include "orlo/host/owned_string.h"
#include "orlo/host/walk.h"
#include "orlo/resources/resource.h"
#include "support/host_frame.h"
#include "support/sheet_driver.h"

namespace {

using Values = std::map<std::string, std::string>; // by property name

Values ValuesOf(GraphicStruct* graphic) {
    Values values;
    const PropertyTable* table = ::GraphicGetVtbl(graphic);
    for (const char* name : {kPropLayer, kPropPenColor, kPropPenWidth, kPropPenScale, kPropPenStyle, kPropScaleSystem,
                             kPropPenAlignment, kPropTextFont, kPropTextSize, kPropTextStyle, kPropTextFormat}) {
        int32_t number;
        if (table == nullptr || !table->PropLookup(graphic, &name, 1, 0, &number)) continue;
        double real = 0;
        uint32_t whole = 0;
        orlo::host::String text;
        if (table->PropGet(graphic, number, VT_R8, &real)) values[name] = std::to_string(real);
        if (table->PropGet(graphic, number, VT_UI4, &whole)) values[name] = std::to_string(whole);
        if (table->PropGet(graphic, number, VT_BSTR, text.Variable())) values[name] = text.OrEmpty();
    }
    return values;
}

class OverDrawing : public ::testing::Test {
protected:
    ~OverDrawing() override {
        m_frame.reset();
        ::GraphicDispose(&m_selection);
        ::DrawingDispose(&m_drawing);
    }
    // page: template of the first page.
    void Open(const wchar_t* path, unsigned int page) {
        m_page = page;
        char message[256] = "";
        m_drawing = ::DrawingOpenDxf(path, nullptr, message, sizeof message);
        ASSERT_NE(m_drawing, nullptr) << message;
        ::AppSetCurrentDrawing(m_drawing);
        m_frame = std::make_unique<HostFrame>(m_drawing);
        ::PropPageInit();
        for (GraphicStruct* graphic : orlo::host::Members(::DrawingGetRoot(m_drawing))) {
            ::SelectionAdd(m_selection, graphic);
            m_graphics.push_back(graphic);
        }
        m_before = All();
    }
    std::vector<Values> All() const {
        std::vector<Values> all;
        for (GraphicStruct* graphic : m_graphics)
            all.push_back(ValuesOf(graphic));
        return all;
    }
    void RunOk(const SheetDriver::Script& script) {
        const std::unique_ptr<CGraphicPropertySheet> sheet(
            ::InitGraphicPropertySheet(m_frame.get(), nullptr, m_drawing, m_selection, kAllGraphics));
        for (GraphicStruct* graphic : m_graphics)
            ::AddGraphicPropertyPage(nullptr, graphic, sheet.get());
        EXPECT_EQ(SheetDriver().Run(*sheet,
                                    [&](SheetDriver& user) {
                                        user.SelectPage(sheet->GetPageIndex(sheet->FindPage(m_page)));
                                        script(user);
                                        user.Ok();
                                    }),
                  IDOK);
    }
    // Runs the edit, which also adds its values, and checks that all graphics with the property get them and that undo
    // reverts it.
    void ExpectEdit(Values& changed, const SheetDriver::Script& edit) {
        ASSERT_TRUE(::DrawingBeginUndo(m_drawing));
        RunOk(edit);
        EXPECT_GT(::DrawingEndUndo(m_drawing), 0);
        const std::vector<Values> after = All();
        size_t reached = 0;
        for (size_t i = 0; i < after.size(); ++i) {
            Values expected = m_before[i];
            for (const auto& [name, value] : changed)
                if (expected.count(name)) expected[name] = value;
            ASSERT_EQ(expected, after[i]) << i;
            reached += expected != m_before[i];
        }
        EXPECT_GT(reached, 5u);
        EXPECT_GT(::DrawingUndo(m_drawing), 0);
        EXPECT_EQ(m_before, All());
    }

    DrawingStruct* m_drawing = nullptr;
    GraphicStruct* m_selection = ::SelectionNew();
    std::unique_ptr<HostFrame> m_frame;
    std::vector<GraphicStruct*> m_graphics;
    std::vector<Values> m_before;
    unsigned int m_page = 0;
};

TEST_F(OverDrawing, PensOfARoof) {
    Open(ORLO_TEST_DRAWING, IDD_PEN_PAGE);
    ASSERT_GT(m_graphics.size(), 500u);
    RunOk([](SheetDriver&) {});
    EXPECT_EQ(m_before, All()) << "an unedited page";
    const struct {
        int system; // item of the combo box: 0 world, 1 paper
        const char* width;
        double stored;
    } rows[] = {{1, "0.7 mm", 0.7 / 25.4}, {0, "12.5", 12.5}};
    for (const auto& row : rows) {
        Values changed = {{kPropPenWidth, std::to_string(row.stored)},
                          {kPropScaleSystem, std::to_string(row.system == 0 ? kScaleWorld : kScalePaper)}};
        ExpectEdit(changed, [&](SheetDriver& user) {
            user.SelectItem(IDC_SCALE_SYSTEM, row.system);
            user.SelectItem(IDC_COLOR, 3);
            user.Type(IDC_PEN_WIDTH, row.width);
            changed[kPropPenColor] = std::to_string(std::stoul(user.ItemText(IDC_COLOR, 3).substr(0, 8), nullptr, 16));
        });
    }
}

TEST_F(OverDrawing, TextsOfManyKinds) {
    Open(ORLO_TEST_TEXTS, IDD_TEXT_PAGE);
    RunOk([](SheetDriver&) {});
    EXPECT_EQ(m_before, All()) << "an unedited page";
    Values changed = {{kPropTextSize, std::to_string(7.5)}, {kPropTextFormat, "2"}};
    ExpectEdit(changed, [&](SheetDriver& user) {
        user.SelectItem(IDC_FONT_FACE, 0);
        changed[kPropTextFont] = user.ItemText(IDC_FONT_FACE, 0);
        user.Type(IDC_FONT_SIZE, "7.5");
        user.Click(IDC_JUSTIFY_RIGHT);
    });
}

} // namespace

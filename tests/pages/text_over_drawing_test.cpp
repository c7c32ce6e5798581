// The Text page over all graphics of a real drawing with texts of many kinds, with undo.

#include <map>
#include <string>

#include <oaidl.h>

#include "orlo/host/memory.h"
#include "orlo/resources/resource.h"
#include "pages/over_drawing.h"

namespace {

constexpr const char* kProperties[] = {kPropTextFont, kPropTextSize,   kPropTextStyle,
                                       kPropPenColor, kPropTextFormat, kPropLayer};

using Values = std::map<std::string, std::string>;

Values ValuesOf(GraphicStruct* graphic) {
    Values values;
    const PropertyTable* table = ::GraphicGetVtbl(graphic);
    for (const char* name : kProperties) {
        int32_t number;
        if (table == nullptr || !table->PropLookup(graphic, &name, 1, 0, &number)) continue;
        double real = 0;
        uint32_t whole = 0;
        char* text = nullptr;
        if (table->PropGet(graphic, number, VT_R8, &real)) values[name] = std::to_string(real);
        if (table->PropGet(graphic, number, VT_UI4, &whole)) values[name] = std::to_string(whole);
        if (table->PropGet(graphic, number, VT_BSTR, &text)) values[name] = text;
        ::BStringNULL(&text);
    }
    return values;
}

class TextOverDrawing : public OverDrawing {
protected:
    TextOverDrawing() : OverDrawing(ORLO_TEST_TEXTS, IDD_TEXT_PAGE) {}

    std::vector<Values> All() const {
        std::vector<Values> all;
        for (GraphicStruct* graphic : graphics)
            all.push_back(ValuesOf(graphic));
        return all;
    }
};

TEST_F(TextOverDrawing, AnUntouchedPageLeavesEveryTextAsItWas) {
    const std::vector<Values> before = All();
    size_t texts = 0;
    for (const Values& values : before)
        texts += values.count(kPropTextFont);
    ASSERT_GT(texts, 5u);
    EXPECT_EQ(IDOK, RunSheet([](SheetDriver& user) { user.Ok(); }));
    EXPECT_EQ(before, All());
}

TEST_F(TextOverDrawing, ChangesReachEveryTextAndUndoTakesThemBack) {
    const std::vector<Values> before = All();
    ASSERT_TRUE(::DrawingBeginUndo(drawing));
    std::string face;
    EXPECT_EQ(IDOK, RunSheet([&](SheetDriver& user) {
                  user.Choose(IDC_FONT_FACE, 0);
                  face = user.ItemText(IDC_FONT_FACE, 0);
                  user.Type(IDC_FONT_SIZE, "7.5");
                  while (user.Check(IDC_UNDERLINE) != BST_CHECKED)
                      user.Click(IDC_UNDERLINE);
                  user.Click(IDC_JUSTIFY_RIGHT);
                  user.Ok();
              }));
    EXPECT_GT(::DrawingEndUndo(drawing), 0);
    const std::vector<Values> after = All();
    for (size_t i = 0; i < before.size(); ++i) {
        Values expected = before[i];
        if (expected.count(kPropTextFont)) {
            expected[kPropTextFont] = face;
            expected[kPropTextSize] = std::to_string(7.5);
            expected[kPropTextFormat] = "2";
            expected[kPropTextStyle] = std::to_string(std::stoi(before[i].at(kPropTextStyle)) | 0x100);
        }
        EXPECT_EQ(expected, after[i]) << i;
    }
    EXPECT_GT(::DrawingUndo(drawing), 0);
    EXPECT_EQ(before, All());
}

} // namespace

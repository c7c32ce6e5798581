// The Text page over all graphics of a real drawing with texts of many kinds, with undo.

#include <map>
#include <string>

#include <oaidl.h>

#include "orlo/host/memory.h"
#include "pages/over_drawing.h"

namespace {

enum : int { kFont = 32000, kSize = 32001, kStyle = 32002, kColor = 32023, kUnderline = 106, kRight = 110 };
constexpr const char* kProperties[] = {"TextFont", "TextSize",   "TextStyle",
                                       "PenColor", "TextFormat", "Layer"};

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
    TextOverDrawing() : OverDrawing(ORLO_TEST_TEXTS, 29003) {}

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
        texts += values.count("TextFont");
    ASSERT_GT(texts, 5u);
    EXPECT_EQ(IDOK, RunSheet([](SheetDriver& user) { user.Ok(); }));
    EXPECT_EQ(before, All());
}

TEST_F(TextOverDrawing, ChangesReachEveryTextAndUndoTakesThemBack) {
    const std::vector<Values> before = All();
    ASSERT_TRUE(::DrawingBeginUndo(drawing));
    std::string face;
    EXPECT_EQ(IDOK, RunSheet([&](SheetDriver& user) {
                  user.Choose(kFont, 0);
                  face = user.ItemText(kFont, 0);
                  user.Type(kSize, "7.5");
                  while (user.Check(kUnderline) != BST_CHECKED)
                      user.Click(kUnderline);
                  user.Click(kRight);
                  user.Ok();
              }));
    EXPECT_GT(::DrawingEndUndo(drawing), 0);
    const std::vector<Values> after = All();
    for (size_t i = 0; i < before.size(); ++i) {
        Values expected = before[i];
        if (expected.count("TextFont")) {
            expected["TextFont"] = face;
            expected["TextSize"] = std::to_string(7.5);
            expected["TextFormat"] = "2";
            expected["TextStyle"] = std::to_string(std::stoi(before[i].at("TextStyle")) | 0x100);
        }
        EXPECT_EQ(expected, after[i]) << i;
    }
    EXPECT_GT(::DrawingUndo(drawing), 0);
    EXPECT_EQ(before, All());
}

} // namespace

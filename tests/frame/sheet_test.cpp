// The sheet: the pages that a graphic adds, finding them, results, and moving.

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "drawcore/regen.h"
#include "frame/width_page.h"
#include "orlo/entry/entry.h"
#include "orlo/resources/resource.h"

namespace {

TEST(PagesOfAKind, AreAddedOnce) {
    const struct {
        int type;
        bool group;
        uint32_t flags;
        bool penAndBrush; // after General
    } rows[] = {{kGraphicPenBrush, false, 0, true}, {kGraphicPenBrush, false, kFlagNoPenBrush, true},
                {kGraphicVertices, false, 0, true}, {kGraphicVertices, false, kFlagNoPenBrush, false},
                {kGraphicVertices, true, 0, false}, {0x33, false, 0, false}};
    for (const auto& row : rows) {
        SCOPED_TRACE(&row - rows);
        GraphicKit kit;
        GraphicStruct* graphic = kit.Add({}, row.type == 0x33 ? kGraphicVertices : row.type).graphic;
        if (row.group) ::GraphicAdd(graphic, ::GraphicNewEx(kGraphicVertices, 0, 1));
        graphic->bType = static_cast<uint8_t>(row.type);
        graphic->dwFlags |= row.flags;
        TestSheet sheet(kit);
        for (int i = 0; i < 3; ++i)
            EXPECT_EQ(::AddGraphicPropertyPage(nullptr, graphic, &sheet.Sheet()), 0);
        ASSERT_EQ(row.penAndBrush ? 3 : 1, sheet.Sheet().GetPageCount());
        EXPECT_EQ(sheet.Sheet().GetPage(0), sheet.Sheet().FindPage(IDD_GENERAL_PAGE));
        if (!row.penAndBrush) continue;
        EXPECT_EQ(sheet.Sheet().GetPage(1), sheet.Sheet().FindPage(IDD_PEN_PAGE));
        EXPECT_EQ(sheet.Sheet().GetPage(2), sheet.Sheet().FindPage(IDD_BRUSH_PAGE));
    }
}

// The method's pages follow for every graphic, and its result is returned to the host.
TEST(RegenMethods, AddTheirPagesAfterTheBuiltInOnes) {
    GraphicKit kit;
    GraphicStruct* graphic = kit.Add({}).graphic;
    graphic->wRegenMethod = 7;
    int calls = 0;
    void* methods = ::RegenMethodsNew();
    const RegenMethod method = {&calls, nullptr, [](void* context, GraphicStruct*, void* sheet) {
                                    auto* target = static_cast<CGraphicPropertySheet*>(sheet);
                                    target->AddPage(new ExchangePage([](CDataExchange*) {}));
                                    return 40 + ++*static_cast<int*>(context);
                                }};
    ::RegenMethodRegister(methods, 7, &method);
    {
        TestSheet sheet(kit);
        EXPECT_EQ(::AddGraphicPropertyPage(methods, graphic, &sheet.Sheet()), 41);
        EXPECT_EQ(::AddGraphicPropertyPage(methods, graphic, &sheet.Sheet()), 42);
        EXPECT_EQ(sheet.Sheet().GetPageCount(), 5);
        EXPECT_EQ(sheet.Sheet().GetPage(1), sheet.Sheet().FindPage(IDD_PEN_PAGE));
    }
    ::RegenMethodsDispose(&methods);
}

class NamedPage : public COrloPropertyPage {
public:
    NamedPage() : COrloPropertyPage("NAMED_PAGE", 0) {}
};

TEST(FindPage, FindsByNumberOrName) {
    GraphicKit kit;
    TestSheet sheet(kit);
    auto* named = new NamedPage;
    sheet.Sheet().AddPage(named);
    const std::string otherAddress = "NAMED_PAGE", otherCase = "Named_Page";
    EXPECT_EQ(named, sheet.Sheet().FindPage(otherAddress.c_str()));
    EXPECT_EQ(sheet.Sheet().FindPage(otherCase.c_str()), nullptr);
    EXPECT_EQ(sheet.Sheet().GetPage(0), sheet.Sheet().FindPage(0x12340000u + IDD_GENERAL_PAGE));
    EXPECT_EQ(sheet.Sheet().FindPage(IDD_PEN_PAGE), nullptr);
}

TEST(SheetResult, OkIsOneAndEscapeCancels) {
    GraphicKit kit;
    kit.Add({{"Width", 1.0}});
    for (const UINT key : {VK_RETURN, VK_ESCAPE}) {
        TestSheet sheet(kit);
        const WidthPage width(sheet);
        const int result = sheet.Run([&](SheetDriver& user) {
            user.Type(kEdit, "4");
            user.Key(key);
        });
        EXPECT_EQ(key == VK_RETURN ? 1 : IDCANCEL, result);
    }
    EXPECT_EQ(kit[0].Number("Width"), 4);
    EXPECT_EQ(kit[0].writes.size(), 1u);
}

TEST(SheetMoves, CloseDropDownListsOfTheActivePage) {
    GraphicKit kit;
    TestSheet sheet(kit);
    sheet.Add([](CDataExchange*) {});
    sheet.Run([&](SheetDriver& user) {
        ::SendMessageA(user.Control(kCombo), CB_SHOWDROPDOWN, TRUE, 0);
        EXPECT_TRUE(::SendMessageA(user.Control(kCombo), CB_GETDROPPEDSTATE, 0, 0));
        ::SetWindowPos(user.Sheet(), nullptr, 5, 5, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        EXPECT_FALSE(::SendMessageA(user.Control(kCombo), CB_GETDROPPEDSTATE, 0, 0));
    });
}

} // namespace

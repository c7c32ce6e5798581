// What a sheet does when its host fails: while drawing, giving values, or taking the preview's graphics.

#include <gtest/gtest.h>

#include <stdexcept>

#include "frame/width_page.h"
#include "support/message_box_watcher.h"

namespace {

using Thrower = void (*)();

void ThrowStandard() {
    throw std::runtime_error("no disk");
}

constexpr struct {
    Thrower fail;
    const char* text;
} kFailures[] = {{AfxThrowNotSupportedException, "This is not possible here."}, {ThrowStandard, "no disk"}};

struct BadDrawing : ExchangePage {
    explicit BadDrawing(Thrower thrower) : ExchangePage([](CDataExchange*) {}), fail(thrower) {}
    void DrawPreview(CDC*, void*, CRect&) override {
        ++drawn;
        fail();
    }
    Thrower fail;
    int drawn = 0;
};

TEST(HostTrouble, DrawingThatThrowsIsReportedOnce) {
    for (const auto& failure : kFailures) {
        GraphicKit kit;
        TestSheet sheet(kit);
        auto* page = new BadDrawing(failure.fail);
        sheet.Sheet().AddPage(page);
        MessageBoxWatcher boxes;
        EXPECT_EQ(IDOK, sheet.Run([&](SheetDriver& user) {
            for (int i = 0; i < 5; ++i)
                sheet.Sheet().UpdatePreview(1);
            user.Ok();
        }));
        EXPECT_GE(page->drawn, 5);
        EXPECT_EQ(failure.text, boxes.OnlyText());
    }
}

// A page that cannot be read does not open, and may be tried again.
TEST(HostTrouble, APageThatCannotBeReadIsReportedAndLeavesTheOneBefore) {
    for (const auto& failure : kFailures) {
        GraphicKit kit;
        kit.Add({{"Width", 1.0}}).onGet = failure.fail;
        TestSheet sheet(kit);
        const WidthPage page(sheet);
        MessageBoxWatcher boxes;
        EXPECT_EQ(IDOK, sheet.Run([&](SheetDriver& user) {
            EXPECT_EQ(failure.text, boxes.OnlyText());
            EXPECT_EQ(0, user.ActivePage());
            EXPECT_EQ(0, sheet.Sheet().GetTabControl()->GetCurSel());
            EXPECT_TRUE(::IsWindowVisible(user.Page()));
            kit[0].onGet = nullptr;
            user.SelectPage(1);
            user.Type(kEdit, "5");
            user.Ok();
        }));
        EXPECT_EQ(5, kit[0].Number("Width"));
    }
}

TEST(HostTrouble, ASheetWhoseFirstPageCannotBeReadOpensOnTheNext) {
    GraphicKit kit;
    kit.Add({{kPropInfo, "wall"}}).onGet = ThrowStandard;
    TestSheet sheet(kit);
    const WidthPage page(sheet);
    MessageBoxWatcher boxes;
    EXPECT_EQ(IDOK, SheetDriver().Run(sheet.Sheet(), [&](SheetDriver& user) {
        EXPECT_EQ("no disk", boxes.OnlyText());
        EXPECT_EQ(1, user.ActivePage());
        EXPECT_EQ(1, sheet.Sheet().GetTabControl()->GetCurSel());
        user.Ok();
    }));
}

struct PreviewOfAnother : ExchangePage {
    explicit PreviewOfAnother(GraphicStruct* graphic)
        : ExchangePage([](CDataExchange*) {}), member(graphic) {}
    void* CreatePreviewGraphic() override { return member; }
    GraphicStruct* member;
};

// The reference database refuses a graphic that is already a member.
TEST(HostTrouble, APreviewGraphicThatIsNotTakenMeansNoPreview) {
    GraphicKit kit;
    kit.Add({{"Width", 1.0}});
    const long blocks = kit.Blocks();
    {
        TestSheet sheet(kit);
        auto* page = new PreviewOfAnother(kit[0].graphic);
        sheet.Sheet().AddPage(page);
        EXPECT_EQ(IDOK, sheet.Run([&](SheetDriver& user) {
            EXPECT_EQ(0, sheet.Sheet().OnStatusChange(1));
            user.Type(kEdit, "x");
            EXPECT_NE(0, page->IsModified());
            user.Ok();
        }));
    }
    EXPECT_EQ(blocks, kit.Blocks());
    uint32_t position;
    EXPECT_EQ(kit[0].graphic, ::GraphicFirst(kit.Selection(), &position, 1, kAllGraphics));
}

} // namespace

// Sheets whose host fails while drawing, reading properties, or adding preview graphics.

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
} kFailures[] = {{AfxThrowNotSupportedException, "The operation is not supported."}, {ThrowStandard, "no disk"}};

struct BadDrawing : ExchangePage {
    explicit BadDrawing(Thrower thrower) : ExchangePage([](CDataExchange*) {}), fail(thrower) {}
    void DrawPreview(CDC*, void*, CRect&) override {
        ++drawn;
        fail();
    }
    Thrower fail;
    int drawn = 0;
};

TEST(HostTrouble, ExceptionWhileDrawingIsReportedOnce) {
    for (const auto& failure : kFailures) {
        GraphicKit kit;
        TestSheet sheet(kit);
        auto* page = new BadDrawing(failure.fail);
        sheet.Sheet().AddPage(page);
        MessageBoxWatcher boxes;
        EXPECT_EQ(sheet.Run([&](SheetDriver& user) {
            for (int i = 0; i < 5; ++i)
                sheet.Sheet().UpdatePreview(1);
            user.Ok();
        }),
                  IDOK);
        EXPECT_GE(page->drawn, 5);
        EXPECT_EQ(failure.text, boxes.OnlyText());
    }
}

// A page that cannot be loaded does not open; the next attempt may succeed.
TEST(HostTrouble, UnreadablePageIsReportedAndThePreviousOneStays) {
    for (const auto& failure : kFailures) {
        GraphicKit kit;
        kit.Add({{"Width", 1.0}}).onGet = failure.fail;
        TestSheet sheet(kit);
        const WidthPage page(sheet);
        MessageBoxWatcher boxes;
        EXPECT_EQ(sheet.Run([&](SheetDriver& user) {
            EXPECT_EQ(failure.text, boxes.OnlyText());
            EXPECT_EQ(user.ActivePage(), 0);
            EXPECT_EQ(sheet.Sheet().GetTabControl()->GetCurSel(), 0);
            EXPECT_TRUE(::IsWindowVisible(user.Page()));
            kit[0].onGet = nullptr;
            user.SelectPage(1);
            user.Type(kEdit, "5");
            user.Ok();
        }),
                  IDOK);
        EXPECT_EQ(kit[0].Number("Width"), 5);
    }
}

TEST(HostTrouble, SheetOpensOnTheNextPageIfTheFirstIsUnreadable) {
    GraphicKit kit;
    kit.Add({{kPropInfo, "wall"}}).onGet = ThrowStandard;
    TestSheet sheet(kit);
    const WidthPage page(sheet);
    MessageBoxWatcher boxes;
    EXPECT_EQ(SheetDriver().Run(sheet.Sheet(),
                                [&](SheetDriver& user) {
                                    EXPECT_EQ(boxes.OnlyText(), "no disk");
                                    EXPECT_EQ(user.ActivePage(), 1);
                                    EXPECT_EQ(sheet.Sheet().GetTabControl()->GetCurSel(), 1);
                                    user.Ok();
                                }),
              IDOK);
}

struct PreviewOfAnother : ExchangePage {
    explicit PreviewOfAnother(GraphicStruct* graphic) : ExchangePage([](CDataExchange*) {}), member(graphic) {}
    void* CreatePreviewGraphic() override { return member; }
    GraphicStruct* member;
};

// The reference database rejects a graphic that is already a member.
TEST(HostTrouble, RejectedPreviewGraphicMeansNoPreview) {
    GraphicKit kit;
    kit.Add({{"Width", 1.0}});
    const long blocks = kit.Blocks();
    {
        TestSheet sheet(kit);
        auto* page = new PreviewOfAnother(kit[0].graphic);
        sheet.Sheet().AddPage(page);
        EXPECT_EQ(sheet.Run([&](SheetDriver& user) {
            EXPECT_EQ(sheet.Sheet().OnStatusChange(1), 0);
            user.Type(kEdit, "x");
            EXPECT_NE(page->IsModified(), 0);
            user.Ok();
        }),
                  IDOK);
    }
    EXPECT_EQ(blocks, kit.Blocks());
    uint32_t position;
    EXPECT_EQ(kit[0].graphic, ::GraphicFirst(kit.Selection(), &position, 1, kAllGraphics));
}

} // namespace

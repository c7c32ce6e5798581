// What a sheet does when the host it stands on fails: in drawing, in giving values, in taking the preview's graphics.

#include <gtest/gtest.h>

#include <stdexcept>

#include "orlo/exchange/ddp.h"
#include "orlo/exchange/ddx.h"
#include "support/message_box_watcher.h"
#include "support/test_sheet.h"

namespace {

using Thrower = void (*)();

void ThrowFrameworks() {
    AfxThrowNotSupportedException();
}
void ThrowStandard() {
    throw std::runtime_error("no disk");
}

constexpr struct {
    Thrower fail;
    const char* text;
} kFailures[] = {{ThrowFrameworks, "This is not possible here."}, {ThrowStandard, "no disk"}};

class BadDrawing : public ExchangePage {
public:
    explicit BadDrawing(Thrower fail) : ExchangePage([](CDataExchange*) {}), m_fail(fail) {}
    void DrawPreview(CDC*, void*, CRect&) override {
        ++drawn;
        m_fail();
    }
    int drawn = 0;

private:
    Thrower m_fail;
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

struct WidthPage {
    explicit WidthPage(TestSheet& sheet) {
        sheet.Add([this](CDataExchange* pDX) {
            DDP_Text(pDX, kEdit, width, "Width");
            DDX_Text(1, pDX, kEdit, width);
            DDP_PostProcessing(pDX);
        });
    }
    double width = 0;
};

// A page that cannot be read does not come up, and may be tried again.
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

class PreviewOfAnother : public ExchangePage {
public:
    explicit PreviewOfAnother(GraphicStruct* member)
        : ExchangePage([](CDataExchange*) {}), m_member(member) {}
    void* CreatePreviewGraphic() override { return m_member; }

private:
    GraphicStruct* m_member;
};

// The reference database takes no graphic that is a member already.
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

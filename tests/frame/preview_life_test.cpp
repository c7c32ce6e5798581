// Previews of sheets that run twice, and of several sheets for one drawing.

#include <gtest/gtest.h>

#include <memory>

#include "drawcore/selection.h"
#include "drawcore/view.h"
#include "orlo/entry/entry.h"
#include "orlo/frame/graphic_property_page.h"
#include "orlo/frame/graphic_property_sheet.h"
#include "orlo/host/property.h"
#include "orlo/host/walk.h"
#include "orlo/host/words.h"
#include "orlo/resources/resource.h"
#include "support/host_frame.h"
#include "support/sheet_driver.h"
#include "support/test_drawing.h"

namespace {

class PreviewLife : public ::testing::Test {
protected:
    using Sheet = std::unique_ptr<CGraphicPropertySheet>;

    PreviewLife() { ::PropPageInit(); }
    ~PreviewLife() override { ::GraphicDispose(&selection); }

    GraphicStruct* Add(int type) {
        GraphicStruct* graphic = ::GraphicNewEx(type, 0, 1);
        ::GraphicAdd(::DrawingGetRoot(drawing.Get()), graphic);
        ::SelectionAdd(selection, graphic);
        return graphic;
    }
    void AddInsertion() {
        TableStruct* blocks = ::BlocksFromDrawing(drawing.Get());
        const uint16_t flag = ::BlocksAddBlock(blocks, "FLAG", ::GraphicNewEx(kGraphicVertices, 0, 1));
        ::InsertSetData(Add(kGraphicInsert), blocks, flag, nullptr);
    }
    Sheet NewSheet() {
        Sheet sheet(::InitGraphicPropertySheet(&frame, nullptr, drawing.Get(), selection, kAllGraphics));
        for (GraphicStruct* graphic : orlo::host::Members(selection))
            ::AddGraphicPropertyPage(nullptr, graphic, sheet.get());
        return sheet;
    }
    bool HasPreviewBlock() const { return ::BlocksFindBlock(::BlocksFromDrawing(drawing.Get()), kPreviewBlock) != 0; }
    static GraphicStruct* PreviewOf(CGraphicPropertySheet& sheet) {
        return static_cast<CGraphicPropertyPage*>(sheet.GetActivePage())->GetPreviewGraphic();
    }
    // Returns whether the pane shows a drawing.
    static bool ShowsPreview(CGraphicPropertySheet& sheet) {
        double box[4];
        GraphicStruct* graphic = PreviewOf(sheet);
        ::GraphicSetExtentsDirty(graphic, 1);
        return ::ExtentsGetBox(::GraphicGetExtentsSel(graphic, 0), box) && box[2] - box[0] > 0.5;
    }

    TestDrawing drawing;
    GraphicStruct* selection = ::SelectionNew();
    HostFrame frame{drawing.Get()};
};

TEST_F(PreviewLife, BlockIsRemovedWithTheLastSheet) {
    AddInsertion();
    const Sheet outer = NewSheet();
    SheetDriver().Run(*outer, [&](SheetDriver& user) {
        user.SelectPage(1);
        {
            const Sheet inner = NewSheet(), never = NewSheet();
            SheetDriver().Run(*inner, [&](SheetDriver& second) {
                second.SelectPage(1);
                EXPECT_TRUE(ShowsPreview(*inner));
            });
        }
        EXPECT_TRUE(HasPreviewBlock());
        EXPECT_TRUE(ShowsPreview(*outer));
    });
}

TEST_F(PreviewLife, BlockIsRemovedFromItsOwnDrawing) {
    AddInsertion();
    Sheet sheet = NewSheet();
    SheetDriver().Run(*sheet, [](SheetDriver& user) { user.SelectPage(1); });
    EXPECT_TRUE(HasPreviewBlock());
    const TestDrawing other;
    TableStruct* blocks = ::BlocksFromDrawing(other.Get());
    ::BlocksAddBlock(blocks, kPreviewBlock, ::GraphicNewEx(kGraphicVertices, 0, 1));
    sheet.reset();
    EXPECT_FALSE(HasPreviewBlock());
    EXPECT_NE(::BlocksFindBlock(blocks, kPreviewBlock), 0);
    ::AppSetCurrentDrawing(drawing.Get());
}

// Also on another page than the edited one: the pen is visible in all previews.
TEST_F(PreviewLife, CanceledEditIsNotInThePreviewOfTheNextRun) {
    Add(kGraphicPenBrush);
    const Sheet sheet = NewSheet();
    const auto scaleOfPreview = [&] { return *orlo::host::ReadProperty<double>(PreviewOf(*sheet), kPropPenScale); };
    for (const char* typed : {"5", "7"}) {
        EXPECT_EQ(IDCANCEL, SheetDriver().Run(*sheet, [&](SheetDriver& user) {
            user.SelectPage(2); // Brush
            EXPECT_EQ(scaleOfPreview(), 1);
            user.SelectPage(1); // Pen
            EXPECT_EQ(scaleOfPreview(), 1);
            user.Type(IDC_PEN_SCALE, typed);
            EXPECT_EQ(std::stod(typed), scaleOfPreview());
            user.Cancel();
        }));
    }
}

// Otherwise OK would end the second run with the style selected in the first one, without saving.
TEST_F(PreviewLife, SheetThatRunsAgainHasNoEndCode) {
    TableStruct* styles = drawing.Table(kTableBlocks);
    const auto addStyle = [&](const char* name) {
        GraphicStruct* group = ::GraphicNewEx(kGraphicVertices, 0, 1);
        ::GraphicAdd(group, ::GraphicNewEx(kGraphicPenBrush, 0, 1));
        group->pszStyleName = "Steel";
        return ::BlocksAddBlock(styles, name, group);
    };
    const uint16_t beam = addStyle("Beam"), column = addStyle("Column");
    frame.currentStyle = beam;
    const Sheet sheet(
        ::InitGraphicPropertySheet(&frame, nullptr, drawing.Get(), ::BlockGetGraphic(styles, beam), kWithStylePart));
    EXPECT_EQ(kStyleChosen + column, SheetDriver().Run(*sheet, [](SheetDriver& user) {
        user.Type(IDC_STYLE_NAME, "Column");
        user.Key(VK_TAB, true);
    }));
    EXPECT_EQ(SheetDriver().Run(*sheet,
                                [](SheetDriver& user) {
                                    user.Type(IDC_STYLE_NAME, "Beam");
                                    user.Key(VK_RETURN);
                                }),
              IDOK);
}

} // namespace

// The property functions of a page in a real sheet: merging, markers, iteration and the preview flag.

#include <gtest/gtest.h>

#include <memory>

#include "orlo/binding/indeterminate.h"
#include "orlo/entry/entry.h"
#include "support/test_sheet.h"

namespace {

// Runs the test with a page of an open sheet for the kit.
void WithPage(GraphicKit& kit, std::function<void(ExchangePage&)> test, unsigned long filter = kAllGraphics) {
    TestSheet sheet(kit, filter);
    ExchangePage& page = sheet.Add([](CDataExchange*) {});
    page.hasPreview = true;
    sheet.Run([&](SheetDriver&) { test(page); });
}

TEST(Merge, DifferingTextsBecomeTheMarkerAndEmptyOnesStayEmpty) {
    GraphicKit kit;
    kit.Add({{kPropInfo, ""}, {"Name", "a"}});
    kit.Add({{kPropInfo, ""}, {"Name", "A"}});
    WithPage(kit, [&](ExchangePage& page) {
        CString text("before");
        EXPECT_EQ(page.GetPropText(kPropInfo, &text, 0), 1);
        EXPECT_TRUE(text.IsEmpty());
        EXPECT_EQ(page.GetPropText("Name", &text, 0), 1);
        EXPECT_STREQ(text, "\xFF");
        EXPECT_EQ(page.SetPropText("Name", text, 0), 0);
        EXPECT_EQ(page.GetPropText("Nowhere", &text, 0), 0);
        EXPECT_STREQ(text, "\xFF");
        CString begun("\xFF and more"); // a valid character in some code pages
        EXPECT_EQ(page.SetPropText("Name", begun, 0), 1);
        EXPECT_EQ(kit[1].Text("Name"), "\xFF and more");
    });
}

TEST(Merge, ChecksAreMergedOnlyAsInt) {
    GraphicKit kit;
    kit.Add({{"On", 1}});
    kit.Add({{"On", 5}});
    WithPage(kit, [&](ExchangePage& page) {
        int folded = -1;
        EXPECT_EQ(page.GetPropCheck("On", &folded, 0), 1);
        EXPECT_EQ(folded, 1);
        unsigned short plain = 0;
        EXPECT_EQ(page.GetPropCheck("On", &plain, 0), 1);
        EXPECT_EQ(plain, 0xFFFF);

        EXPECT_EQ(page.SetPropCheck("On", 3, 0), 0);
        EXPECT_EQ(page.SetPropCheck("On", static_cast<unsigned short>(0xFFFF), 0), 0);
        EXPECT_EQ(kit[1].Number("On"), 5);
        EXPECT_EQ(page.SetPropCheck("On", -1, 0), 1);
        EXPECT_EQ(kit[1].Number("On"), 0);
        EXPECT_EQ(page.SetPropCheck("On", static_cast<unsigned short>(2), 0), 1);
        EXPECT_EQ(kit[0].Number("On"), 2);
    });
}

TEST(Merge, ExceptionOfTheHostLeaksNoString) {
    GraphicKit kit;
    kit.Add({{"Name", "a"}});
    kit.Add({{"Name", "b"}});
    WithPage(kit, [&](ExchangePage& page) {
        CString text;
        EXPECT_EQ(page.GetPropText("Name", &text, 0), 1);
        const long before = kit.Blocks();
        kit[1].onGet = [] { AfxThrowUserException(); };
        try {
            page.GetPropText("Name", &text, 0);
            ADD_FAILURE() << "the exception was not thrown";
        } catch (CException* exception) {
            exception->Delete();
        }
        EXPECT_EQ(before, kit.Blocks());
    });
}

// Iteration clears the flag of the graphics that it reaches, and no others; in the preview group it sets it.
TEST(Walk, MarksVisitedGraphics) {
    GraphicKit kit;
    for (int i = 0; i < 3; ++i)
        kit.Add({{"Kind", i < 2 ? 1 : 2}, {"Last", 1}}).graphic->dwFlags |= kFlagPreview;
    kit[1].properties["Kind"].number = 2; // differs from the first, so the third is not reached
    WithPage(kit, [&](ExchangePage& page) {
        for (size_t i = 0; i < kit.Size(); ++i)
            kit[i].graphic->dwFlags |= kFlagPreview;
        int kind = 0;
        page.GetPropText("Kind", &kind, 0);
        EXPECT_FALSE(kit[0].graphic->dwFlags & kFlagPreview);
        EXPECT_FALSE(kit[1].graphic->dwFlags & kFlagPreview);
        EXPECT_TRUE(kit[2].graphic->dwFlags & kFlagPreview);

        GraphicStruct* preview = page.GetPreviewGraphic();
        ASSERT_NE(preview, nullptr);
        preview->dwFlags &= ~kFlagPreview;
        uint32_t position;
        EXPECT_EQ(preview, page.GetFirstObject(&position, 1));
        EXPECT_TRUE(preview->dwFlags & kFlagPreview);
        EXPECT_EQ(page.GetNextObject(&position, 1), nullptr);
    });
}

TEST(Walk, NullSelectionHasNoObjectsAndWritesNothing) {
    GraphicKit kit;
    ::PropPageInit();
    std::unique_ptr<CGraphicPropertySheet> sheet(
        ::InitGraphicPropertySheet(nullptr, nullptr, kit.Drawing(), nullptr, 0));
    auto* page = new ExchangePage([](CDataExchange*) {});
    sheet->AddPage(page);
    EXPECT_EQ(SheetDriver().Run(*sheet,
                                [&](SheetDriver& user) {
                                    user.SelectPage(1);
                                    uint32_t position;
                                    EXPECT_EQ(page->GetFirstObject(&position, 0), nullptr);
                                    double value = 3;
                                    EXPECT_EQ(page->GetPropText("Width", &value, 0), 0);
                                    EXPECT_EQ(page->SetPropText("Width", value, 0), 0);
                                    EXPECT_EQ(value, 3);
                                    user.Ok();
                                }),
              IDOK);
}

} // namespace

// The Block Insertion page for real insertions: equal and differing ones, writing, and the preview.

#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "drawcore/selection.h"
#include "drawcore/undo.h"
#include "orlo/entry/entry.h"
#include "orlo/frame/graphic_property_page.h"
#include "orlo/frame/graphic_property_sheet.h"
#include "orlo/pages/insert_parts.h"
#include "orlo/resources/resource.h"
#include "support/host_frame.h"
#include "support/message_box_watcher.h"
#include "support/sheet_driver.h"
#include "support/test_drawing.h"

namespace {

constexpr int kAll[] = {IDC_SCALE_X,    IDC_SCALE_Y,    IDC_SCALE_Z,    IDC_ROTATION_X, IDC_ROTATION_Y,
                        IDC_ROTATION_Z, IDC_POSITION_X, IDC_POSITION_Y, IDC_POSITION_Z};
constexpr double kDegree = 0.017453292519943295;

using Vertices = std::vector<double>; // of all insertions in order

class InsertPage : public ::testing::Test {
protected:
    InsertPage() {
        ::PropPageInit();
        blocks = ::BlocksFromDrawing(drawing.Get());
        block = ::BlocksAddBlock(blocks, "FLAG", ::GraphicNewEx(kGraphicVertices, 0, 1));
    }
    ~InsertPage() override { ::GraphicDispose(&selection); }

    GraphicStruct* Add(const InsertParts& parts) {
        GraphicStruct* graphic = ::GraphicNewEx(kGraphicInsert, 0, 1);
        ::InsertSetData(graphic, blocks, block, nullptr);
        ::InsertSetParts(graphic, &parts);
        ::GraphicAdd(::DrawingGetRoot(drawing.Get()), graphic);
        ::SelectionAdd(selection, graphic);
        insertions.push_back(graphic);
        return graphic;
    }
    void AddDiffering() {
        Add({{1, 2, 0}, {2, 2, 1}, {0, 0, 30 * kDegree}});
        Add({{1, 5, 0}, {2, 2, 1}, {0, 0, 60 * kDegree}});
        Add({{1, 7, 0}, {2, 3, 1}, {0, 0, 90 * kDegree}});
    }

    Vertices All() const {
        Vertices all;
        for (GraphicStruct* graphic : insertions)
            for (const VertexStruct* v : orlo::host::Vertices(graphic))
                all.insert(all.end(), {v->x, v->y, v->z});
        return all;
    }
    InsertParts Parts(size_t i) const {
        InsertParts parts{};
        ReadInsertParts(insertions[i], parts);
        return parts;
    }

    int Run(std::function<void(SheetDriver&, CGraphicPropertyPage&)> script) {
        HostFrame frame(drawing.Get());
        const std::unique_ptr<CGraphicPropertySheet> sheet(
            ::InitGraphicPropertySheet(&frame, nullptr, drawing.Get(), selection, kAllGraphics));
        for (GraphicStruct* graphic : insertions)
            ::AddGraphicPropertyPage(nullptr, graphic, sheet.get());
        EXPECT_EQ(sheet->GetPageCount(), 2) << "one page for all of them";
        return SheetDriver().Run(*sheet, [&](SheetDriver& user) {
            user.SelectPage(1);
            auto* page = sheet->FindPage(IDD_INSERT_PAGE);
            ASSERT_EQ(page, sheet->GetActivePage());
            script(user, static_cast<CGraphicPropertyPage&>(*page));
        });
    }
    // Presses OK at the end, which must succeed without a message.
    void RunOk(const SheetDriver::Script& script) {
        MessageBoxWatcher boxes;
        EXPECT_EQ(Run([&](SheetDriver& user, CGraphicPropertyPage&) {
                      script(user);
                      user.Ok();
                  }),
                  IDOK);
        EXPECT_TRUE(boxes.Boxes().empty());
    }
    // Changes the whole text at once, like pasting.
    static void Paste(SheetDriver& user, int id, const char* text) {
        user.Focus(id);
        ::SendMessageA(user.Control(id), EM_SETSEL, 0, -1);
        ::SendMessageA(user.Control(id), EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(text));
        user.Pump();
    }

    TestDrawing drawing;
    GraphicStruct* selection = ::SelectionNew();
    TableStruct* blocks;
    uint16_t block;
    std::vector<GraphicStruct*> insertions;
};

TEST_F(InsertPage, ShowsEqualPartsAndAsterisksForDifferingOnes) {
    AddDiffering();
    RunOk([&](SheetDriver& user) {
        std::string texts;
        for (const int id : kAll)
            texts += user.Text(id) + " ";
        EXPECT_EQ(texts, "2 ***** 1 0 0 ***** 1 ***** 0 ");
    });
}

TEST_F(InsertPage, UneditedPageWritesNothing) {
    // Digits that no field shows, a scale out of range, a collapsed axis, and a position out of range of a float: each
    // alone, then all together.
    const InsertParts kUnusual[] = {{{1.0 / 3, 2.0 / 7, 1e-9}, {1.0 / 3, 1.0 / 7, -7}, {1, 2, 3}},
                                    {{0, 0, 0}, {5000, 1, 1}, {0, 0, 0}},
                                    {{0, 0, 0}, {1, 1, 0}, {0, 0, 1}},
                                    {{1e39, 0, 0}, {1, 1, 1}, {0, 0, 0}}};
    ::DrawingBeginUndo(drawing.Get());
    for (size_t i = 0; i <= std::size(kUnusual); ++i) {
        SCOPED_TRACE(i);
        ::SelectionClear(selection);
        for (size_t k = 0; k < std::size(kUnusual); ++k)
            if (k == i || i == std::size(kUnusual)) Add(kUnusual[k]);
        const Vertices before = All();
        RunOk([](SheetDriver& user) {
            user.SelectPage(0);
            user.SelectPage(1);
        });
        EXPECT_EQ(before, All());
    }
    EXPECT_EQ(::DrawingEndUndo(drawing.Get()), 0);
}

// An edit of one field changes that part of all insertions and no other part; undo reverts it.
TEST_F(InsertPage, OneEditChangesOnePartOfEach) {
    const struct {
        int id;
        const char* text;
        double (InsertParts::*group)[3];
        int axis;
        double value;
    } kEdits[] = {{IDC_SCALE_X, "4", &InsertParts::scale, 0, 4},
                  {IDC_SCALE_Y, "0.5", &InsertParts::scale, 1, 0.5},
                  {IDC_SCALE_Z, "-3", &InsertParts::scale, 2, -3},
                  {IDC_ROTATION_Z, "45", &InsertParts::rotation, 2, 45 * kDegree},
                  {IDC_POSITION_X, "-7.5", &InsertParts::position, 0, -7.5},
                  {IDC_POSITION_Y, "1e6", &InsertParts::position, 1, 1e6},
                  {IDC_POSITION_Z, "3", &InsertParts::position, 2, 3}};
    AddDiffering();
    const Vertices before = All();
    for (const auto& edit : kEdits) {
        SCOPED_TRACE(edit.id);
        std::vector<InsertParts> expected;
        for (size_t i = 0; i < insertions.size(); ++i) {
            expected.push_back(Parts(i));
            (expected.back().*edit.group)[edit.axis] = edit.value;
        }
        ASSERT_TRUE(::DrawingBeginUndo(drawing.Get()));
        RunOk([&](SheetDriver& user) {
            Paste(user, edit.id, edit.text);
            EXPECT_EQ(before, All()) << "not while the sheet is open";
        });
        for (size_t i = 0; i < insertions.size(); ++i)
            for (const auto group : {&InsertParts::position, &InsertParts::scale, &InsertParts::rotation})
                for (int k = 0; k < 3; ++k)
                    EXPECT_NEAR((expected[i].*group)[k], (Parts(i).*group)[k], 1e-6);
        EXPECT_EQ(::DrawingEndUndo(drawing.Get()), 3);
        EXPECT_EQ(::DrawingUndo(drawing.Get()), 3);
        EXPECT_EQ(before, All());
    }
}

// A field whose original text was restored, by undo or by typing, is not edited.
TEST_F(InsertPage, RestoredTextWritesNothing) {
    Add({{1234567.891, 2, 0}, {1.0 / 3, 2, 1}, {0, 0, 30 * kDegree}});
    Add({{1234567.891, 5, 0}, {1.0 / 3, 3, 1}, {0, 0, 60 * kDegree}});
    const Vertices before = All();
    const auto revert = [&](SheetDriver& user, bool byUndo) {
        for (const int id : kAll) {
            const std::string first = user.Text(id);
            Paste(user, id, "7");
            byUndo ? void(::SendMessageA(user.Control(id), WM_UNDO, 0, 0)) : Paste(user, id, first.c_str());
            EXPECT_EQ(first, user.Text(id));
        }
    };
    for (const bool byUndo : {true, false}) {
        RunOk([&](SheetDriver& user) {
            revert(user, byUndo);
            user.SelectPage(0);
            user.SelectPage(1);
            Paste(user, IDC_SCALE_Z, "7");
            Paste(user, IDC_SCALE_Z, "*****"); // not a value, whatever it replaces
        });
        EXPECT_EQ(before, All());
    }
    // After writing, the new text is the original one.
    RunOk([&](SheetDriver& user) {
        Paste(user, IDC_POSITION_X, "9");
        user.SelectPage(0);
        EXPECT_EQ(Parts(0).position[0], 9);
        user.SelectPage(1);
        Paste(user, IDC_POSITION_X, "1.23457e+06");
    });
    EXPECT_EQ(Parts(1).position[0], 1234570);
}

// Otherwise "12d" would be reported while "12d30" is being typed.
TEST_F(InsertPage, RotationWithUnitsIsValidatedWhenItsFieldIsLeft) {
    AddDiffering();
    const Vertices before = All();
    Run([&](SheetDriver& user, CGraphicPropertyPage&) {
        MessageBoxWatcher boxes;
        user.Type(IDC_ROTATION_X, "12d30");
        EXPECT_TRUE(boxes.Boxes().empty());
        EXPECT_EQ(user.Text(IDC_ROTATION_X), "12d30");
        user.Key(VK_TAB);
        EXPECT_EQ(boxes.Boxes().size(), 1u);
        EXPECT_EQ(user.Control(IDC_ROTATION_X), ::GetFocus());
        EXPECT_EQ(user.Text(IDC_ROTATION_X), "12d30");
        boxes.Clear();
        user.Ok();
        EXPECT_EQ(boxes.Boxes().size(), 1u);
        user.Type(IDC_ROTATION_X, "12.5");
        user.Key(VK_TAB);
        EXPECT_EQ(boxes.Boxes().size(), 1u);
        EXPECT_EQ(user.Control(IDC_ROTATION_Y), ::GetFocus());
    });
    EXPECT_EQ(before, All());
}

// An existing preview block is used, and is removed with the page.
TEST_F(InsertPage, CancelChangesNoInsertionsUndoStepsOrBlocks) {
    AddDiffering();
    const uint16_t own = ::BlocksAddBlock(blocks, kPreviewBlock, ::GraphicNewEx(kGraphicVertices, 0, 1));
    Run([&](SheetDriver&, CGraphicPropertyPage& page) {
        EXPECT_EQ(own, ::BlocksFindBlock(blocks, kPreviewBlock));
        EXPECT_NE(page.GetPreviewGraphic(), nullptr);
    });
    EXPECT_EQ(::BlocksFindBlock(blocks, kPreviewBlock), 0);
    const Vertices before = All();
    ::DrawingBeginUndo(drawing.Get());
    EXPECT_EQ(Run([&](SheetDriver& user, CGraphicPropertyPage&) {
                  EXPECT_NE(::BlocksFindBlock(blocks, kPreviewBlock), 0);
                  for (const int id : kAll)
                      Paste(user, id, "9");
                  user.Cancel();
              }),
              IDCANCEL);
    EXPECT_EQ(before, All());
    EXPECT_EQ(::DrawingEndUndo(drawing.Get()), 0);
    EXPECT_EQ(::BlocksFindBlock(blocks, kPreviewBlock), 0);
    int cookie = 0;
    EXPECT_EQ(block, ::TableEntryFirst(blocks, &cookie));
    EXPECT_EQ(::TableEntryNext(blocks, &cookie), 0) << "no other block";
}

// The message appears while the user types, unless the text may become a number; OK then keeps page, text and focus
// until the value is valid.
TEST_F(InsertPage, ReportsAnInvalidNumberImmediatelyAndKeepsThePage) {
    AddDiffering();
    const Vertices before = All();
    const struct {
        int id;
        const char* text;
        size_t reported;
    } kRows[] = {{IDC_SCALE_X, "1001", 1},     {IDC_SCALE_Y, "-1000.1", 1},  {IDC_SCALE_Z, "wide", 1},
                 {IDC_POSITION_X, "", 0},      {IDC_POSITION_Y, "1e", 0},    {IDC_POSITION_Z, "1,5,7", 1},
                 {IDC_POSITION_Z, "1e39-", 1}, {IDC_ROTATION_X, "north", 1}, {IDC_ROTATION_Y, "-", 0},
                 {IDC_POSITION_X, "2*(", 0},   {IDC_POSITION_Y, "2*)", 1},   {IDC_POSITION_Z, "1/0", 0}};
    for (const auto& row : kRows) {
        SCOPED_TRACE(row.text);
        EXPECT_EQ(Run([&](SheetDriver& user, CGraphicPropertyPage& page) {
                      MessageBoxWatcher boxes;
                      Paste(user, row.id, row.text);
                      EXPECT_EQ(row.reported, boxes.Boxes().size());
                      user.Focus(row.id == IDC_SCALE_X ? IDC_SCALE_Y : IDC_SCALE_X);
                      boxes.Clear();
                      user.Ok();
                      EXPECT_EQ(boxes.Boxes().size(), 1u);
                      EXPECT_TRUE(::IsWindowVisible(user.Sheet()));
                      EXPECT_EQ(user.Control(row.id), ::GetFocus());
                      EXPECT_EQ(row.text, user.Text(row.id));
                      user.SelectPage(0);
                      EXPECT_EQ(page.m_hWnd, user.Page()) << "nor can the page be changed";
                  }),
                  IDCANCEL);
        EXPECT_EQ(before, All());
    }
}

TEST_F(InsertPage, NumbersCanBeTypedKeyByKey) {
    Add({{1, 2, 3}, {1, 1, 1}, {0, 0, 0}});
    const struct {
        const char* text;
        double value;
    } kRows[] = {{"-5", -5},        {".5", 0.5},       {"-0.0625", -0.0625}, {"1e2", 100},
                 {"+2.5e-1", 0.25}, {"2*(1-1.5)", -1}, {"6 1/2", 6.5}};
    for (const auto& row : kRows) {
        SCOPED_TRACE(row.text);
        RunOk([&](SheetDriver& user) {
            user.Type(IDC_POSITION_Y, "");
            user.Type(IDC_POSITION_Y, row.text);
        });
        EXPECT_EQ(row.value, Parts(0).position[1]);
    }
}

TEST_F(InsertPage, ThePreviewFollowsTyping) {
    Add({{5, 6, 0}, {2, 2, 1}, {0, 0, 30 * kDegree}});
    const Vertices before = All();
    Run([&](SheetDriver& user, CGraphicPropertyPage& page) {
        const auto preview = [&] {
            InsertParts parts{};
            ReadInsertParts(page.GetPreviewGraphic(), parts);
            return parts;
        };
        EXPECT_NEAR(30 * kDegree, preview().rotation[2], 1e-6) << "as the selection from the start";
        EXPECT_NEAR(2, preview().scale[0], 1e-6);
        user.Type(IDC_ROTATION_Z, "45");
        EXPECT_NEAR(45 * kDegree, preview().rotation[2], 1e-6);
        user.Type(IDC_ROTATION_X, "10");
        EXPECT_NEAR(10 * kDegree, preview().rotation[0], 1e-6);
        Paste(user, IDC_SCALE_Z, "-2");
        EXPECT_NEAR(-2, preview().scale[2], 1e-6);
        EXPECT_EQ(before, All());
    });
}

TEST_F(InsertPage, InsertionsWithCollapsedAxesCanBeRotatedMovedAndRescaled) {
    Add({{0, 0, 0}, {2, 2, 0}, {0, 0, 30 * kDegree}});
    RunOk([&](SheetDriver& user) {
        EXPECT_EQ(user.Text(IDC_SCALE_Z), "0");
        EXPECT_EQ(user.Text(IDC_ROTATION_Z), "30");
        user.Type(IDC_ROTATION_Z, "60");
    });
    EXPECT_NEAR(60 * kDegree, Parts(0).rotation[2], 1e-6);
    EXPECT_EQ(Parts(0).scale[2], 0);
    RunOk([](SheetDriver& user) { user.Type(IDC_SCALE_Z, "3"); });
    EXPECT_NEAR(60 * kDegree, Parts(0).rotation[2], 1e-6);
    EXPECT_NEAR(3, Parts(0).scale[2], 1e-6);
    EXPECT_NEAR(2, Parts(0).scale[0], 1e-6);
}

} // namespace

// The exchange of a page is all or nothing, and one property's trouble stays its own.

#include <gtest/gtest.h>

#include <stdexcept>

#include "orlo/exchange/ddp.h"
#include "orlo/exchange/ddx.h"
#include "support/message_box_watcher.h"
#include "support/test_sheet.h"

namespace {

struct TwoNumbers {
    double width = 0, scale = 0;

    ExchangePage::Exchange Exchange() {
        return [this](CDataExchange* pDX) {
            DDP_Text(pDX, kEdit, width, "Width");
            DDX_Text(1, pDX, kEdit, width);
            DDP_Text(pDX, kOtherEdit, scale, "Scale");
            DDX_Text(1, pDX, kOtherEdit, scale);
            DDV_MinMaxDouble(1, pDX, scale, 1.0, 10.0);
            DDP_PostProcessing(pDX);
        };
    }
};

GraphicKit& AddTwo(GraphicKit& kit) {
    kit.Add({{"Width", 1.0}, {"Scale", 2.0}});
    kit.Add({{"Width", 1.0}, {"Scale", 2.0}});
    return kit;
}

TEST(AllOrNothing, ABadLastControlWritesNothingAndTheNextTryWritesEachOnce) {
    for (const char* bad : {"abc", "99", "", "2x"}) {
        SCOPED_TRACE(bad);
        GraphicKit kit;
        AddTwo(kit);
        TwoNumbers numbers;
        TestSheet sheet(kit);
        sheet.Add(numbers.Exchange());
        EXPECT_EQ(IDOK, sheet.Run([&](SheetDriver& user) {
            MessageBoxWatcher boxes;
            user.Type(kEdit, "5");
            user.Type(kOtherEdit, bad);
            user.Ok();
            EXPECT_EQ(1u, boxes.Boxes().size());
            EXPECT_TRUE(::IsWindowVisible(user.Sheet()));
            EXPECT_EQ(user.Control(kOtherEdit), ::GetFocus());
            EXPECT_EQ(0, kit.Writes());
            user.Type(kOtherEdit, "3");
            user.Ok();
        }));
        for (size_t i : {0, 1}) {
            EXPECT_EQ(5.0, kit[i].Number("Width"));
            EXPECT_EQ(3.0, kit[i].Number("Scale"));
            EXPECT_EQ(2u, kit[i].writes.size());
        }
    }
}

TEST(AllOrNothing, CancelAfterARefusalWritesNothing) {
    GraphicKit kit;
    AddTwo(kit);
    TwoNumbers numbers;
    TestSheet sheet(kit);
    sheet.Add(numbers.Exchange());
    EXPECT_EQ(IDCANCEL, sheet.Run([&](SheetDriver& user) {
        MessageBoxWatcher boxes;
        user.Type(kEdit, "5");
        user.Type(kOtherEdit, "bad");
        user.Ok();
        user.Cancel();
    }));
    EXPECT_EQ(0, kit.Writes());
}

TEST(AllOrNothing, ARefusedTabChangeKeepsPageFocusAndText) {
    GraphicKit kit;
    AddTwo(kit);
    TwoNumbers numbers;
    TestSheet sheet(kit);
    sheet.Add(numbers.Exchange());
    sheet.Run([&](SheetDriver& user) {
        MessageBoxWatcher boxes;
        user.Type(kOtherEdit, "bad");
        user.SelectPage(0);
        EXPECT_EQ(1, user.ActivePage());
        EXPECT_EQ("bad", user.Text(kOtherEdit));
        EXPECT_EQ(user.Control(kOtherEdit), ::GetFocus());
    });
    EXPECT_EQ(0, kit.Writes());
}

// A clean control makes no write even if its member differs from the graphics.
TEST(AllOrNothing, OnlyDirtyControlsAreWritten) {
    GraphicKit kit;
    AddTwo(kit);
    TwoNumbers numbers;
    TestSheet sheet(kit);
    sheet.Add(numbers.Exchange());
    sheet.Run([&](SheetDriver& user) {
        kit[0].properties["Width"].number = 77;
        user.Type(kOtherEdit, "3");
        user.Ok();
    });
    EXPECT_EQ(77, kit[0].Number("Width"));
    EXPECT_EQ(3, kit[1].Number("Scale"));
}

struct Refusal {
    const char* name;
    std::function<void(const std::string&)> onSet; // of the second graphic; else it gives 0
    int arrived;                                   // of three graphics have the width
    const char* said;
};

template <class Throw>
std::function<void(const std::string&)> AtWidth(Throw fail) {
    return [=](const std::string& name) {
        if (name == "Width") fail();
    };
}

// What a host does not take stays with its property and is said once, when all the rest is written.
TEST(WriteBack, WhatAHostRefusesIsCountedAndTheRestIsWritten) {
    const Refusal kRefusals[] = {
        {"result", nullptr, 2, "1 of 3 graphics could not be changed."},
        {"framework exception", AtWidth([] { AfxThrowUserException(); }), 1,
         "2 of 3 graphics could not be changed."},
        {"standard exception", AtWidth([] { throw std::runtime_error("no disk"); }), 1,
         "2 of 3 graphics could not be changed.\nno disk"},
        {"anything", AtWidth([] { throw 1; }), 1,
         "2 of 3 graphics could not be changed.\nSomething went wrong inside the program."},
    };
    for (const Refusal& refusal : kRefusals) {
        SCOPED_TRACE(refusal.name);
        GraphicKit kit;
        AddTwo(kit);
        kit.Add({{"Width", 1.0}, {"Scale", 2.0}});
        if (refusal.onSet)
            kit[1].onSet = refusal.onSet;
        else
            kit[1].refused = "Width";
        TwoNumbers numbers;
        TestSheet sheet(kit);
        sheet.Add(numbers.Exchange());
        MessageBoxWatcher boxes;
        EXPECT_EQ(IDOK, sheet.Run([&](SheetDriver& user) {
            user.Type(kEdit, "5");
            user.Type(kOtherEdit, "3");
            user.Ok();
        }));
        EXPECT_EQ(refusal.said, boxes.OnlyText());
        int arrived = 0;
        for (size_t i : {0, 1, 2}) {
            arrived += kit[i].Number("Width") == 5;
            EXPECT_EQ(3, kit[i].Number("Scale"));
        }
        EXPECT_EQ(refusal.arrived, arrived);
    }
}

TEST(WriteBack, StampsTheSelectionAlsoWhenNothingWasDirty) {
    GraphicKit kit;
    AddTwo(kit);
    GraphicStruct* bare = kit.AddWithoutTable();
    TwoNumbers numbers;
    TestSheet sheet(kit);
    sheet.Add(numbers.Exchange());
    sheet.Run([&](SheetDriver& user) { user.Ok(); });
    EXPECT_EQ(kTestPage, kit[0].graphic->wLastPage);
    EXPECT_EQ(kTestPage, bare->wLastPage);
    EXPECT_EQ(0, kit.Writes());
}

// Members whose addresses agree in their low 16 bits: each keeps its own write.
TEST(WriteBack, MembersThatShareAKeyBothArrive) {
    static unsigned char memory[0x10000 + sizeof(double)];
    auto* first = new (memory) double(0);
    auto* second = new (memory + 0x10000) double(0);
    ASSERT_EQ(reinterpret_cast<UINT_PTR>(first) & 0xFFFF, reinterpret_cast<UINT_PTR>(second) & 0xFFFF);
    GraphicKit kit;
    AddTwo(kit);
    TestSheet sheet(kit);
    sheet.Add([&](CDataExchange* pDX) {
        DDP_Text(pDX, kEdit, *first, "Width");
        DDX_Text(1, pDX, kEdit, *first);
        DDP_Text(pDX, kOtherEdit, *second, "Scale");
        DDX_Text(1, pDX, kOtherEdit, *second);
        DDP_PostProcessing(pDX);
    });
    sheet.Run([&](SheetDriver& user) {
        user.Type(kEdit, "5");
        user.Type(kOtherEdit, "6");
        user.Ok();
    });
    EXPECT_EQ(5, kit[0].Number("Width"));
    EXPECT_EQ(6, kit[0].Number("Scale"));
}

// A member on the stack of an exchange that failed is gone: the write that it left pending must not be carried out later,
// whoever began the exchanges.
TEST(WriteBack, APendingWriteOfARefusedExchangeIsDropped) {
    GraphicKit kit;
    AddTwo(kit);
    double scale = 0;
    bool bindWidth = true;
    TestSheet sheet(kit);
    ExchangePage& page = sheet.Add([&](CDataExchange* pDX) {
        double local = 123;
        if (bindWidth) DDP_Text(pDX, kEdit, local, "Width");
        DDP_Text(pDX, kOtherEdit, scale, "Scale");
        DDX_Text(1, pDX, kOtherEdit, scale);
        DDP_PostProcessing(pDX);
    });
    sheet.Run([&](SheetDriver& user) {
        MessageBoxWatcher boxes;
        user.Type(kEdit, "5");
        user.Type(kOtherEdit, "bad");
        EXPECT_FALSE(page.UpdateData(TRUE));
        bindWidth = false;
        user.Type(kOtherEdit, "6");
        EXPECT_TRUE(page.UpdateData(TRUE));
        user.Ok();
    });
    EXPECT_EQ(1, kit[0].Number("Width"));
    EXPECT_EQ(6, kit[0].Number("Scale"));
}

} // namespace

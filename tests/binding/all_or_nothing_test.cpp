// Writing a page: all values or none; a failed write of one property does not affect the others.

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

// A sheet for two graphics that have both numbers.
struct OverTwo {
    OverTwo() {
        for (int i = 0; i < 2; ++i)
            kit.Add({{"Width", 1.0}, {"Scale", 2.0}});
    }
    GraphicKit kit;
    TwoNumbers numbers;
    TestSheet sheet{kit};
};

TEST(AllOrNothing, InvalidLastControlWritesNothingAndTheNextAttemptWritesEachOnce) {
    for (const char* bad : {"abc", "99", "", "2x"}) {
        SCOPED_TRACE(bad);
        OverTwo over;
        GraphicKit& kit = over.kit;
        over.sheet.Add(over.numbers.Exchange());
        EXPECT_EQ(over.sheet.Run([&](SheetDriver& user) {
            MessageBoxWatcher boxes;
            user.Type(kEdit, "5");
            user.Type(kOtherEdit, bad);
            user.Ok();
            EXPECT_EQ(boxes.Boxes().size(), 1u);
            EXPECT_TRUE(::IsWindowVisible(user.Sheet()));
            EXPECT_EQ(user.Control(kOtherEdit), ::GetFocus());
            EXPECT_EQ(kit.Writes(), 0);
            user.Type(kOtherEdit, "3");
            user.Ok();
        }),
                  IDOK);
        for (size_t i : {0, 1}) {
            EXPECT_EQ(kit[i].Number("Width"), 5.0);
            EXPECT_EQ(kit[i].Number("Scale"), 3.0);
            EXPECT_EQ(kit[i].writes.size(), 2u);
        }
    }
}

struct Rejection {
    const char* name;
    std::function<void(const std::string&)> onSet; // of the second graphic; if null, the write returns 0
    int written;                                   // number of the three graphics that got the width
    const char* message;
};

template <class Throw>
std::function<void(const std::string&)> AtWidth(Throw fail) {
    return [=](const std::string& name) {
        if (name == "Width") fail();
    };
}

// A rejected value affects only its property and is reported once, after all other values have been written.
TEST(WriteBack, RejectedValuesAreCountedAndOthersWritten) {
    const Rejection kRejections[] = {
        {"result", nullptr, 2, "1 of 3 graphics could not be changed."},
        {"framework exception", AtWidth([] { AfxThrowUserException(); }), 1, "2 of 3 graphics could not be changed."},
        {"standard exception", AtWidth([] { throw std::runtime_error("no disk"); }), 1,
         "2 of 3 graphics could not be changed.\nno disk"},
        {"anything", AtWidth([] { throw 1; }), 1, "2 of 3 graphics could not be changed.\nAn internal error occurred."},
    };
    for (const Rejection& rejection : kRejections) {
        SCOPED_TRACE(rejection.name);
        OverTwo over;
        GraphicKit& kit = over.kit;
        kit.Add({{"Width", 1.0}, {"Scale", 2.0}});
        kit[1].onSet = rejection.onSet;
        if (!rejection.onSet) kit[1].rejected = "Width";
        over.sheet.Add(over.numbers.Exchange());
        MessageBoxWatcher boxes;
        EXPECT_EQ(over.sheet.Run([&](SheetDriver& user) {
            user.Type(kEdit, "5");
            user.Type(kOtherEdit, "3");
            user.Ok();
        }),
                  IDOK);
        EXPECT_EQ(rejection.message, boxes.OnlyText());
        int written = 0;
        for (size_t i : {0, 1, 2}) {
            written += kit[i].Number("Width") == 5;
            EXPECT_EQ(kit[i].Number("Scale"), 3);
        }
        EXPECT_EQ(rejection.written, written);
    }
}

TEST(WriteBack, SetsTheLastPageEvenIfNothingIsDirty) {
    OverTwo over;
    GraphicStruct* bare = over.kit.AddWithoutTable();
    over.sheet.Add(over.numbers.Exchange());
    over.sheet.Run([&](SheetDriver& user) { user.Ok(); });
    EXPECT_EQ(over.kit[0].graphic->wLastPage, kTestPage);
    EXPECT_EQ(bare->wLastPage, kTestPage);
    EXPECT_EQ(over.kit.Writes(), 0);
}

// The member of a failed exchange may have been on the stack: its pending write must never be carried out.
TEST(WriteBack, APendingWriteOfAFailedExchangeIsDiscarded) {
    OverTwo over;
    double scale = 0;
    bool bindWidth = true;
    ExchangePage& page = over.sheet.Add([&](CDataExchange* pDX) {
        double local = 123;
        if (bindWidth) DDP_Text(pDX, kEdit, local, "Width");
        DDP_Text(pDX, kOtherEdit, scale, "Scale");
        DDX_Text(1, pDX, kOtherEdit, scale);
        DDP_PostProcessing(pDX);
    });
    over.sheet.Run([&](SheetDriver& user) {
        MessageBoxWatcher boxes;
        user.Type(kEdit, "5");
        user.Type(kOtherEdit, "bad");
        EXPECT_FALSE(page.UpdateData(TRUE));
        bindWidth = false;
        user.Type(kOtherEdit, "6");
        EXPECT_TRUE(page.UpdateData(TRUE));
        user.Ok();
    });
    EXPECT_EQ(over.kit[0].Number("Width"), 1);
    EXPECT_EQ(over.kit[0].Number("Scale"), 6);
}

} // namespace

// Detection of edits: a control that shows what was loaded writes nothing, and its member keeps every digit.

#include <gtest/gtest.h>

#include "orlo/exchange/ddp.h"
#include "orlo/exchange/ddx.h"
#include "support/message_box_watcher.h"
#include "support/test_sheet.h"

namespace {

constexpr double kThird = 1.0 / 3;

// A property for each kind of control, and a user action that changes the display and another one that restores it.
struct KindOfControl {
    const char* name;
    int id;
    std::function<void(CDataExchange*)> exchange;
    SheetDriver::Script change, restore;
};

class EditedControls : public ::testing::Test {
protected:
    EditedControls() {
        for (int i = 0; i < 2; ++i)
            kit.Add({{"Width", kThird},
                     {"Text", "wall"},
                     {"On", 1},
                     {"Button", 1},
                     {"Item", 2},
                     {"Choice", 1},
                     {"Bits", 5}});
    }

    static void FillLists(CDataExchange* pDX) {
        if (pDX->m_bSaveAndValidate) return;
        for (const char* item : {"A", "B", "C"}) {
            ::SendMessageA(pDX->PrepareCtrl(kCombo), CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(item));
            ::SendMessageA(pDX->PrepareCtrl(kList), LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(item));
        }
    }
    static void Undo(SheetDriver& user, int id) {
        ::SendMessageA(user.Control(id), WM_UNDO, 0, 0);
        user.Pump();
    }

    GraphicKit kit;
    double width = 0;
    CString text;
    int on = 0, button = 0, choice = 0, item = 0;
    unsigned short bits[2] = {};
    const KindOfControl kinds[6] = {
        {"number", kEdit,
         [this](CDataExchange* pDX) {
             DDP_Text(pDX, kEdit, width, "Width");
             DDX_Text(1, pDX, kEdit, width);
         },
         [](SheetDriver& user) { user.Type(kEdit, "5"); }, [](SheetDriver& user) { Undo(user, kEdit); }},
        {"text", kOtherEdit,
         [this](CDataExchange* pDX) {
             DDP_Text(pDX, kOtherEdit, text, "Text");
             DDX_Text(1, pDX, kOtherEdit, text);
         },
         [](SheetDriver& user) { user.Type(kOtherEdit, "door"); },
         [](SheetDriver& user) { user.Type(kOtherEdit, "wall"); }},
        {"box", kCheck,
         [this](CDataExchange* pDX) {
             DDP_Check(pDX, kCheck, on, "On");
             DDX_Check(1, pDX, kCheck, on);
         },
         [](SheetDriver& user) {
             user.Click(kCheck); // to the indeterminate state, which is not a value
             user.Click(kCheck);
         },
         [](SheetDriver& user) {
             for (int i = 0; i < 3 && user.Check(kCheck) != 1; ++i)
                 user.Click(kCheck);
         }},
        {"buttons", kRadio,
         [this](CDataExchange* pDX) {
             DDP_Radio(pDX, kRadio, button, "Button");
             DDX_Radio(1, pDX, kRadio, button);
         },
         [](SheetDriver& user) { user.Click(kRadio + 2); }, [](SheetDriver& user) { user.Click(kRadio + 1); }},
        {"combo", kCombo,
         [this](CDataExchange* pDX) {
             DDP_Text(pDX, kCombo, choice, "Choice");
             DDX_CBIndex(1, pDX, kCombo, choice);
         },
         [](SheetDriver& user) {
             user.Focus(kCombo);
             user.Key(VK_DOWN);
         },
         [](SheetDriver& user) { user.Key(VK_UP); }},
        {"list", kList,
         [this](CDataExchange* pDX) {
             DDP_Text(pDX, kList, item, "Item");
             DDX_LBIndex(1, pDX, kList, item);
         },
         [](SheetDriver& user) { user.SelectItem(kList, 0); }, [](SheetDriver& user) { user.SelectItem(kList, 2); }}};
};

TEST_F(EditedControls, ShowSomethingOtherThanWhatWasLoaded) {
    for (const KindOfControl& kind : kinds) {
        for (const bool restore : {true, false}) {
            SCOPED_TRACE(kind.name);
            std::map<std::string, KitValue> before = kit[0].properties;
            TestSheet sheet(kit);
            ExchangePage& page = sheet.Add([&](CDataExchange* pDX) {
                FillLists(pDX);
                kind.exchange(pDX);
                DDP_PostProcessing(pDX);
            });
            EXPECT_EQ(sheet.Run([&](SheetDriver& user) {
                EXPECT_EQ(page.IsEdited(kind.id), 0);
                kind.change(user);
                EXPECT_EQ(page.IsEdited(kind.id), 1);
                if (restore) kind.restore(user);
                EXPECT_EQ(page.GetControlStatus(kind.id), 1) << "the mark stays";
                EXPECT_EQ(!restore, page.IsEdited(kind.id) != 0);
                user.Ok();
            }),
                      IDOK);
            EXPECT_EQ(restore ? 0 : 2, kit.Writes());
            EXPECT_EQ(restore, before == kit[0].properties);
            if (restore && kind.id == kEdit) {
                EXPECT_EQ(width, kThird) << "not the value of the text";
            }
            for (size_t i : {0, 1}) {
                kit[i].properties = before;
                kit[i].writes.clear();
            }
        }
    }
}

// Two controls of one member: restoring the text of one does not discard the edit of the other.
TEST_F(EditedControls, OneOfTwoControlsOfAMemberIsEnough) {
    kit[1].properties["Bits"] = 4;
    TestSheet sheet(kit);
    sheet.Add([&](CDataExchange* pDX) {
        DDP_Bits(pDX, kCheck, bits, "Bits");
        DDX_Check(1, pDX, kCheck, on);
        if (pDX->m_bSaveAndValidate && on == 1) bits[1] |= 8;
        DDP_TextSetAt(pDX, kOtherEdit, bits, "Bits");
        DDX_Text(1, pDX, kOtherEdit, text);
        DDP_PostProcessing(pDX);
    });
    sheet.Run([&](SheetDriver& user) {
        user.Click(kCheck);
        user.Type(kOtherEdit, "x");
        user.Type(kOtherEdit, "");
        user.Ok();
    });
    EXPECT_EQ(kit[0].Number("Bits"), 13);
    EXPECT_EQ(kit[1].Number("Bits"), 12);
    EXPECT_EQ(kit[0].writes.size(), 1u);
}

// Loading by the page or by the refresh command marks no control, and values keep all digits.
TEST_F(EditedControls, DoNotIncludeReloadedControls) {
    struct Refreshed : ExchangePage {
        using ExchangePage::ExchangePage;
        void Refresh() {
            m_bRefreshPending = 1;
            SendMessage(WM_COMMAND, 0xFFFF, 0);
        }
    };
    TestSheet sheet(kit);
    auto* page = new Refreshed([&](CDataExchange* pDX) {
        DDP_Text(pDX, kEdit, width, "Width");
        DDX_Text(1, pDX, kEdit, width);
        DDP_PostProcessing(pDX);
    });
    sheet.Sheet().AddPage(page);
    sheet.Run([&](SheetDriver& user) {
        for (const bool byCommand : {true, false}) {
            for (size_t i : {0, 1})
                kit[i].properties["Width"].number /= 7;
            page->previewCalls.clear();
            byCommand ? page->Refresh() : void(page->UpdateData(FALSE));
            EXPECT_EQ(byCommand, page->previewCalls == std::vector<int>{1});
            EXPECT_EQ(page->GetControlStatus(kEdit), 0);
            EXPECT_EQ(page->IsModified(), 0);
        }
        EXPECT_EQ(user.Text(kEdit), "0.00680272");
        page->SetControlStatus(kEdit, 1); // not even then
        user.Ok();
    });
    EXPECT_EQ(kit.Writes(), 0);
    EXPECT_EQ(kThird / 7 / 7, width);
}

// The written value is the base for later edits, whether or not the page was left in between.
TEST_F(EditedControls, AreComparedWithTheLastWrittenValue) {
    for (const bool leave : {true, false}) {
        TestSheet sheet(kit);
        ExchangePage& page = sheet.Add([&](CDataExchange* pDX) {
            kinds[0].exchange(pDX);
            DDP_PostProcessing(pDX);
        });
        sheet.Run([&](SheetDriver& user) {
            const std::string first = user.Text(kEdit);
            const auto save = [&] {
                if (leave) {
                    user.SelectPage(0);
                    user.SelectPage(1);
                } else {
                    EXPECT_TRUE(page.UpdateData(TRUE));
                }
            };
            user.Type(kEdit, "5");
            save();
            EXPECT_EQ(kit[0].Number("Width"), 5);
            user.Type(kEdit, first);
            save();
            EXPECT_NEAR(kThird, kit[0].Number("Width"), 1e-6) << "typed, so the value has changed";
            EXPECT_NE(kit[0].Number("Width"), 5);
        });
    }
}

// If asterisks are typed over a number, the values of the graphics do not change, whatever a failed exchange has left
// in the member.
TEST_F(EditedControls, AsterisksInPlaceOfANumberWriteNothing) {
    TestSheet sheet(kit);
    sheet.Add([&](CDataExchange* pDX) {
        DDP_Text(pDX, kEdit, width, "Width");
        DDX_Text(1, pDX, kEdit, width);
        DDP_Text(pDX, kOtherEdit, text, "Text");
        DDX_Text(1, pDX, kOtherEdit, text);
        DDV_MaxChars(1, pDX, text, 4);
        DDP_PostProcessing(pDX);
    });
    EXPECT_EQ(sheet.Run([&](SheetDriver& user) {
        MessageBoxWatcher boxes;
        user.Type(kEdit, "5");
        user.Type(kOtherEdit, "*****");
        user.Ok();
        EXPECT_EQ(boxes.Boxes().size(), 1u);
        user.Type(kEdit, "*****");
        user.Type(kOtherEdit, "****");
        user.Ok();
    }),
              IDOK);
    EXPECT_EQ(kit[0].Number("Width"), kThird);
    EXPECT_EQ(kit[0].Text("Text"), "****") << "asterisks are ordinary text";
}

} // namespace

// The data flow of one edit, for each type of member: from the graphics to a control, changed by the user, and back.

#include <gtest/gtest.h>

#include "orlo/binding/indeterminate.h"
#include "orlo/exchange/ddp.h"
#include "orlo/exchange/ddx.h"
#include "support/test_sheet.h"

namespace {

constexpr char kName[] = "Property";

// A member that is bound to an edit control.
template <class T>
ExchangePage::Exchange InEdit(T& member) {
    return [&member](CDataExchange* pDX) {
        DDP_Text(pDX, kEdit, member, kName);
        DDX_Text(1, pDX, kEdit, member);
        DDP_PostProcessing(pDX);
    };
}

template <class T>
struct Sample {
    static KitValue A() { return 7; }
    static KitValue B() { return 9; }
    static const char* Shown() { return "7"; }
};

template <>
struct Sample<CString> {
    static KitValue A() { return "wall"; }
    static KitValue B() { return "door"; }
    static const char* Shown() { return "wall"; }
};

template <class T>
class EditDataFlow : public ::testing::Test {};

using EditTypes =
    ::testing::Types<unsigned char, unsigned short, int, unsigned int, long, unsigned long, float, double, CString>;
TYPED_TEST_SUITE(EditDataFlow, EditTypes);

TYPED_TEST(EditDataFlow, EqualValuesAreShownAndAllReplaced) {
    GraphicKit kit;
    kit.Add({{kName, Sample<TypeParam>::A()}});
    kit.Add({{"Other", 1}});
    kit.AddWithoutTable();
    kit.Add({{kName, Sample<TypeParam>::A()}});
    TypeParam member{};
    TestSheet sheet(kit);
    sheet.Add(InEdit(member));
    EXPECT_EQ(sheet.Run([](SheetDriver& user) {
        EXPECT_EQ(Sample<TypeParam>::Shown(), user.Text(kEdit));
        user.Type(kEdit, "42");
        user.Ok();
    }),
              IDOK);
    for (size_t i : {0, 2}) {
        const KitValue expected = Sample<TypeParam>::A().text.empty() ? KitValue(42) : KitValue("42");
        EXPECT_EQ(expected.number, kit[i].properties[kName].number);
        EXPECT_EQ(expected.text, kit[i].properties[kName].text);
        EXPECT_EQ(kit[i].writes.size(), 1u);
    }
    EXPECT_TRUE(kit[1].writes.empty());
}

TYPED_TEST(EditDataFlow, IndeterminateValuesSurviveAnUneditedPage) {
    GraphicKit kit;
    kit.Add({{kName, Sample<TypeParam>::A()}});
    kit.Add({{kName, Sample<TypeParam>::B()}});
    TypeParam member{};
    TestSheet sheet(kit);
    sheet.Add(InEdit(member));
    EXPECT_EQ(sheet.Run([&](SheetDriver& user) {
        EXPECT_TRUE(IsIndeterminate(member));
        user.Ok();
    }),
              IDOK);
    EXPECT_EQ(kit.Writes(), 0);
    EXPECT_TRUE(kit[0].properties[kName] == Sample<TypeParam>::A());
    EXPECT_TRUE(kit[1].properties[kName] == Sample<TypeParam>::B());
}

template <class T>
class CheckDataFlow : public ::testing::Test {};
using CheckTypes = ::testing::Types<int, unsigned short>;
TYPED_TEST_SUITE(CheckDataFlow, CheckTypes);

TYPED_TEST(CheckDataFlow, ClickWritesToAllAndNoClickWritesNothing) {
    const struct {
        int values[2];
        bool clicked;
        int shown, written[2];
    } rows[] = {{{1, 0}, false, BST_INDETERMINATE, {1, 0}},
                {{1, 0}, true, BST_INDETERMINATE, {0, 0}}, // after the indeterminate state comes unchecked
                {{0, 0}, true, BST_UNCHECKED, {1, 1}}};
    for (const auto& row : rows) {
        GraphicKit kit;
        for (const int value : row.values)
            kit.Add({{kName, value}});
        TypeParam member{};
        TestSheet sheet(kit);
        sheet.Add([&](CDataExchange* pDX) {
            DDP_Check(pDX, kCheck, member, kName);
            DDX_Check(1, pDX, kCheck, member);
            DDP_PostProcessing(pDX);
        });
        sheet.Run([&](SheetDriver& user) {
            EXPECT_EQ(row.shown, user.Check(kCheck));
            if (row.clicked) user.Click(kCheck);
            user.Ok();
        });
        EXPECT_EQ(row.clicked ? 2 : 0, kit.Writes());
        for (size_t i : {0, 1})
            EXPECT_EQ(row.written[i], kit[i].Number(kName));
    }
}

template <class T>
class RadioDataFlow : public ::testing::Test {};
TYPED_TEST_SUITE(RadioDataFlow, CheckTypes);

TYPED_TEST(RadioDataFlow, TheThirdButtonWritesItsIndexIfTheFirstIsDirty) {
    GraphicKit kit;
    kit.Add({{kName, 0}});
    kit.Add({{kName, 1}});
    TypeParam member{};
    TestSheet sheet(kit);
    ExchangePage& page = sheet.Add([&](CDataExchange* pDX) {
        DDP_Radio(pDX, kRadio, member, kName);
        DDX_Radio(1, pDX, kRadio, member);
        DDP_PostProcessing(pDX);
    });
    sheet.Run([&](SheetDriver& user) {
        for (int id = kRadio; id < kRadio + 3; ++id)
            EXPECT_EQ(user.Check(id), 0); // different values: no button is checked
        user.Click(kRadio + 2);
        EXPECT_EQ(page.GetControlStatus(kRadio), 1);
        EXPECT_EQ(page.GetControlStatus(kRadio + 2), 0);
        user.Ok();
    });
    EXPECT_EQ(kit[0].Number(kName), 2);
    EXPECT_EQ(kit[1].Number(kName), 2);
}

} // namespace

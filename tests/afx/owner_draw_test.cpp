// Owner drawing: messages to the parent become calls of the control's virtual functions.

#include "afx_test_ids.h"

#include <afxwin.h>

#include <gtest/gtest.h>

#include <string>

namespace {

constexpr int kItemHeight = 23;

// Records the same calls for a list box and a combo box.
template <class Base>
class Drawn : public Base {
public:
    std::string calls;
    int lastDrawn = -2;

    void DrawItem(LPDRAWITEMSTRUCT record) override {
        Note('D');
        lastDrawn = static_cast<int>(record->itemID);
    }
    void MeasureItem(LPMEASUREITEMSTRUCT record) override {
        Note('M');
        record->itemHeight = kItemHeight;
    }
    int CompareItem(LPCOMPAREITEMSTRUCT record) override {
        Note('C');
        const auto less = [](ULONG_PTR a, ULONG_PTR b) { return a < b ? -1 : a > b; };
        return less(record->itemData1, record->itemData2);
    }
    void DeleteItem(LPDELETEITEMSTRUCT) override { Note('X'); }

private:
    void Note(char call) {
        if (calls.find(call) == std::string::npos) calls += call;
    }
};

class OwnerDraw : public ::testing::Test {
protected:
    CWnd parent;
    void SetUp() override {
        ASSERT_TRUE(parent.CreateEx(0, nullptr, "", WS_POPUP | WS_VISIBLE, 0, 0, 300, 300, nullptr, nullptr));
    }
    static const CRect kPlace;
};
const CRect OwnerDraw::kPlace(10, 10, 110, 210);

TEST_F(OwnerDraw, CallsVirtualFunctionsOfAListBox) {
    Drawn<CListBox> list;
    ASSERT_TRUE(list.Create(WS_CHILD | WS_VISIBLE | LBS_OWNERDRAWFIXED | LBS_SORT, kPlace, &parent, 7));
    EXPECT_EQ(list.calls, "M") << "measured during creation";
    CRect item;
    for (ULONG_PTR data : {3, 1, 2})
        list.AddString(reinterpret_cast<LPCSTR>(data));
    EXPECT_NE(list.GetItemRect(0, &item), LB_ERR);
    EXPECT_EQ(item.Height(), kItemHeight);
    for (DWORD_PTR i = 0; i < 3; ++i)
        EXPECT_EQ(i + 1, list.GetItemData(static_cast<int>(i))) << "sorted";
    list.UpdateWindow();
    EXPECT_NE(std::string::npos, list.calls.find('D'));
    list.ResetContent();
    EXPECT_NE(std::string::npos, list.calls.find('X'));
}

TEST_F(OwnerDraw, CallsVirtualFunctionsOfAComboBox) {
    Drawn<CComboBox> combo;
    ASSERT_TRUE(
        combo.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_SORT, kPlace, &parent, 8));
    EXPECT_EQ(combo.calls, "M");
    for (ULONG_PTR data : {3, 1, 2})
        combo.AddString(reinterpret_cast<LPCSTR>(data));
    EXPECT_EQ(combo.SendMessage(CB_GETITEMHEIGHT, 0), kItemHeight);
    combo.UpdateWindow();
    EXPECT_EQ(combo.lastDrawn, -1) << "the field of a combo box without a selection";
    combo.SetCurSel(1);
    combo.UpdateWindow();
    EXPECT_EQ(combo.lastDrawn, 1);
    EXPECT_NE(std::string::npos, combo.calls.find('C'));
    combo.DestroyWindow();
    EXPECT_NE(std::string::npos, combo.calls.find('X')) << "the object exists until its items are deleted";
}

TEST_F(OwnerDraw, MeasuresEachItemWithVariableHeights) {
    class CVariable : public Drawn<CListBox> {
        void MeasureItem(LPMEASUREITEMSTRUCT record) override { record->itemHeight = 10 + 5 * record->itemID; }
    } list;
    ASSERT_TRUE(list.Create(WS_CHILD | LBS_OWNERDRAWVARIABLE | LBS_HASSTRINGS, kPlace, &parent, 7));
    for (int i = 0; i < 3; ++i)
        list.AddString("item");
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(10 + 5 * i, list.SendMessage(LB_GETITEMHEIGHT, static_cast<WPARAM>(i)));
}

TEST_F(OwnerDraw, IsLeftToTheSystemForAControlWithoutObject) {
    HWND list = ::CreateWindowExA(0, "LISTBOX", "", WS_CHILD | WS_VISIBLE | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS, 0, 0,
                                  50, 50, parent.m_hWnd, reinterpret_cast<HMENU>(9), nullptr, nullptr);
    EXPECT_EQ(::SendMessageA(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>("item")), 0);
    ::UpdateWindow(list);
    // An object that is created later gets the messages from then on.
    Drawn<CListBox> late;
    ASSERT_TRUE(late.SubclassWindow(list));
    late.Invalidate();
    late.UpdateWindow();
    EXPECT_EQ(late.lastDrawn, 0);
}

TEST_F(OwnerDraw, ReadsTextsOfItems) {
    CListBox list;
    ASSERT_TRUE(list.Create(WS_CHILD, kPlace, &parent, 7));
    list.AddString("some text");
    CString text("before");
    list.GetText(0, text);
    EXPECT_STREQ(text, "some text");
    list.GetText(5, text);
    EXPECT_TRUE(text.IsEmpty());
}

} // namespace

// Texts and indices of list and combo boxes, control objects and scroll bars.

#include "exchange_dialog.h"

#include "orlo/exchange/ddx_control.h"
#include "orlo/exchange/ddx_list.h"

namespace {

class ListExchange : public ExchangeDialog {
protected:
    ListExchange() {
        for (const char* item : {"Solid", "Dashed", "Dash dot"}) {
            Send(IDC_LIST, LB_ADDSTRING, 0, item);
            Send(IDC_COMBO, CB_ADDSTRING, 0, item);
        }
    }
    LRESULT Selected(int id) { return Send(id, id == IDC_LIST ? LB_GETCURSEL : CB_GETCURSEL); }
};

using TextFunction = int (*)(int, CDataExchange*, int, CString&);

TEST_F(ListExchange, LoadingATextSelectsItOrKeepsTheSelection) {
    const struct {
        TextFunction function;
        int control;
        const char* text;
        int selected; // after 1 was selected
    } rows[] = {{DDX_LBString, IDC_LIST, "dash d", 2},    {DDX_LBString, IDC_LIST, "Wavy", 1},
                {DDX_LBStringExact, IDC_LIST, "Sol", 1},  {DDX_LBStringExact, IDC_LIST, "solid", 0},
                {DDX_CBString, IDC_COMBO, "Dash dot", 2}, {DDX_CBStringExact, IDC_COMBO, "Solid", 0},
                {DDX_CBStringExact, IDC_COMBO, "Dash", 1}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.text);
        Send(row.control, row.control == IDC_LIST ? LB_SETCURSEL : CB_SETCURSEL, 1);
        CString text(row.text);
        EXPECT_EQ(row.function(1, &m_load, row.control, text), 1);
        EXPECT_EQ(row.selected, Selected(row.control));
        row.function(1, &m_save, row.control, text);
        const char* const items[] = {"Solid", "Dashed", "Dash dot"};
        EXPECT_EQ(items[row.selected], std::string(text));
    }
}

TEST_F(ListExchange, ComboBoxShowsATextThatIsNotListed) {
    CString text("Dash");
    DDX_CBString(1, &m_load, IDC_COMBO, text);
    EXPECT_EQ(Text(IDC_COMBO), "Dash");
    EXPECT_EQ(Selected(IDC_COMBO), CB_ERR);
    text.Empty();
    DDX_CBString(1, &m_save, IDC_COMBO, text);
    EXPECT_EQ(std::string(text), "Dash");
    DDX_LBString(1, &m_save, IDC_LIST, text);
    EXPECT_EQ(std::string(text), "") << "a list without a selection";
}

TEST_F(ListExchange, UnlistedTextClearsTheSelection) {
    Send(IDC_DROP_LIST, CB_ADDSTRING, 0, "Solid");
    for (const int combo : {IDC_COMBO, IDC_DROP_LIST}) {
        Send(combo, CB_SETCURSEL, 0);
        CString text("Wavy");
        DDX_CBString(1, &m_load, combo, text);
        EXPECT_EQ(Selected(combo), CB_ERR) << combo;
        EXPECT_NE(Text(combo), "Solid") << combo;
    }
    EXPECT_EQ(Text(IDC_COMBO), "Wavy");
}

TEST_F(ListExchange, ExchangesIndicesInBothDirections) {
    for (const int index : {2, 0, -1}) {
        int value = index;
        DDX_LBIndex(1, &m_load, IDC_LIST, value);
        DDX_CBIndex(1, &m_load, IDC_COMBO, value);
        int list = 77, combo = 77;
        DDX_LBIndex(1, &m_save, IDC_LIST, list);
        DDX_CBIndex(1, &m_save, IDC_COMBO, combo);
        EXPECT_EQ(index, list);
        EXPECT_EQ(index, combo);
    }
}

TEST_F(ListExchange, ControlObjectIsAttachedOnce) {
    CEdit edit, second;
    EXPECT_EQ(DDX_Control(1, &m_load, IDC_EDIT, edit), 1);
    EXPECT_EQ(Control(IDC_EDIT), edit.m_hWnd);
    EXPECT_EQ(&edit, CWnd::FromHandlePermanent(Control(IDC_EDIT)));
    EXPECT_EQ(DDX_Control(1, &m_save, IDC_COMBO, edit), 1) << "an object with a window is not changed";
    EXPECT_EQ(Control(IDC_EDIT), edit.m_hWnd);
    try {
        DDX_Control(1, &m_load, IDC_EDIT, second);
        ADD_FAILURE() << "two objects for one window";
    } catch (CNotSupportedException* exception) {
        exception->Delete();
    }
    edit.UnsubclassWindow();
}

TEST_F(ListExchange, ScrollBarKeepsItsPosition) {
    ::SetScrollRange(Control(IDC_SCROLL), SB_CTL, 0, 50, FALSE);
    int position = 42;
    DDX_Scroll(1, &m_load, IDC_SCROLL, position);
    EXPECT_EQ(::GetScrollPos(Control(IDC_SCROLL), SB_CTL), 42);
    position = 0;
    DDX_Scroll(1, &m_save, IDC_SCROLL, position);
    EXPECT_EQ(position, 42);
}

} // namespace

// The common behavior of combo boxes and list boxes of host tables: filling, selecting, sizes. One suite for both.

#include "control_dialog.h"

#include <functional>

#include "orlo/controls/color_control.h"
#include "orlo/exchange/ddx_control.h"

namespace {

// A concrete class that shows its items without drawing.
template <class Base, unsigned kKind>
class Concrete : public Base {
public:
    static constexpr bool kIsCombo = std::is_base_of<CComboBox, Base>::value;
    static constexpr DWORD kStyle =
        WS_CHILD | CBS_OWNERDRAWFIXED | (kIsCombo ? CBS_DROPDOWNLIST | CBS_HASSTRINGS : LBS_HASSTRINGS);

    Concrete() : Base(kKind) {}
    bool MakeIn(CWnd* parent) { return this->Create(kStyle, CRect(0, 0, 120, kIsCombo ? 24 : 80), parent, 1); }
    void MeasureItem(LPMEASUREITEMSTRUCT item) override { item->itemHeight = rowHeight; }
    void DrawItem(LPDRAWITEMSTRUCT) override {}
    int Find(unsigned id) const { return this->FindItem(id); }
    UINT rowHeight = 16;
};
using TableCombo = Concrete<CComboControl, 0x7D99>;
using TableList = Concrete<CListControl, 0x7D98>;

template <class Control>
class TableControl : public ::testing::Test {
protected:
    TableControl() : m_table(DrawingAddTable(m_drawing.Get(), "_Test_")) { EXPECT_TRUE(m_control.MakeIn(&m_host)); }
    ~TableControl() override { m_control.DestroyWindow(); }

    void Fill(TableStruct* table, unsigned selected) {
        const ControlFillRecord record = {table, 0, selected};
        m_control.SendMessage(kFillMessage, 0, reinterpret_cast<LPARAM>(&record));
    }
    std::string Name(int index) {
        char text[kItemTextSize] = "x";
        m_control.GetControlItem(index, text);
        return text;
    }

    HostWindow m_host;
    TestDrawing m_drawing;
    TableStruct* m_table;
    Control m_control;
};

using Twins = ::testing::Types<TableCombo, TableList>;
TYPED_TEST_SUITE(TableControl, Twins);

TYPED_TEST(TableControl, ShowsTheEntriesInTheTablesOrder) {
    const uint16_t zinc = TableEntryAdd(this->m_table, "Zinc", nullptr);
    const uint16_t amber = TableEntryAdd(this->m_table, "Amber", nullptr);
    this->Fill(this->m_table, amber);
    ASSERT_EQ(this->m_control.GetCount(), 2);
    char text[kItemTextSize];
    EXPECT_EQ(zinc, this->m_control.GetControlItem(0, text));
    EXPECT_STREQ(text, "Zinc");
    EXPECT_EQ(this->m_control.GetCurSel(), 1);
    EXPECT_EQ(this->m_control.Find(amber), 1);
    EXPECT_EQ(amber, this->m_control.m_nSelected);

    this->Fill(this->m_table, zinc);
    EXPECT_EQ(this->m_control.GetCount(), 2) << "replaced, not appended";
    EXPECT_EQ(this->m_control.GetCurSel(), 0);
}

TYPED_TEST(TableControl, SelectsNothingForIdentifiersWithoutEntries) {
    TableEntryAdd(this->m_table, "Zinc", nullptr);
    this->m_control.AddString("00000000\tZero");
    this->m_control.AddString("0000FFFF\tIndeterminate");
    EXPECT_EQ(this->m_control.Find(0), -1) << "whatever the list contains";
    EXPECT_EQ(this->m_control.Find(kEntryIndeterminate), -1);
    for (const unsigned none : {0u, 0xFFFFu, 0xFFFFFFFFu, 0x7777u}) {
        this->Fill(this->m_table, none);
        EXPECT_EQ(this->m_control.GetCurSel(), -1) << none;
    }
}

TYPED_TEST(TableControl, IsEmptiedByANullTableOrRecord) {
    const uint16_t id = TableEntryAdd(this->m_table, "Zinc", nullptr);
    this->Fill(this->m_table, id);
    this->Fill(nullptr, id);
    EXPECT_EQ(this->m_control.GetCount(), 0);
    EXPECT_EQ(this->m_control.m_pTable, nullptr);
    this->Fill(this->m_table, id);
    EXPECT_EQ(this->m_control.SendMessage(kFillMessage, 0, 0), 0);
    EXPECT_EQ(this->m_control.GetCount(), 0);
    EXPECT_EQ(this->m_control.m_pTable, nullptr);
    this->m_drawing.Close();
    this->Fill(this->m_table, id);
    EXPECT_EQ(this->m_control.GetCount(), 0) << "the table of a closed drawing behaves like an empty one";
}

TYPED_TEST(TableControl, NeverOverrunsTheItemBuffer) {
    this->m_control.AddString(("00000007\t" + std::string(500, 'n')).c_str());
    struct {
        char text[kItemTextSize];
        char guard[64];
    } buffer;
    std::fill(std::begin(buffer.guard), std::end(buffer.guard), '#');
    EXPECT_EQ(this->m_control.GetControlItem(0, buffer.text), 7u);
    EXPECT_EQ(std::string(64, '#'), std::string(buffer.guard, sizeof buffer.guard));
    EXPECT_EQ(std::string(kItemTextSize - 1 - kKeySize, 'n'), std::string(buffer.text));
    EXPECT_EQ(this->m_control.GetControlItem(1, buffer.text), 0u);
    EXPECT_STREQ(buffer.text, "");
    TableEntryAdd(this->m_table, std::string(250, 'n').c_str(), nullptr);
    this->Fill(this->m_table, 0);
    EXPECT_GE(kEntryNameSize, static_cast<int>(this->Name(0).size()));
}

// Rows, font, size and the notification, which the host handles at once.
TYPED_TEST(TableControl, InitializesASubclassedWindowLikeOneOfATemplate) {
    constexpr bool combo = TypeParam::kIsCombo;
    TableEntryAdd(this->m_table, "Zinc", nullptr);
    this->m_host.fillTable = this->m_table;
    for (const DWORD drawn : {CBS_OWNERDRAWFIXED, CBS_OWNERDRAWVARIABLE}) { // identical for a list box
        for (const auto& [exchanged, templateHeight, listHeight] :
             {std::tuple(false, 60, 320), {true, 60, 320}, {false, 1000, Scaled(320)}}) {
            const DWORD style = (TypeParam::kStyle & ~DWORD{CBS_OWNERDRAWFIXED}) | drawn;
            const HWND window =
                ::CreateWindowExA(0, combo ? "ComboBox" : "ListBox", "", style, 0, 0, 120, templateHeight,
                                  this->m_host.m_hWnd, reinterpret_cast<HMENU>(2), nullptr, nullptr);
            ::SendMessageA(window, combo ? CB_ADDSTRING : LB_ADDSTRING, 0, reinterpret_cast<LPARAM>("old"));
            TypeParam control, created;
            control.rowHeight = created.rowHeight = 30;
            this->m_host.notifications.clear();
            ASSERT_TRUE(created.Create(style, CRect(0, 0, 120, 60), &this->m_host, 3));
            EXPECT_EQ(this->m_host.Count(kControlReady), 0) << "a created control waits for its dialog";
            created.SendMessage(WM_INITIALUPDATE);
            this->m_host.notifications.clear();
            CDataExchange load(&this->m_host, FALSE);
            if (exchanged)
                DDX_Control(1, &load, 2, control);
            else
                ASSERT_TRUE(control.SubclassDlgItem(2, &this->m_host));
            const UINT height = combo ? CB_GETITEMHEIGHT : LB_GETITEMHEIGHT;
            EXPECT_EQ(control.SendMessage(height, 0, 0), 30);
            EXPECT_EQ(created.SendMessage(height, combo ? -1 : 0, 0), control.SendMessage(height, combo ? -1 : 0, 0));
            EXPECT_EQ(style, control.m_dwStyle & ~WS_CLIPSIBLINGS);
            EXPECT_NE(control.SendMessage(WM_GETFONT), 0);
            ASSERT_EQ(this->m_host.Count(kControlReady), 1);
            EXPECT_EQ(window, this->m_host.notifications.back().control);
            EXPECT_EQ(control.m_nControlID, this->m_host.notifications.back().kind);
            EXPECT_EQ(this->m_table, control.m_pTable);
            EXPECT_EQ(control.GetCount(), 1) << "filled again";
            CRect rect;
            control.GetWindowRect(rect);
            EXPECT_NEAR(combo ? rect.Height() : listHeight, rect.Height(), 30);
            control.DestroyWindow();
        }
    }
}

// Changes the system's setting during its lifetime.
class DoubleClickTime {
public:
    explicit DoubleClickTime(UINT milliseconds) { ::SetDoubleClickTime(milliseconds); }
    ~DoubleClickTime() { ::SetDoubleClickTime(m_before); }
    DoubleClickTime(const DoubleClickTime&) = delete;
    DoubleClickTime& operator=(const DoubleClickTime&) = delete;

private:
    const UINT m_before = ::GetDoubleClickTime();
};

// Consecutive letters form a prefix; a selection by other means, or a pause, starts a new one.
TYPED_TEST(TableControl, SelectsByTypedNames) {
    for (const char* name : {"Walls", "Doors", "windows", "Dark red", "Green", "Grey", "Yellow", "Cyan", "Red", "8"})
        TableEntryAdd(this->m_table, name, nullptr);
    this->Fill(this->m_table, 0);
    const auto type = [&](const std::string& letters) {
        for (const char letter : letters)
            this->m_control.SendMessage(WM_CHAR, static_cast<WPARAM>(letter), 1);
        return this->Name(this->m_control.GetCurSel());
    };
    const struct {
        const char *from, *typed, *reached;
        int changes;
    } rows[] = {
        {"", "green", "Green", 1},
        {"", "grey", "Grey", 2},
        {"", "cyan", "Cyan", 1},
        {"Walls", "w", "windows", 1},
        {"", "wWw", "Walls", 3}, // the same letter selects the next match, wrapping around
        {"Red", "dark r", "Dark red", 2},
        {"Walls", "x", "Walls", 0},
        {"", "rx", "Red", 1},
        {"", "rxe", "Red", 1}, // a letter that does not continue a name is ignored
        {"", "gxrey", "Grey", 2},
        {"", "rd", "Doors", 2},  // unless another name begins with it
        {"", "xgr", "Green", 1}, // and does not affect the following letters
        {"", "gre\b\by", "Yellow", 2},
        {"Walls", "wd\b", "windows", 3},
        {"Walls", "\b", "Walls", 0},
        {"Grey", "green", "Green", 1},
        {"", "8", "8", 1}, // keys are not searched
        {"", "0", "", 0},
        {"Red", " ", "Red", 0},
    };
    for (const auto& row : rows) {
        this->m_control.SetCurSel(-1);
        for (int i = 0; i < this->m_control.GetCount(); ++i)
            if (this->Name(i) == row.from) this->m_control.SetCurSel(i);
        this->m_host.notifications.clear();
        EXPECT_EQ(row.reached, type(row.typed)) << row.from << " " << row.typed;
        EXPECT_EQ(row.changes, this->m_host.Count(CBN_SELCHANGE)) << row.typed;
    }
    this->m_control.SetCurSel(0);
    EXPECT_EQ(type("g"), "Green");
    {
        const DoubleClickTime shortest(1);
        ::Sleep(50);
        EXPECT_EQ(type("r"), "Red") << "after a pause, not the next letter of Green";
    }
    {
        const DoubleClickTime fast(200);
        this->m_control.SetCurSel(-1);
        type("gre");
        ::Sleep(300);
        EXPECT_EQ(type("y"), "Grey") << "the pause is longer than a double click";
    }

    TypeParam other;
    ASSERT_TRUE(other.MakeIn(&this->m_host));
    for (const char* item : {"00000001\tElse", "00000002\tDelta"})
        other.AddString(item);
    other.SetCurSel(this->m_control.GetCurSel());
    other.SendMessage(WM_CHAR, 'e', 1);
    EXPECT_EQ(other.GetCurSel(), 0) << "not the characters of another control";
    other.DestroyWindow();
}

// Counts how often items are read.
template <class Base>
class Reading : public Base {
public:
    int read = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        read += message == CB_GETLBTEXT || message == LB_GETTEXT;
        return Base::WindowProc(message, wParam, lParam);
    }
};

TYPED_TEST(TableControl, CachesItemNamesWhileTyping) {
    Reading<TypeParam> control;
    ASSERT_TRUE(control.MakeIn(&this->m_host));
    for (const char* item : {"00000001\tGreen", "00000002\tGrey", "00000003\tRed"})
        control.AddString(item);
    const auto type = [&](const char* letters) {
        for (; *letters; ++letters)
            control.SendMessage(WM_CHAR, static_cast<WPARAM>(*letters), 1);
    };
    type("grey");
    EXPECT_EQ(control.GetCurSel(), 1);
    EXPECT_EQ(control.read, 3);
    control.AddString("00000004\tGreyish");
    type("i");
    EXPECT_EQ(control.GetCurSel(), 3) << "the items have changed";
    control.ResetContent();
    type("g");
    EXPECT_EQ(control.GetCurSel(), -1);
    for (const char* item : {"00000001\tBlue", "00000002\tGold"})
        control.AddString(item);
    control.read = 0;
    type("g");
    EXPECT_EQ(control.GetCurSel(), 1);
    EXPECT_EQ(control.read, 0) << "the names are known since the control was emptied";
    control.InsertString(0, "00000003\tGray");
    type("gr");
    EXPECT_EQ(control.GetCurSel(), 0) << "inserted before the others";
    control.SendMessage(TypeParam::kIsCombo ? CB_DELETESTRING : LB_DELETESTRING, 0);
    type("b");
    EXPECT_EQ(control.GetCurSel(), 0);
    control.DestroyWindow();
}

// ---- Combo boxes only

class DropDown : public TableControl<TableCombo> {
protected:
    // Returns the height of the open list without its frame.
    int ListHeight() {
        COMBOBOXINFO info = {};
        info.cbSize = sizeof info;
        EXPECT_TRUE(::GetComboBoxInfo(m_control.m_hWnd, &info));
        CRect list;
        ::GetClientRect(info.hwndList, list);
        return list.Height();
    }
};

TEST_F(DropDown, ShowsWholeRowsUpTo320Pixels) {
    const struct {
        int items;
        UINT rowHeight;
        int rows;
    } rows[] = {{3, 16, 3}, {40, 16, 18}, {0, 16, 0}, {4, 100, 2}};
    CRect closed, again;
    m_control.GetWindowRect(closed);
    const int frame = 3 * ::GetSystemMetrics(SM_CYBORDER) + closed.Height();
    for (const auto& row : rows) {
        m_control.rowHeight = row.rowHeight;
        m_control.ResetContent();
        for (int i = 0; i < row.items; ++i)
            m_control.AddString("item");
        m_control.SizeDropDown();
        EXPECT_EQ(row.rows * static_cast<int>(row.rowHeight) + frame, m_control.m_nDropHeight) << row.items;
        EXPECT_GE(320, m_control.m_nDropHeight);
        if (row.rowHeight == 16 && row.rows > 0) { // as created
            m_control.ShowDropDown(TRUE);
            EXPECT_EQ(row.rows * 16, ListHeight()) << row.items;
            m_control.ShowDropDown(FALSE);
        }
        m_control.GetWindowRect(again);
        EXPECT_EQ(closed.Width(), again.Width());
    }
}

TEST_F(DropDown, IsAtMost320PixelsHighAt96DotsPerInch) {
    for (int i = 0; i < 100; ++i)
        m_control.AddString("item");
    m_control.SizeDropDown();
    EXPECT_GE(Scaled(320), m_control.m_nDropHeight);
    EXPECT_LT(Scaled(320) - static_cast<int>(m_control.rowHeight), m_control.m_nDropHeight);
}

// Independent of the parent, which is not involved.
TEST_F(DropDown, FitsItsItemsHoweverItIsOpened) {
    m_host.SetWindowPos(nullptr, 0, 0, 300, 300, SWP_SHOWWINDOW);
    m_control.ShowWindow(SW_SHOW);
    m_control.SetFocus();
    const auto click = [&](int at) {
        m_control.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(at, 5));
        m_control.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(at, 5));
    };
    const std::function<void()> ways[] = {[&] { m_control.ShowDropDown(TRUE); }, [&] { click(115); },
                                          [&] { m_control.SendMessage(WM_KEYDOWN, VK_F4, 1); },
                                          [&] { m_control.SendMessage(WM_SYSKEYDOWN, VK_DOWN, 0x20000001); }};
    int items = 0;
    for (const auto& open : ways) {
        m_control.AddString("item");
        m_control.AddString("item");
        open();
        ASSERT_TRUE(m_control.GetDroppedState()) << items;
        items += 2;
        EXPECT_NEAR(items * 16, ListHeight(), 8) << items;
        m_control.ShowDropDown(FALSE);
    }
    // A double click opens the list too, though not under Wine.
    const int before = m_control.m_nDropHeight;
    m_control.AddString("item");
    m_control.SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(115, 5));
    EXPECT_EQ(before + 16, m_control.m_nDropHeight);
}

TEST_F(DropDown, EscapeRestoresTheChoice) {
    m_host.SetWindowPos(nullptr, 0, 0, 300, 300, SWP_SHOWWINDOW);
    m_control.ShowWindow(SW_SHOW);
    m_control.SetFocus();
    for (const char* item : {"00000001\tWalls", "00000002\tDoors", "00000003\tWindows"})
        m_control.AddString(item);
    m_control.SetCurSel(1);
    const auto key = [&](WPARAM virtualKey) { m_control.SendMessage(WM_KEYDOWN, virtualKey, 1); };
    for (const bool typed : {true, false}) {
        m_control.ShowDropDown(TRUE);
        if (typed)
            m_control.SendMessage(WM_CHAR, 'w', 1);
        else
            key(VK_DOWN);
        EXPECT_NE(m_control.GetCurSel(), 1);
        m_host.notifications.clear();
        key(VK_ESCAPE);
        EXPECT_FALSE(m_control.GetDroppedState());
        EXPECT_EQ(m_control.GetCurSel(), 1);
        EXPECT_EQ(m_host.Count(CBN_SELCHANGE), 1);
    }
    m_control.ShowDropDown(TRUE);
    m_host.notifications.clear();
    key(VK_ESCAPE);
    EXPECT_EQ(m_host.Count(CBN_SELCHANGE), 0) << "nothing was selected";
    m_control.ShowDropDown(TRUE);
    TableEntryAdd(m_table, "Floor", nullptr);
    const uint16_t roof = TableEntryAdd(m_table, "Roof", nullptr);
    const uint16_t stairs = TableEntryAdd(m_table, "Stairs", nullptr);
    Fill(m_table, stairs);
    key(VK_ESCAPE);
    EXPECT_EQ(m_control.GetCurSel(), 2) << "filled while it was open";
    Fill(m_table, roof);
    m_control.ShowDropDown(TRUE);
    key(VK_DOWN);
    key(VK_RETURN);
    EXPECT_EQ(m_control.GetCurSel(), 2);
}

// The parent of a combo box that is clicked.
class ClickedParent : public CWnd {
public:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_LBUTTONDOWN) clicks.push_back(CPoint(LOWORD(lParam), HIWORD(lParam)));
        return CWnd::WindowProc(message, wParam, lParam);
    }
    std::vector<CPoint> clicks;
};

TEST(ComboClick, OnlyTheButtonOpensTheList) {
    HostWindow host;
    ClickedParent parent;
    ASSERT_TRUE(
        parent.CWnd::CreateEx(0, AfxRegisterWndClass(0), "", WS_POPUP | WS_VISIBLE, 0, 0, 300, 300, nullptr, nullptr));
    TableCombo combo;
    ASSERT_TRUE(combo.Create(WS_VISIBLE | TableCombo::kStyle, CRect(30, 40, 150, 140), &parent, 1));
    combo.AddString("item");
    combo.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(10, 5));
    EXPECT_FALSE(combo.GetDroppedState());
    ASSERT_EQ(parent.clicks.size(), 1u);
    EXPECT_EQ(CPoint(40, 45), parent.clicks[0]) << "in the parent's coordinates";

    CRect client;
    combo.GetClientRect(client);
    combo.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(client.right - Scaled(16) - 1, 5));
    EXPECT_FALSE(combo.GetDroppedState());
    combo.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(client.right - Scaled(16), 5));
    EXPECT_TRUE(combo.GetDroppedState());
    EXPECT_EQ(parent.clicks.size(), 2u);
    combo.ShowDropDown(FALSE);
    combo.DestroyWindow();
    parent.DestroyWindow();
}

TEST(ControlItem, IsSplit) {
    const struct {
        const char* item;
        unsigned long number;
        const char* left;
    } rows[] = {{"000000FF\tRed", 255, "Red"},
                {"0000abCD\tBlue", 0xABCD, "Blue"},
                {"FFFFFFFD\tBy layer", 0xFFFFFFFD, "By layer"},
                {"Red", 0, "Red"},
                {"00000001\t", 1, ""},
                {"00000001\ta\tb", 1, "a\tb"},
                {"\tname", 0, "name"},
                {"", 0, ""}};
    for (const auto& row : rows) {
        std::string text = row.item;
        EXPECT_EQ(row.number, ParseControlItem(&text[0])) << row.item;
        EXPECT_STREQ(row.left, text.c_str());
    }
}

TEST(ControlLookup, FindsANameInTheControlsTable) {
    HostWindow host;
    TestDrawing drawing;
    TableStruct* const table = DrawingAddTable(drawing.Get(), "_Test_");
    const uint16_t id = TableEntryAdd(table, "Walls", nullptr);
    TableCombo combo;
    ASSERT_TRUE(combo.MakeIn(&host));
    EXPECT_EQ(LookupControlItem(combo.m_hWnd, "Walls"), 0u) << "no table yet";
    combo.m_pTable = table;
    EXPECT_EQ(id, LookupControlItem(combo.m_hWnd, "Walls"));
    EXPECT_EQ(LookupControlItem(combo.m_hWnd, "Doors"), 0u);
    EXPECT_EQ(LookupControlItem(host.m_hWnd, "Walls"), 0u) << "an object of another class";
    EXPECT_EQ(LookupControlItem(nullptr, "Walls"), 0u);
}

} // namespace

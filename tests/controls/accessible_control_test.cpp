// Accessibility of the controls: names, values, roles, states and events.

#include "control_dialog.h"

#include <drawcore/layer.h>
#include <drawcore/linestyle.h>
#include <oleacc.h>

#include "orlo/controls/check_list_box.h"
#include "orlo/controls/color_control.h"
#include "orlo/controls/layer_control.h"
#include "support/accessible.h"

namespace {

class AccessibleControls : public ControlDialog {
protected:
    uint16_t AddLayer(const char* name, uint32_t flags) {
        const uint16_t id = TableEntryAdd(m_drawing.Table(kTableLayers), name, nullptr);
        LayerSet(m_drawing.Get(), id, RGB(0, 0, 200), flags, 0);
        return id;
    }
    Accessible Of(int id) const { return Accessible(Control(id)); }
    Accessible ListOf(int id) const {
        COMBOBOXINFO info = {};
        info.cbSize = sizeof info;
        EXPECT_TRUE(::GetComboBoxInfo(Control(id), &info));
        return Accessible(info.hwndList);
    }
};

TEST_F(AccessibleControls, ItemsAreNamedWithoutTheirKeys) {
    const uint16_t locked = AddLayer("Walls", kLayerLocked | kLayerOff);
    AddLayer("Doors", 0);
    Fill(IDC_LAYER, m_drawing.Table(kTableLayers), locked);
    EXPECT_EQ(Of(IDC_LAYER).Value(), "Walls, hidden, locked");
    EXPECT_EQ(Of(IDC_LAYER).Role(), ROLE_SYSTEM_COMBOBOX);
    const Accessible list = ListOf(IDC_LAYER);
    ASSERT_EQ(Get<CComboControl>(IDC_LAYER).GetCount(), list.Count());
    EXPECT_EQ(list.Name(list.Count() - 1), "Walls, hidden, locked");
    EXPECT_EQ(list.Name(list.Count()), "Doors");
    EXPECT_EQ(list.Role(1), ROLE_SYSTEM_LISTITEM);

    const int lists[] = {IDC_LINE_STYLE_LIST, IDC_BRUSH_STYLE_LIST};
    const char* const tables[] = {kTableLineStyles, kTableBrushStyles};
    for (const int i : {0, 1}) {
        Fill(lists[i], m_drawing.Table(tables[i]));
        const Accessible styles = Of(lists[i]);
        EXPECT_EQ(styles.Role(), ROLE_SYSTEM_LIST);
        ASSERT_LT(0, styles.Count());
        for (int item = 1; item <= styles.Count(); ++item) {
            EXPECT_NE(styles.Name(item), "");
            EXPECT_EQ(std::string::npos, styles.Name(item).find('\t')) << styles.Name(item);
        }
        EXPECT_EQ(styles.Value(), "varied");
        styles.Select(2);
        EXPECT_EQ(Get<CListControl>(lists[i]).GetCurSel(), 1);
        EXPECT_EQ(styles.Name(2), styles.Value());
        EXPECT_TRUE(styles.State(2) & STATE_SYSTEM_SELECTED);
        EXPECT_FALSE(styles.State(1) & STATE_SYSTEM_SELECTED);
    }
}

TEST_F(AccessibleControls, ColorWithoutAnItemIsDescribedByItsComponents) {
    TableStruct* const colors = m_drawing.Table(kTableColors);
    const std::pair<DWORD, const char*> rows[] = {
        {0x00123456, "86, 52, 18"}, {kColorIndeterminate, "varied"}, {kColorNone, "varied"}};
    for (const auto& [color, accessible] : rows) {
        Fill(IDC_COLOR, colors, color);
        EXPECT_EQ(accessible, Of(IDC_COLOR).Value()) << color;
    }
    Fill(IDC_COLOR, nullptr, kColorNone);
    EXPECT_EQ(Of(IDC_COLOR).Value(), "");
}

TEST_F(AccessibleControls, StyleThatIsNotListedIsNamed) {
    TableStruct* const styles = m_drawing.Table(kTableLineStyles);
    const double dashes[] = {1.0, -0.5};
    const uint16_t id = LineStyleAdd(styles, "$AUXILIARY", nullptr, dashes, 2);
    Fill(IDC_LINE_STYLE_COMBO, styles, id);
    EXPECT_EQ(Get<CComboControl>(IDC_LINE_STYLE_COMBO).GetCurSel(), -1);
    EXPECT_EQ(Of(IDC_LINE_STYLE_COMBO).Value(), "$AUXILIARY");
    EXPECT_EQ(Of(IDC_LINE_STYLE_COMBO).Value(1), "$AUXILIARY") << "the text part";
}

TEST_F(AccessibleControls, AreNamedByTheirLabelOrElseTheSmallestGroupAround) {
    m_host.SetWindowPos(nullptr, 0, 0, 300, 300, SWP_SHOWWINDOW);
    const auto add = [&](const char* kind, const char* text, DWORD style, const CRect& place) {
        ::CreateWindowExA(0, kind, text, WS_CHILD | WS_VISIBLE | style, place.left, place.top, place.Width(),
                          place.Height(), m_host.m_hWnd, nullptr, nullptr, nullptr);
    };
    add("Button", "&Styles", BS_GROUPBOX, {5, 5, 200, 200});
    add("Button", "Everything", BS_GROUPBOX, {0, 0, 290, 290});
    add("Static", "La&yer:", 0, {10, 10, 50, 30});
    CLayerControl layers;
    const DWORD style = WS_CHILD | WS_VISIBLE | CBS_DROPDOWNLIST | CBS_OWNERDRAWVARIABLE | CBS_HASSTRINGS;
    ASSERT_TRUE(layers.Create(style, CRect(60, 10, 150, 100), &m_host, 5));
    layers.SizeDropDown();
    COMBOBOXINFO info = {};
    info.cbSize = sizeof info;
    ASSERT_TRUE(::GetComboBoxInfo(layers.m_hWnd, &info));
    add("Static", "", 0, {10, 35, 50, 40}); // shows an example, for instance
    CCheckListBox list;
    ASSERT_TRUE(
        list.Create(WS_CHILD | WS_VISIBLE | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS, CRect(10, 40, 100, 150), &m_host, 6));
    EXPECT_EQ(Accessible(layers.m_hWnd).Name(), "Layer:");
    EXPECT_EQ(Accessible(info.hwndList).Name(), "Layer:");
    EXPECT_EQ(Accessible(list.m_hWnd).Name(), "Styles");
    list.DestroyWindow();
    layers.DestroyWindow();
}

TEST_F(AccessibleControls, ItemsAreFoundByDirectionPlaceAndFocus) {
    m_dialog.ShowWindow(SW_SHOW);
    Fill(IDC_BRUSH_STYLE_LIST, m_drawing.Table(kTableBrushStyles));
    const Accessible styles = Of(IDC_BRUSH_STYLE_LIST);
    const int count = styles.Count();
    ASSERT_LT(2, count);
    EXPECT_EQ(styles.Navigate(NAVDIR_FIRSTCHILD, CHILDID_SELF), 1);
    EXPECT_EQ(styles.Navigate(NAVDIR_LASTCHILD, CHILDID_SELF), count);
    EXPECT_EQ(styles.Navigate(NAVDIR_NEXT, 1), 2);
    EXPECT_EQ(styles.Navigate(NAVDIR_UP, 2), 1);
    EXPECT_EQ(styles.Navigate(NAVDIR_PREVIOUS, 1), 0);
    EXPECT_EQ(styles.Navigate(NAVDIR_DOWN, count), 0);

    const CRect second = styles.Location(2);
    CRect window;
    ::GetWindowRect(Control(IDC_BRUSH_STYLE_LIST), window);
    EXPECT_TRUE(window.PtInRect(second.TopLeft()));
    EXPECT_EQ(styles.HitTest(second.CenterPoint()), 2);

    ::SetFocus(Control(IDC_BRUSH_STYLE_LIST));
    Get<CListControl>(IDC_BRUSH_STYLE_LIST).SetCurSel(1);
    EXPECT_EQ(styles.Focus(), 2);
    AddLayer("Walls", 0);
    Fill(IDC_LAYER, m_drawing.Table(kTableLayers));
    ListOf(IDC_LAYER).Select(2);
    EXPECT_EQ(Get<CComboControl>(IDC_LAYER).GetCurSel(), 1);
}

TEST_F(AccessibleControls, TextOfItemsIsUnchanged) {
    AddLayer("Walls", 0);
    Fill(IDC_LAYER, m_drawing.Table(kTableLayers));
    CString text;
    Get<CComboControl>(IDC_LAYER).GetLBText(0, text);
    EXPECT_EQ(text[8], '\t');
}

// Records the events of this thread.
class Events {
public:
    Events() {
        s_seen.clear();
        m_hook = ::SetWinEventHook(EVENT_MIN, EVENT_MAX, nullptr, OnEvent, ::GetCurrentProcessId(),
                                   ::GetCurrentThreadId(), WINEVENT_OUTOFCONTEXT);
    }
    ~Events() { ::UnhookWinEvent(m_hook); }
    int Count(DWORD event, HWND window, LONG child) const {
        MSG message;
        while (::PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE))
            ::DispatchMessageA(&message);
        int count = 0;
        for (const Seen& seen : s_seen)
            count += seen.event == event && seen.window == window && seen.child == child;
        return count;
    }

private:
    struct Seen {
        DWORD event;
        HWND window;
        LONG child;
    };
    static void CALLBACK OnEvent(HWINEVENTHOOK, DWORD event, HWND window, LONG, LONG child, DWORD, DWORD) {
        s_seen.push_back({event, window, child});
    }
    static inline std::vector<Seen> s_seen;
    HWINEVENTHOOK m_hook;
};

TEST_F(AccessibleControls, ChangesByTypingAndByCodeRaiseEvents) {
    AddLayer("Walls", 0);
    Fill(IDC_LAYER, m_drawing.Table(kTableLayers));
    Fill(IDC_LINE_STYLE_LIST, m_drawing.Table(kTableLineStyles));
    CComboControl& layers = Get<CComboControl>(IDC_LAYER);
    CListControl& styles = Get<CListControl>(IDC_LINE_STYLE_LIST);
    const Events events;
    layers.SendMessage(WM_CHAR, 'w', 1);
    EXPECT_EQ(events.Count(EVENT_OBJECT_VALUECHANGE, layers.m_hWnd, CHILDID_SELF), 1);
    layers.SetCurSel(0);
    EXPECT_EQ(events.Count(EVENT_OBJECT_VALUECHANGE, layers.m_hWnd, CHILDID_SELF), 2);
    m_dialog.ShowWindow(SW_SHOW);
    styles.SetFocus();
    styles.SetCurSel(1);
    EXPECT_EQ(events.Count(EVENT_OBJECT_VALUECHANGE, styles.m_hWnd, CHILDID_SELF), 1);
    EXPECT_EQ(events.Count(EVENT_OBJECT_SELECTION, styles.m_hWnd, 2), 1);
    EXPECT_EQ(events.Count(EVENT_OBJECT_FOCUS, styles.m_hWnd, 2), 1);
    CCheckListBox list;
    ASSERT_TRUE(list.Create(WS_CHILD | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS, CRect(0, 0, 90, 90), &m_dialog, 7));
    list.AddString("Walls", 1);
    list.ToggleItem(0);
    EXPECT_EQ(events.Count(EVENT_OBJECT_STATECHANGE, list.m_hWnd, 1), 2);
    list.DestroyWindow();
}

TEST_F(AccessibleControls, CheckListHasCheckButtons) {
    CCheckListBox list;
    ASSERT_TRUE(
        list.Create(WS_CHILD | WS_VISIBLE | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS, CRect(0, 0, 90, 90), &m_dialog, 7));
    list.AddString("Walls", 1);
    list.AddString("Doors", 0);
    const Accessible accessible(list.m_hWnd);
    ASSERT_EQ(accessible.Count(), 2);
    EXPECT_EQ(accessible.Name(2), "Doors");
    EXPECT_EQ(accessible.Role(1), ROLE_SYSTEM_CHECKBUTTON);
    EXPECT_TRUE(accessible.State(1) & STATE_SYSTEM_CHECKED);
    EXPECT_FALSE(accessible.State(2) & STATE_SYSTEM_CHECKED);
    EXPECT_EQ(accessible.DefaultAction(1), "Uncheck");
    accessible.DoDefaultAction(1);
    EXPECT_EQ(list.IsItemChecked(0), 0);
    EXPECT_EQ(accessible.DefaultAction(1), "Check");
    list.DestroyWindow();
    EXPECT_EQ(accessible.Count(), 0) << "the object outlives the window";
}

} // namespace

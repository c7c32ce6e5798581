// Screen contents of the controls while the selection changes.

#include "control_dialog.h"

#include <drawcore/layer.h>

#include "support/fresh_drawing.h"

namespace {

class OpenLists : public ControlDialog {
protected:
    OpenLists() {
        const std::pair<int, const char*> filled[] = {{IDC_COLOR, kTableColors},
                                                      {IDC_LINE_STYLE_COMBO, kTableLineStyles},
                                                      {IDC_BRUSH_STYLE_COMBO, kTableBrushStyles},
                                                      {IDC_LAYER, kTableLayers},
                                                      {IDC_LINE_STYLE_LIST, kTableLineStyles},
                                                      {IDC_BRUSH_STYLE_LIST, kTableBrushStyles}};
        for (const auto& [name, color] : {std::pair("Yellow", RGB(255, 255, 0)), {"Blue", RGB(0, 0, 255)}}) {
            const uint16_t id = TableEntryAdd(m_drawing.Table(kTableLayers), name, nullptr);
            LayerSet(m_drawing.Get(), id, color, 0, 0);
        }
        for (const auto& [id, table] : filled)
            Fill(id, m_drawing.Table(table));
        for (const int id : {IDC_FONT_FACE, IDC_STYLE_NAME, IDC_FONT_SIZE})
            for (const char* text : {"First", "Second", "Third"})
                Get<CComboControl>(id).AddString(text);
        m_dialog.ShowWindow(SW_SHOW);
        Pump();
    }
    void Press(HWND control, WPARAM key) {
        ::SendMessageA(control, WM_KEYDOWN, key, 1);
        Pump();
    }
};

TEST_F(OpenLists, AreDrawnCompletelyAfterSelectionChanges) {
    for (const int id : {IDC_LINE_STYLE_LIST, IDC_BRUSH_STYLE_LIST}) {
        ::SetFocus(Control(id));
        for (const WPARAM key : {VK_HOME, VK_DOWN, VK_DOWN, VK_UP, VK_END, VK_UP}) {
            Press(Control(id), key);
            EXPECT_EQ(StalePart(m_dialog.m_hWnd), "") << id;
        }
    }
}

TEST_F(OpenLists, OfComboBoxesAreDrawnCompletely) {
    for (const int id :
         {IDC_COLOR, IDC_LINE_STYLE_COMBO, IDC_BRUSH_STYLE_COMBO, IDC_LAYER, IDC_FONT_FACE, IDC_STYLE_NAME}) {
        CComboControl& combo = Get<CComboControl>(id);
        combo.SetFocus();
        combo.ShowDropDown(TRUE);
        COMBOBOXINFO info = {};
        info.cbSize = sizeof info;
        ASSERT_TRUE(::GetComboBoxInfo(combo.m_hWnd, &info));
        for (const WPARAM key : {VK_HOME, VK_DOWN, VK_DOWN, VK_UP, VK_END, VK_UP}) {
            Press(combo.m_hWnd, key);
            EXPECT_EQ(StalePart(info.hwndList), "") << id;
        }
        combo.ShowDropDown(FALSE);
        Pump();
        EXPECT_EQ(StalePart(m_dialog.m_hWnd), "") << id;
    }
}

// A list that the keyboard opens below the pointer.
TEST_F(OpenLists, SelectUnderAMovingButNotAnIdlePointer) {
    POINT before;
    ::GetCursorPos(&before);
    for (const int id : {IDC_COLOR, IDC_LAYER}) {
        CComboControl& combo = Get<CComboControl>(id);
        combo.SetFocus();
        combo.SetCurSel(-1);
        COMBOBOXINFO info = {};
        info.cbSize = sizeof info;
        ASSERT_TRUE(::GetComboBoxInfo(combo.m_hWnd, &info));
        const auto selected = [&] { return ::SendMessageA(info.hwndList, LB_GETCURSEL, 0, 0); };
        Press(combo.m_hWnd, VK_F4);
        RECT item;
        ::SendMessageA(info.hwndList, LB_GETITEMRECT, 1, reinterpret_cast<LPARAM>(&item));
        const POINT inside = {item.left + 5, item.top + 5};
        POINT place = inside;
        ::ClientToScreen(info.hwndList, &place);
        const auto move = [&] { ::SendMessageA(info.hwndList, WM_MOUSEMOVE, 0, MAKELPARAM(inside.x, inside.y)); };
        Press(combo.m_hWnd, VK_F4);
        ::SetCursorPos(place.x, place.y);
        Press(combo.m_hWnd, VK_F4);
        move();
        EXPECT_EQ(selected(), -1) << id;
        ::SetCursorPos(place.x, place.y + 1);
        move();
        EXPECT_EQ(selected(), 1) << id;
        Press(combo.m_hWnd, VK_ESCAPE);
    }
    ::SetCursorPos(before.x, before.y);
}

TEST_F(OpenLists, AreAsWideAsTheirNames) {
    for (const int id : {IDC_LAYER, IDC_COLOR, IDC_FONT_FACE, IDC_FONT_SIZE, IDC_STYLE_NAME}) {
        CComboControl& combo = Get<CComboControl>(id);
        const auto openWith = [&](int letters) {
            const std::string name(static_cast<size_t>(letters), 'M');
            combo.AddString(("00000001\t" + name).c_str());
            combo.ShowDropDown(TRUE);
            combo.ShowDropDown(FALSE);
            const orlo::WindowDC dc(combo.m_hWnd);
            const orlo::SelectedObject font(dc.get(), reinterpret_cast<HFONT>(combo.SendMessage(WM_GETFONT)));
            SIZE size = {};
            ::GetTextExtentPoint32A(dc.get(), name.c_str(), letters, &size);
            return static_cast<int>(size.cx);
        };
        const int width = openWith(25), half = ::GetSystemMetrics(SM_CXSCREEN) / 2;
        EXPECT_LT(width + ::GetSystemMetrics(SM_CXVSCROLL), combo.SendMessage(CB_GETDROPPEDWIDTH)) << id;
        openWith(100);
        EXPECT_EQ(half, combo.SendMessage(CB_GETDROPPEDWIDTH)) << id;
    }
}

} // namespace

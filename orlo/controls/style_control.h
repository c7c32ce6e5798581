// Shared implementation of the combo boxes and list boxes of styles. Internal to the library.
#pragma once

#include "orlo/controls/combo_control.h"
#include "orlo/controls/fill_scope.h"
#include "orlo/controls/item_drawing.h"
#include "orlo/controls/list_control.h"
#include "orlo/controls/table_control.h"
#include "orlo/samples/style_sample.h"

// A friend of the four controls, each of which has a sample (m_pGraphic, m_pViewport). make() creates a sample.
struct StyleControl {
    // Handles WM_CREATE.
    template <class Control, class Make>
    static int Create(Control& control, Make make) {
        if (control.Default() == -1) return -1;
        control.m_pGraphic = make();
        control.m_pViewport.reset(::ViewportNewEx());
        return 0;
    }

    // The graphic is freed first, because it depends on the viewport.
    template <class Control>
    static void DisposeSample(Control& control) {
        control.m_pGraphic.reset();
        control.m_pViewport.reset();
    }

    // Handles the fill message; addAll(add) calls add(text) for each item.
    template <class Control, class Make, class AddAll>
    static void Fill(Control& control, LPARAM lParam, Make make, AddAll addAll) {
        const FillScope scope(control.m_hWnd);
        const bool hasTable = BeginFill(control, lParam);
        AttachSample(control.m_pGraphic, control.m_pViewport, control.m_pTable, make);
        if (!hasTable) return;
        addAll([&](const char* text) { AddItem(control, text); });
        control.SetCurSel(control.FindItem(control.m_nSelected));
    }

    // Returns the name of the style that a field without a selected item shows, or an empty string.
    template <class Control>
    static CString NameWithoutItem(const Control& control, int index) {
        char name[kItemTextSize] = "";
        if (index < 0 && control.m_pTable && IsTableIdentifier(control.m_nSelected))
            ::TableEntryGetName(control.m_pTable, static_cast<uint16_t>(control.m_nSelected), name, kEntryNameSize);
        return name;
    }

    // draw(StyleItem) draws a whole item and returns false if neither selection nor focus should be drawn.
    template <class Control, class Draw>
    static void DrawItem(Control& control, const DRAWITEMSTRUCT& request, SIZE beyond, Draw draw) {
        DrawRequest(request, beyond, [&] {
            char name[kItemTextSize];
            const unsigned int style = RequestedStyle(control, request, name);
            return draw({style, name, control.m_pTable, control.m_pGraphic.get(), control.m_pViewport.get()});
        });
    }

private:
    static void AddItem(CComboControl& control, const char* text) { control.AddControlItem(text); }
    static void AddItem(CListControl& control, const char* text) { control.AddString(text); }
};

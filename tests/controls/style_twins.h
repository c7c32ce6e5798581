// What the tests of the style controls share: combo and list of one kind of style, with their sample in sight. One suite
// serves both.
#pragma once

#include "control_dialog.h"

#include <wtypes.h>

#include <string>

#include "support/pixels.h"

// A control with its sample in sight.
template <class Base>
class Seen : public Base {
public:
    using Base::Base;
    GraphicStruct* Graphic() const { return this->m_pGraphic.get(); }
    double Number(const char* property) const {
        const PropertyTable* const table = GraphicGetVtbl(Graphic());
        int32_t number = 0;
        double value = -1.0;
        if (table->PropLookup(Graphic(), &property, 1, 0, &number))
            table->PropGet(Graphic(), number, VT_R8, &value);
        return value;
    }
    double Width() const {
        const ExtentsStruct* const extents = GraphicGetExtentsSel(Graphic(), 0);
        return ExtentsGetX2(extents) - ExtentsGetX1(extents);
    }
};

template <class Base>
struct ComboOf {
    using Control = Seen<Base>;
    static constexpr DWORD kStyle = WS_CHILD | CBS_DROPDOWNLIST | CBS_OWNERDRAWVARIABLE | CBS_HASSTRINGS;
    static constexpr const char* kClass = "ComboBox";
    static constexpr const char* kName = "Combo";
};
template <class Base>
struct ListOf {
    using Control = Seen<Base>;
    static constexpr DWORD kStyle = WS_CHILD | LBS_OWNERDRAWVARIABLE | LBS_HASSTRINGS;
    static constexpr const char* kClass = "ListBox";
    static constexpr const char* kName = "List";
};
struct TwinName {
    template <class Kind>
    static std::string GetName(int) {
        return Kind::kName;
    }
};

const COLORREF kUntouched = RGB(1, 2, 3);
const RECT kRow = {0, 20, 136, 42};

template <class Kind>
class StyleTwins : public ::testing::Test {
protected:
    explicit StyleTwins(const char* table) : m_table(m_drawing.Table(table)) { Make(200); }
    ~StyleTwins() override { m_control.DestroyWindow(); }

    void Make(int width) { EXPECT_TRUE(m_control.Create(Kind::kStyle, CRect(0, 0, width, 100), &m_host, 1)); }
    void Fill(unsigned selected = 0) {
        const ControlFillRecord record = {m_table, 0, selected};
        m_control.SendMessage(kFillMessage, 0, reinterpret_cast<LPARAM>(&record));
    }
    int IndexOf(const char* name) {
        char text[kItemTextSize];
        for (int i = 0; i < m_control.GetCount(); ++i) {
            m_control.GetControlItem(i, text);
            if (std::string(text) == name) return i;
        }
        return -1;
    }
    void Draw(int item, UINT action = ODA_DRAWENTIRE, UINT state = 0, const RECT& rect = kRow) {
        m_pixels.Clear(kUntouched);
        DRAWITEMSTRUCT request = {
            0, 1, static_cast<UINT>(item), action, state, m_control.m_hWnd, m_pixels.DC(), rect, 0};
        m_control.DrawItem(&request);
    }
    // Pixels of the row that are neither background nor untouched.
    int Ink() {
        const COLORREF window = ::GetSysColor(COLOR_WINDOW);
        return m_pixels.CountWhere({0, 10, 150, 52},
                                   [=](COLORREF c) { return c != window && c != kUntouched; });
    }

    HostWindow m_host;
    TestDrawing m_drawing;
    TableStruct* m_table;
    typename Kind::Control m_control;
    Pixels m_pixels{150, 60};
};

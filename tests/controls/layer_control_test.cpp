// The layer control: icons, names and colors of its rows.

#include "control_dialog.h"

#include <drawcore/layer.h>

#include "orlo/controls/layer_control.h"
#include "orlo/exchange/ddx_control.h"

namespace {

const COLORREF kUntouched = DrawnPixels::kUntouched;
const RECT kRow = {0, 8, 140, 24};
const RECT kAll = {0, 0, 150, 60};

class Layers : public ControlDialog {
protected:
    Layers() : m_table(m_drawing.Table(kTableLayers)), m_control(Get<CLayerControl>(IDC_LAYER)) {}

    uint16_t Add(const char* name, COLORREF color, uint32_t flags) {
        const uint16_t id = TableEntryAdd(m_table, name, nullptr);
        EXPECT_TRUE(LayerSet(m_drawing.Get(), id, color, flags, 0));
        return id;
    }
    void Draw(int item, UINT action = ODA_DRAWENTIRE, UINT state = 0, const RECT& rect = kRow) {
        m_pixels.Draw(m_control, item, rect, action, state);
    }
    // Counts drawn pixels in a column of the row.
    int CountDrawnIn(int left, int right, int background = COLOR_WINDOW) const {
        return m_pixels.CountDrawn({left, 0, right, 60}, background);
    }
    int Index(uint16_t id) {
        char name[kItemTextSize];
        for (int i = 0; i < m_control.GetCount(); ++i)
            if (m_control.GetControlItem(i, name) == id) return i;
        return -1;
    }

    TableStruct* m_table;
    CLayerControl& m_control;
    DrawnPixels m_pixels{150, 60};
};

TEST_F(Layers, ShowEyeBookAndNameInColumns) {
    const struct {
        const char* name;
        uint32_t flags;
        bool eye, book;
    } rows[] = {{"Both", kLayerLocked, true, true},
                {"Visible", 0, true, false},
                {"Locked", kLayerLocked | kLayerOff, false, true},
                {"Frozen", kLayerFrozen, false, false}};
    for (const auto& row : rows) {
        const uint16_t id = Add(row.name, RGB(0, 0, 200), row.flags);
        Fill(IDC_LAYER, m_table, id);
        for (const UINT state : {0u, static_cast<UINT>(ODS_SELECTED)}) {
            Draw(Index(id), ODA_DRAWENTIRE, state);
            const int back = state ? COLOR_HIGHLIGHT : COLOR_WINDOW;
            EXPECT_EQ(row.eye, CountDrawnIn(0, 16, back) > 30) << row.name;
            EXPECT_EQ(row.book, CountDrawnIn(16, 32, back) > 30) << row.name;
            EXPECT_LT(10, CountDrawnIn(32, 140, back)) << row.name << ": the name always begins at 32";
            const int columns = ::GetSystemMetrics(SM_CXICON);
            EXPECT_EQ(CountDrawnIn(columns, columns + Scaled(3), back), 0) << row.name << ": a gap";
            EXPECT_EQ(m_pixels.CountWhere({0, 0, 150, 8}, [](COLORREF c) { return c != kUntouched; }), 0);
        }
    }
}

TEST_F(Layers, NamesHaveTheLayersColorWhereItCanBeSeen) {
    const uint16_t green = Add("green", RGB(0, 140, 0), 0);
    const uint16_t hidden = Add("as the background", ::GetSysColor(COLOR_WINDOW), 0);
    Fill(IDC_LAYER, m_table, green);
    const RECT name = {32, 8, 140, 24};
    Draw(Index(green));
    EXPECT_LT(10, m_pixels.Count(name, RGB(0, 140, 0)));
    Draw(Index(hidden));
    EXPECT_LT(10, m_pixels.Count(name, RGB(0, 0, 0)));
    for (const auto& [layer, faint] : {std::pair("MMM", RGB(255, 255, 0)), {"MMMM", RGB(0, 255, 255)}}) {
        const uint16_t id = Add(layer, faint, 0);
        Fill(IDC_LAYER, m_table, id);
        Draw(Index(id));
        const RECT chip = {32, 8, 48, 24}, rest = {48, 8, 140, 24};
        EXPECT_LT(20, m_pixels.Count(chip, faint)) << "a square in the color";
        EXPECT_LT(10, m_pixels.Count(rest, RGB(0, 0, 0))) << "the name";
        EXPECT_EQ(m_pixels.Count(rest, faint), 0);
    }
    Draw(Index(green), ODA_DRAWENTIRE, ODS_SELECTED);
    EXPECT_EQ(m_pixels.Count(name, RGB(0, 140, 0)), 0);
    EXPECT_LT(10, m_pixels.Count(name, ::GetSysColor(COLOR_HIGHLIGHTTEXT)));
    EXPECT_LT(1000, m_pixels.Count(kAll, ::GetSysColor(COLOR_HIGHLIGHT)));
}

TEST_F(Layers, NamesAreVerticallyCentered) {
    const uint16_t id = Add("HHH", RGB(0, 0, 200), kLayerOff);
    Fill(IDC_LAYER, m_table, id);
    const auto ink = [&](LONG top, LONG bottom) { return m_pixels.Count({32, top, 140, bottom}, RGB(0, 0, 200)); };
    Draw(Index(id), ODA_DRAWENTIRE, 0, {0, 8, 140, 48});
    EXPECT_EQ(ink(8, 18), 0);
    EXPECT_LT(10, ink(18, 38));
    EXPECT_EQ(ink(38, 48), 0);
}

// A scheme with light text on a black window, as in high contrast.
TEST_F(Layers, EverythingIsVisibleOnADarkWindow) {
    const uint16_t black = Add("black", RGB(0, 0, 0), kLayerOff);
    Fill(IDC_LAYER, m_table, black);
    const SchemeColors dark({{COLOR_WINDOW, RGB(0, 0, 0)}, {COLOR_WINDOWTEXT, RGB(255, 255, 0)}});
    Draw(Index(black));
    EXPECT_LT(10, m_pixels.Count({32, 8, 140, 24}, RGB(255, 255, 0)));
}

TEST_F(Layers, ClosedFieldNeedsNoItem) {
    const uint16_t id = Add("Walls", RGB(200, 0, 0), kLayerLocked);
    Fill(IDC_LAYER, m_table, id);
    Draw(-1);
    EXPECT_LT(10, m_pixels.Count(kAll, RGB(200, 0, 0))) << "the name comes from the table";
    EXPECT_LT(30, CountDrawnIn(16, 32));
    for (const unsigned none : {unsigned{kEntryNone}, unsigned{kEntryIndeterminate}, 0xFFFFFFFFu}) {
        m_control.m_nSelected = none;
        Draw(-1);
        EXPECT_EQ(CountDrawnIn(0, 140), 0) << none;
    }
    m_control.m_nSelected = id;
    m_drawing.Close();
    Draw(-1, ODA_DRAWENTIRE, 0);
    EXPECT_EQ(CountDrawnIn(0, 140), 0) << "a table without an owner";
}

TEST_F(Layers, FocusChangeRedrawsOnlyTheFocus) {
    const uint16_t id = Add("Walls", RGB(200, 0, 0), 0);
    Fill(IDC_LAYER, m_table, id);
    Draw(Index(id), ODA_FOCUS, ODS_FOCUS);
    EXPECT_EQ(m_pixels.Count(kAll, RGB(200, 0, 0)), 0);
    EXPECT_LT(50, m_pixels.CountWhere(kAll, [](COLORREF c) { return c != kUntouched; }));
    Draw(Index(id), ODA_SELECT, 0);
    EXPECT_LT(10, m_pixels.Count(kAll, RGB(200, 0, 0))) << "a selection change redraws everything";
}

TEST_F(Layers, SubclassedWindowHasIcons) {
    CWnd window;
    ASSERT_TRUE(window.CWnd::Create("ComboBox", "",
                                    WS_CHILD | CBS_DROPDOWNLIST | CBS_OWNERDRAWVARIABLE | CBS_HASSTRINGS,
                                    CRect(0, 0, 200, 100), &m_host, 2));
    window.UnsubclassWindow();
    CLayerControl control;
    CDataExchange load(&m_host, FALSE);
    DDX_Control(1, &load, 2, control);
    const uint16_t id = Add("Walls", RGB(200, 0, 0), 0);
    const ControlFillRecord record = {m_table, 0, id};
    control.SendMessage(kFillMessage, 0, reinterpret_cast<LPARAM>(&record));
    m_pixels.Draw(control, -1, kRow);
    EXPECT_LT(30, CountDrawnIn(0, 16));
    control.DestroyWindow();
}

TEST_F(Layers, RowsFitIconAndFont) {
    MEASUREITEMSTRUCT measure = {};
    m_control.MeasureItem(&measure);
    EXPECT_EQ(static_cast<UINT>(Scaled(16)), measure.itemHeight);
    LOGFONTA description = {};
    description.lfHeight = -48;
    const HFONT large = ::CreateFontIndirectA(&description);
    m_control.SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(large), 0);
    m_control.MeasureItem(&measure);
    EXPECT_LE(48u, measure.itemHeight);
    m_control.SendMessage(WM_SETFONT, 0, 0);
    ::DeleteObject(large);
}

} // namespace

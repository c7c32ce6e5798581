// The color control: the order of its list, and its swatches pixel by pixel.

#include "control_dialog.h"

#include <algorithm>
#include <memory>
#include <random>

#include "orlo/controls/color_control.h"

namespace {

class ColorControl : public ControlDialog {
protected:
    ColorControl() : m_table(DrawingAddTable(m_drawing.Get(), "_Test_")), m_control(Get<CColorControl>(IDC_COLOR)) {}

    // Adds a color; the table stores its address.
    void Add(const std::string& name, DWORD color) {
        m_colors.push_back(std::make_unique<DWORD>(color));
        ASSERT_NE(TableEntryAdd(m_table, name.c_str(), m_colors.back().get()), 0);
    }
    void FillColors(DWORD selected = kColorNone) { Fill(IDC_COLOR, m_table, selected); }
    std::vector<std::string> Items() {
        std::vector<std::string> items;
        for (int i = 0; i < m_control.GetCount(); ++i) {
            CString text;
            m_control.GetLBText(i, text);
            items.emplace_back(text);
        }
        return items;
    }
    DWORD Color(int index) {
        char name[kItemTextSize];
        return m_control.GetControlItem(index, name);
    }

    std::vector<std::unique_ptr<DWORD>> m_colors;
    TableStruct* m_table;
    CColorControl& m_control;
};

TEST_F(ColorControl, ListsColorsInOrderAndLaterDuplicatesFirst) {
    Add("Red", RGB(255, 0, 0));
    Add("White", RGB(255, 255, 255));
    Add("Blue", RGB(0, 0, 255));
    Add("Also blue", RGB(0, 0, 255));
    Add("No color", 0x01FF0000);
    Add("Black", 0);
    m_control.m_bExtraEntries = 0;
    FillColors(RGB(0, 0, 255));
    const std::vector<std::string> expected = {"00000000\tBlack", "00FFFFFF\tWhite", "00FF0000\tAlso blue",
                                               "00FF0000\tBlue", "000000FF\tRed"};
    EXPECT_EQ(expected, Items());
    EXPECT_EQ(m_control.GetCurSel(), 2);
}

// Sorting once and inserting one by one result in the same list.
TEST_F(ColorControl, SortingEqualsInsertingOneByOne) {
    std::mt19937 random(3);
    for (int i = 0; i < 400; ++i)
        Add("c" + std::to_string(i), random() & (i % 3 ? 0x070707 : 0xFFFFFF));
    m_control.m_bExtraEntries = 0;
    FillColors();
    const std::vector<std::string> sorted = Items();
    ASSERT_EQ(sorted.size(), 400u);

    m_control.ResetContent();
    for (size_t i = 0; i < m_colors.size(); ++i) {
        char item[kItemTextSize];
        std::snprintf(item, sizeof item, "%08lX\tc%d", *m_colors[i], static_cast<int>(i));
        m_control.AddControlItem(item);
    }
    EXPECT_EQ(sorted, Items());
}

TEST_F(ColorControl, ItemsAreInsertedInOrderBeforeTheExtraEntries) {
    Add("Dark", RGB(10, 10, 10));
    Add("Light", RGB(200, 200, 200));
    FillColors();
    EXPECT_EQ(m_control.AddControlItem("00808080\tMiddle"), 1);
    EXPECT_EQ(Color(1), RGB(0x80, 0x80, 0x80));
    EXPECT_EQ(m_control.AddControlItem("000A0A0A\tDark again"), 0) << "before an equal item";
}

TEST_F(ColorControl, ExtraEntriesFollowTheColors) {
    Add("Red", RGB(255, 0, 0));
    const struct { int extra, last, count; } rows[] = {{0, 0, 1}, {0, 1, 1}, {1, 0, 2}, {1, 1, 3}};
    for (const auto& row : rows) {
        m_control.m_bExtraEntries = row.extra;
        m_control.EnableLastEntry(row.last);
        FillColors(kColorByLayer);
        ASSERT_EQ(row.count, m_control.GetCount());
        EXPECT_EQ(row.extra ? 1 : -1, m_control.GetCurSel());
        if (row.count == 1) continue;
        char name[kItemTextSize], host[128] = "";
        DrawCoreLoadString(kStringByLayer, host, sizeof host);
        EXPECT_EQ(m_control.GetControlItem(1, name), kColorByLayer);
        EXPECT_STREQ(host, name);
        EXPECT_EQ(row.last ? kColorOfPen : 0u, Color(2));
    }
}

TEST_F(ColorControl, MarkersWithoutValueSelectNothing) {
    Add("Red", RGB(255, 0, 0));
    m_control.AddString("FFFFFFFF\tnever found");
    EXPECT_EQ(m_control.FindColor(kColorIndeterminate), -1);
    FillColors(kColorIndeterminate);
    EXPECT_EQ(m_control.GetCurSel(), -1);
    FillColors(RGB(1, 2, 3));
    EXPECT_EQ(m_control.GetCurSel(), -1);
    EXPECT_EQ(m_control.m_nSelected, RGB(1, 2, 3));
}

// A host's class that filters the list.
class FilteredColors : public CColorControl {
public:
    FilteredColors() : CColorControl(0) {}
    int AddControlItem(const char* item) override {
        return std::string(item).find("hidden") == std::string::npos ? CColorControl::AddControlItem(item) : -1;
    }
};

TEST_F(ColorControl, DerivedClassIsCalledForEachItem) {
    Add("hidden red", RGB(255, 0, 0));
    Add("blue", RGB(0, 0, 255));
    Add("grey", RGB(9, 9, 9));
    FilteredColors filtered;
    ASSERT_TRUE(filtered.Create(WS_CHILD | CBS_DROPDOWNLIST | CBS_HASSTRINGS, CRect(0, 0, 90, 90), &m_dialog, 7));
    const ControlFillRecord record = {m_table, 0, 0};
    filtered.SendMessage(kFillMessage, 0, reinterpret_cast<LPARAM>(&record));
    ASSERT_EQ(filtered.GetCount(), 2);
    CString first;
    filtered.GetLBText(0, first);
    EXPECT_EQ(std::string(first), "00090909\tgrey");
}

// ---- Drawing

constexpr COLORREF kWhite = RGB(255, 255, 255);
constexpr COLORREF kBlack = RGB(0, 0, 0);
const RECT kRow = {0, 20, 100, 36};    // in the list
const RECT kField = {10, 20, 110, 36}; // the closed field

class Swatch : public ColorControl {
protected:
    void Draw(int item, const RECT& rect, UINT action = ODA_DRAWENTIRE, UINT state = 0) {
        m_pixels.Draw(m_control, item, rect, action, state);
    }
    void DrawOnly(DWORD color, const char* name, const RECT& rect = kRow) {
        m_control.ResetContent();
        char item[kItemTextSize];
        std::snprintf(item, sizeof item, "%08lX\t%s", color, name);
        m_control.AddString(item);
        Draw(0, rect);
    }
    static RECT Middle(const RECT& rect) { return {rect.left + 20, rect.top + 2, rect.right - 20, rect.bottom - 2}; }

    static constexpr COLORREF kUntouched = DrawnPixels::kUntouched;
    DrawnPixels m_pixels{120, 60};
};

TEST_F(Swatch, ColorFillsTheRowAndTheNameContrasts) {
    const struct {
        COLORREF color, text;
    } rows[] = {{RGB(0, 0, 250), kWhite},     {RGB(5, 5, 5), kWhite},       {RGB(250, 250, 0), kBlack},
                {RGB(128, 128, 128), kBlack}, {RGB(127, 127, 129), kWhite}, {RGB(0, 255, 0), kBlack},
                {RGB(255, 0, 0), kWhite}};
    for (const auto& row : rows) {
        DrawOnly(row.color, "MMMM");
        EXPECT_EQ(row.color, m_pixels.At(1, 21));
        EXPECT_EQ(row.color, m_pixels.At(98, 34));
        EXPECT_LT(10, m_pixels.Count(Middle(kRow), row.text)) << std::hex << row.color;
        EXPECT_EQ(m_pixels.At(50, 19), kUntouched);
        EXPECT_EQ(m_pixels.At(50, 36), kUntouched);
    }
}

TEST_F(Swatch, NameIsCenteredOrLeftAlignedIfTooWide) {
    DrawOnly(RGB(250, 250, 0), "II");
    const RECT left = {0, 20, 40, 36}, right = {60, 20, 100, 36};
    EXPECT_EQ(m_pixels.Count(left, kBlack), 0);
    EXPECT_EQ(m_pixels.Count(right, kBlack), 0);
    DrawOnly(RGB(250, 250, 0), "IWWWWWWWWWWWWWWWWWWWWWWWW");
    const RECT start = {0, 20, 8, 36};
    EXPECT_LT(0, m_pixels.Count(start, kBlack));
}

TEST_F(Swatch, WhiteHasABlackFrame) {
    DrawOnly(kWhite, "");
    for (const POINT at : {POINT{50, 21}, POINT{50, 33}, POINT{97, 28}})
        EXPECT_EQ(m_pixels.At(at.x, at.y), kBlack) << at.x << "," << at.y;
    EXPECT_EQ(m_pixels.At(50, 19), kUntouched) << "within its row";
    DrawOnly(kWhite, "", kField);
    EXPECT_EQ(m_pixels.At(50, 19), kBlack) << "covers the border of the field";
    EXPECT_EQ(m_pixels.At(50, 28), kWhite);
}

TEST_F(Swatch, MarkerIsAFramedLabelOnWhite) {
    DrawOnly(kColorByLayer, "");
    char host[128] = "";
    ASSERT_LT(0, DrawCoreLoadString(kStringByLayer, host, sizeof host));
    EXPECT_EQ(m_pixels.At(50, 21), kBlack) << "frame inside the row";
    EXPECT_EQ(m_pixels.At(50, 20), kWhite);
    const RECT inside = {3, 23, 97, 33};
    EXPECT_LT(5, m_pixels.Count(inside, kBlack)) << "the host's text";
}

TEST_F(Swatch, ClosedFieldShowsAColorThatIsNotListed) {
    FillColors(0x00123456);
    Draw(-1, kField);
    EXPECT_EQ(m_pixels.At(12, 22), RGB(0x56, 0x34, 0x12));
    EXPECT_LT(10, m_pixels.Count(Middle(kField), kWhite)) << "its numbers";
    EXPECT_EQ(m_pixels.At(50, 18), kWhite) << "the border of the field is covered";
    EXPECT_EQ(m_pixels.At(50, 17), kUntouched);
    for (const DWORD none : {kColorNone, kColorIndeterminate}) {
        FillColors(none);
        Draw(-1, kField);
        EXPECT_EQ(m_pixels.Count(kField, kWhite), 100 * 16) << "empty without a value";
    }
}

// A hard-coded white field would be visible.
TEST_F(Swatch, DarkSchemeHasDarkFields) {
    const COLORREF yellow = RGB(255, 255, 0);
    const SchemeColors dark({{COLOR_WINDOW, kBlack}, {COLOR_WINDOWTEXT, yellow}});
    FillColors(kColorIndeterminate);
    Draw(-1, kField);
    EXPECT_EQ(m_pixels.Count(kField, kBlack), 100 * 16);
    DrawOnly(kColorByLayer, "");
    EXPECT_LT(100, m_pixels.Count(kRow, yellow)) << "the label";
    DrawOnly(kWhite, "MMMM");
    EXPECT_LT(500, m_pixels.Count(kRow, kWhite));
    EXPECT_LT(10, m_pixels.Count(Middle(kRow), kBlack));
    DrawOnly(kBlack, "MMMM");
    EXPECT_EQ(yellow, m_pixels.At(50, 21)) << "black on black is framed";
    EXPECT_LT(10, m_pixels.Count(Middle(kRow), kWhite));
}

TEST_F(Swatch, TheCurrentRowIsMarkedOnAnyColor) {
    const COLORREF highlight = ::GetSysColor(COLOR_HIGHLIGHT), other = ::GetSysColor(COLOR_HIGHLIGHTTEXT);
    for (const COLORREF color : {RGB(255, 0, 0), highlight, other}) {
        DrawOnly(color, "");
        const int highlighted = m_pixels.Count(kRow, highlight), others = m_pixels.Count(kRow, other);
        Draw(0, kRow, ODA_SELECT, ODS_SELECTED);
        EXPECT_LT(100, std::max(m_pixels.Count(kRow, highlight) - highlighted, m_pixels.Count(kRow, other) - others))
            << color;
        Draw(0, kRow, ODA_SELECT, 0);
        EXPECT_EQ(highlighted, m_pixels.Count(kRow, highlight)) << "and without the marker where it continues";
    }
    Draw(0, kRow, ODA_FOCUS, ODS_FOCUS);
    EXPECT_NE(m_pixels.Count(kRow, kUntouched), 100 * 16) << "only the focus rectangle";
    EXPECT_EQ(m_pixels.At(50, 28), kUntouched);
}

TEST_F(Swatch, PreservesTheDeviceContext) {
    Add("Red", RGB(255, 0, 0));
    Add("White", kWhite);
    FillColors();
    const HDC dc = m_pixels.DC();
    ::SetTextColor(dc, RGB(9, 8, 7));
    ::SetBkColor(dc, RGB(7, 8, 9));
    ::SetBkMode(dc, OPAQUE);
    const HGDIOBJ before[] = {::GetCurrentObject(dc, OBJ_PEN), ::GetCurrentObject(dc, OBJ_BRUSH),
                              ::GetCurrentObject(dc, OBJ_FONT)};
    int objects = 0;
    for (int round = 0; round < 200; ++round) {
        if (round == 20) objects = GdiObjectCount();
        for (int item = 0; item < 3; ++item)
            Draw(item, kRow, ODA_DRAWENTIRE, ODS_FOCUS);
    }
    EXPECT_EQ(objects, GdiObjectCount());
    EXPECT_EQ(::GetTextColor(dc), RGB(9, 8, 7));
    EXPECT_EQ(::GetBkMode(dc), OPAQUE);
    EXPECT_EQ(before[0], ::GetCurrentObject(dc, OBJ_PEN));
    EXPECT_EQ(before[1], ::GetCurrentObject(dc, OBJ_BRUSH));
    EXPECT_EQ(before[2], ::GetCurrentObject(dc, OBJ_FONT));
}

} // namespace

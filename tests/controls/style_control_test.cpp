// The controls of line styles and brush styles: the offered styles, and shape, scale and drawing of samples. One suite
// for all four controls, and one for each pair of combo box and list box.

#include "control_dialog.h"

#include <drawcore/brushstyle.h>
#include <drawcore/linestyle.h>
#include <drawcore/object_counts.h>

#include <cmath>

#include "orlo/controls/brush_style_control_c.h"
#include "orlo/controls/brush_style_control_l.h"
#include "orlo/controls/line_style_control_c.h"
#include "orlo/controls/line_style_control_l.h"
#include "orlo/exchange/ddx_control.h"

namespace {

// A control whose sample is accessible.
template <class Base>
class Seen : public Base {
public:
    using Base::Base;
    GraphicStruct* Graphic() const { return this->m_pGraphic.get(); }
    double Number(const char* property) const {
        const PropertyTable* const table = GraphicGetVtbl(Graphic());
        int32_t number = 0;
        double value = -1.0;
        if (table->PropLookup(Graphic(), &property, 1, 0, &number)) table->PropGet(Graphic(), number, VT_R8, &value);
        return value;
    }
    double Width() const {
        const ExtentsStruct* const extents = GraphicGetExtentsSel(Graphic(), 0);
        return ExtentsGetX2(extents) - ExtentsGetX1(extents);
    }
};

using Numbers = std::vector<double>; // dashes and gaps, or distances of hatch lines

struct Lines {
    static constexpr const char* kTable = kTableLineStyles;
    static constexpr const char* kScale = kPropPenScale;
    static uint16_t Add(TableStruct* table, const char* name, const Numbers& pattern = {1, -1}) {
        return LineStyleAdd(table, name, nullptr, pattern.data(), static_cast<int>(pattern.size()));
    }
};
struct Brushes {
    static constexpr const char* kTable = kTableBrushStyles;
    static constexpr const char* kScale = kPropBrushScale;
    static uint16_t Add(TableStruct* table, const char* name, const Numbers& spacings = {1}) {
        std::vector<BrushLine> lines;
        for (const double spacing : spacings)
            lines.push_back({0.3 + static_cast<double>(lines.size()), 0, 0, 0, spacing, 0, {}});
        return BrushStyleAddLines(table, name, lines.data(), static_cast<int>(lines.size()));
    }
};
template <class Kind, class Base>
struct ComboOf : Kind {
    using Control = Seen<Base>;
    static constexpr DWORD kStyle = WS_CHILD | CBS_DROPDOWNLIST | CBS_OWNERDRAWVARIABLE | CBS_HASSTRINGS;
    static constexpr const char* kClass = "ComboBox";
    static constexpr bool kIsCombo = true;
};
template <class Kind, class Base>
struct ListOf : Kind {
    using Control = Seen<Base>;
    static constexpr DWORD kStyle = WS_CHILD | LBS_OWNERDRAWVARIABLE | LBS_HASSTRINGS;
    static constexpr const char* kClass = "ListBox";
    static constexpr bool kIsCombo = false;
};
using LineCombo = ComboOf<Lines, CLineStyleControlC>;
using LineList = ListOf<Lines, CLineStyleControlL>;
using BrushCombo = ComboOf<Brushes, CBrushStyleControlC>;
using BrushList = ListOf<Brushes, CBrushStyleControlL>;

const COLORREF kUntouched = DrawnPixels::kUntouched;
const RECT kRow = {0, 20, 136, 42}, kField = {5, 20, 140, 42}, kAll = {0, 0, 150, 60};

template <class Kind>
class StyleControls : public ::testing::Test {
protected:
    StyleControls() : m_table(m_drawing.Table(Kind::kTable)) { Make(200); }
    ~StyleControls() override { m_control.DestroyWindow(); }

    void Make(int width) { EXPECT_TRUE(m_control.Create(Kind::kStyle, CRect(0, 0, width, 100), &m_host, 1)); }
    void Fill(unsigned selected = 0) { FillControl(m_control, selected); }
    void FillControl(CWnd& control, unsigned selected = 0) {
        const ControlFillRecord record = {m_table, 0, selected};
        control.SendMessage(kFillMessage, 0, reinterpret_cast<LPARAM>(&record));
    }
    int IndexOf(const char* name) {
        char text[kItemTextSize];
        for (int i = 0; i < m_control.GetCount(); ++i) {
            m_control.GetControlItem(i, text);
            if (std::string(text) == name) return i;
        }
        return -1;
    }
    // Returns the identifier of an item and checks that its name is the host's string.
    unsigned HostItem(int index, unsigned text) {
        char name[kItemTextSize], host[128] = "";
        DrawCoreLoadString(text, host, sizeof host);
        const auto id = static_cast<unsigned>(m_control.GetControlItem(index, name));
        EXPECT_STREQ(host, name);
        return id;
    }
    void Draw(int item, UINT action = ODA_DRAWENTIRE, UINT state = 0, const RECT& rect = kRow) {
        m_pixels.Draw(m_control, item, rect, action, state);
    }
    int CountDrawn(const RECT& rect = kAll) { return m_pixels.CountDrawn(rect); }
    // length: divisor of the sample's width in the scale; 0 for scale 1.
    struct ScaleRow {
        const char* name;
        Numbers numbers;
        double length;
    };
    void ExpectScales(const std::vector<ScaleRow>& rows) {
        for (const ScaleRow& row : rows)
            ASSERT_NE(Kind::Add(m_table, row.name, row.numbers), 0) << row.name;
        Fill();
        for (const ScaleRow& row : rows) {
            ASSERT_LE(0, IndexOf(row.name)) << row.name;
            Draw(IndexOf(row.name));
            const double expected = row.length != 0 ? m_control.Width() / row.length : 1.0;
            EXPECT_NEAR(expected, m_control.Number(Kind::kScale), 1e-9) << row.name;
        }
    }

    HostWindow m_host;
    TestDrawing m_drawing;
    TableStruct* m_table;
    typename Kind::Control m_control;
    DrawnPixels m_pixels{150, 60};
};

// ---- All four controls

using AllKinds = ::testing::Types<LineCombo, LineList, BrushCombo, BrushList>;
TYPED_TEST_SUITE(StyleControls, AllKinds);

TYPED_TEST(StyleControls, ClosedFieldShowsStylesAndHostNames) {
    const unsigned style = TypeParam::Add(this->m_table, "Own");
    const bool lines = std::is_base_of<Lines, TypeParam>::value;
    const struct {
        unsigned value;
        bool ink;
    } rows[] = {{kBrushStyleNone, !lines},  {kLineStyleIndeterminate, false}, {0xFFFFFFFF, false},
                {kLineStyleByLayer, lines}, {kLineStyleByBlock, true},        {style, true}};
    for (const auto& row : rows) {
        if (!lines && row.value == kLineStyleByBlock) continue; // an identifier like any other
        this->Fill(row.value);
        this->Draw(-1, ODA_DRAWENTIRE, 0, kField);
        EXPECT_EQ(row.ink, this->CountDrawn() > 0) << row.value;
    }
}

TYPED_TEST(StyleControls, WithoutATableOnlyTheBackgroundIsDrawn) {
    const unsigned style = TypeParam::Add(this->m_table, "Own");
    this->Fill(style);
    const int item = this->IndexOf("Own");
    this->m_control.m_pTable = nullptr;
    this->Draw(item, ODA_DRAWENTIRE, ODS_SELECTED | ODS_FOCUS);
    EXPECT_EQ(this->CountDrawn(), 0) << "neither frame nor focus";
    this->Draw(-1, ODA_DRAWENTIRE, ODS_SELECTED | ODS_FOCUS, kField);
    EXPECT_EQ(this->CountDrawn(), 0);
}

TYPED_TEST(StyleControls, SelectionIsAFrameThatCanBeRemoved) {
    TypeParam::Add(this->m_table, "Own");
    this->Fill();
    const int item = this->IndexOf("Own");
    const COLORREF highlight = ::GetSysColor(COLOR_HIGHLIGHT);
    this->Draw(item, ODA_SELECT, ODS_SELECTED);
    const int frame = this->m_pixels.Count(kAll, highlight);
    EXPECT_LT(480, frame);
    EXPECT_EQ(frame, this->m_pixels.Count(kRow, highlight)) << "within the row";
    const auto picture = [&](UINT action) {
        this->Draw(item, action, 0);
        std::vector<COLORREF> colors;
        for (int y = 0; y < 60; ++y)
            for (int x = 0; x < 150; ++x)
                colors.push_back(this->m_pixels.At(x, y));
        return colors;
    };
    EXPECT_EQ(picture(ODA_DRAWENTIRE), picture(ODA_SELECT)) << "the removed frame leaves no traces on the sample";
    this->Draw(item, ODA_FOCUS, ODS_FOCUS);
    EXPECT_EQ(this->m_pixels.Count(kAll, highlight), 0);
    EXPECT_LT(this->m_pixels.Count(kAll, kUntouched), 150 * 60) << "only the focus rectangle";
    this->Draw(item, ODA_FOCUS, ODS_SELECTED | ODS_FOCUS, kField);
    EXPECT_LT(100, this->m_pixels.Count(kAll, highlight)) << "the closed field is always drawn completely";
}

TYPED_TEST(StyleControls, SampleIsCenteredAndFillsItsRowInOneDirection) {
    TypeParam::Add(this->m_table, "Own");
    this->Fill();
    this->Draw(this->IndexOf("Own"));
    CRect ink;
    for (int y = kRow.top; y < kRow.bottom; ++y)
        for (int x = kRow.left; x < kRow.right; ++x)
            if (this->CountDrawn({x, y, x + 1, y + 1}) > 0) ink.UnionRect(CRect(ink), CRect(x, y, x + 1, y + 1));
    const CRect row = kRow;
    EXPECT_NEAR(ink.CenterPoint().x, row.CenterPoint().x, 10) << "the last gap can be at an edge";
    EXPECT_NEAR(ink.CenterPoint().y, row.CenterPoint().y, 2);
    EXPECT_TRUE(4 * row.Width() < 5 * ink.Width() || 4 * row.Height() < 5 * ink.Height())
        << ink.Width() << " by " << ink.Height();
}

TYPED_TEST(StyleControls, SubclassedWindowHasASampleWhenFilled) {
    CWnd window;
    ASSERT_TRUE(window.CWnd::Create(TypeParam::kClass, "", TypeParam::kStyle, CRect(0, 0, 200, 100), &this->m_host, 2));
    window.UnsubclassWindow();
    typename TypeParam::Control control;
    CDataExchange load(&this->m_host, FALSE);
    DDX_Control(1, &load, 2, control);
    EXPECT_EQ(control.Graphic(), nullptr);
    this->FillControl(control);
    ASSERT_NE(control.Graphic(), nullptr);
    EXPECT_NEAR(this->m_control.Width(), control.Width(), 1e-9) << "as if it had been created with the window";
    control.DestroyWindow();
}

TYPED_TEST(StyleControls, AnyWidthHasASample) {
    for (const int width : {0, 1, 19, 20, 3000}) {
        this->m_control.DestroyWindow();
        this->Make(width);
        TypeParam::Add(this->m_table, "Own");
        this->Fill();
        ASSERT_LT(0.0, this->m_control.Width()) << width;
        this->Draw(this->IndexOf("Own"));
        EXPECT_TRUE(std::isfinite(this->m_control.Number(TypeParam::kScale)));
    }
}

TYPED_TEST(StyleControls, DrawingCanBeClosedWhileTheControlExists) {
    TypeParam::Add(this->m_table, "Own");
    this->Fill();
    this->m_drawing.Close();
    for (int i = 0; i < this->m_control.GetCount(); ++i)
        this->Draw(i);
    this->m_table = nullptr;
    this->Fill();
    EXPECT_EQ(this->m_control.GetCount(), 0);
    EXPECT_EQ(GraphicGetDrawing(this->m_control.Graphic()), nullptr) << "the sample is detached from the drawing";
}

TYPED_TEST(StyleControls, ManyPaintsLeakNothing) {
    TypeParam::Add(this->m_table, "Own");
    this->Fill();
    DrawCoreObjectCounts before = {}, after = {};
    int objects = 0;
    for (int round = 0; round < 60; ++round) {
        if (round == 10) {
            objects = GdiObjectCount();
            DrawCoreGetObjectCounts(&before);
        }
        for (int i = 0; i < this->m_control.GetCount(); ++i)
            this->Draw(i, ODA_DRAWENTIRE, ODS_SELECTED | ODS_FOCUS);
    }
    DrawCoreGetObjectCounts(&after);
    EXPECT_EQ(objects, GdiObjectCount());
    EXPECT_EQ(before.graphics, after.graphics);
    EXPECT_EQ(before.vertices, after.vertices);
    EXPECT_EQ(before.viewports, after.viewports);
}

// ---- Line styles

template <class Kind>
class LineStyles : public StyleControls<Kind> {};
using LineTwins = ::testing::Types<LineCombo, LineList>;
TYPED_TEST_SUITE(LineStyles, LineTwins);

TYPED_TEST(LineStyles, OfferAllButConstructionStyles) {
    for (const char* name : {"$CONSTRUCTION", "$AUXILIARY"})
        TypeParam::Add(this->m_table, name);
    const uint16_t dashed = TypeParam::Add(this->m_table, "Dashed");
    this->Fill(dashed);
    EXPECT_EQ(this->IndexOf("$CONSTRUCTION"), -1);
    EXPECT_EQ(this->IndexOf("$AUXILIARY"), -1);
    EXPECT_EQ(this->IndexOf("Dashed"), this->m_control.GetCurSel());
    const int last = this->m_control.GetCount() - 1;
    EXPECT_EQ(unsigned{kLineStyleByLayer}, this->HostItem(last, kStringByLayer)) << "the default item is last";
    this->Fill(kLineStyleByLayer);
    EXPECT_EQ(last, this->m_control.GetCurSel());
    this->m_control.m_pTable = nullptr;
    this->Draw(last);
    EXPECT_LT(0, this->CountDrawn()) << "a name needs no table";
    this->Fill(0);
    EXPECT_EQ(this->m_control.GetCurSel(), -1);
}

TYPED_TEST(LineStyles, TheFirstGapIsAFifteenthOfTheSample) {
    this->ExpectScales({{"Solid", {}, 0},
                        {"OneDash", {1.0}, 0},
                        {"Dashed", {0.5, -0.25}, 3.75},
                        {"NoGap", {1, 2}, 2.5},
                        {"ZeroGapPassedOver", {1, 0, 1, -0.1}, 1.5},
                        {"GapFirst", {-2, 1, -0.1, 1}, 30},
                        {"EightItems", {1, 1, 1, 1, 1, 1, 1, -0.2}, 3},
                        {"SixtyFourItems", Numbers(64, 1.0), 2.5}});
}

TYPED_TEST(LineStyles, DashesShowAsGapsInTheSample) {
    TypeParam::Add(this->m_table, "Dashed", {0.5, -0.5});
    TypeParam::Add(this->m_table, "Plain", {});
    this->Fill();
    const COLORREF window = ::GetSysColor(COLOR_WINDOW);
    const auto changes = [&](const char* name) {
        this->Draw(this->IndexOf(name));
        int most = 0;
        for (int y = kRow.top; y < kRow.bottom; ++y)
            most = std::max(most, this->m_pixels.ChangesAlongRow(y, kRow.left, kRow.right, window));
        return most;
    };
    EXPECT_EQ(changes("Plain"), 2) << "one stroke with a margin at either end";
    EXPECT_LT(10, changes("Dashed"));
    EXPECT_EQ(this->m_pixels.At(50, kRow.top - 1), kUntouched);
}

TEST(LineStyleCombo, HasADefaultItemOnlyIfRequested) {
    HostWindow host;
    TestDrawing drawing;
    for (const int wanted : {0, 1}) {
        CLineStyleControlC combo(wanted);
        ASSERT_TRUE(combo.Create(LineCombo::kStyle, CRect(0, 0, 100, 100), &host, 1));
        const ControlFillRecord record = {drawing.Table(kTableLineStyles), 0, kLineStyleByLayer};
        combo.SendMessage(kFillMessage, 0, reinterpret_cast<LPARAM>(&record));
        EXPECT_EQ(wanted ? combo.GetCount() - 1 : -1, combo.GetCurSel());
        combo.DestroyWindow();
    }
}

// ---- Brush styles

template <class Kind>
class BrushStyles : public StyleControls<Kind> {};
using BrushTwins = ::testing::Types<BrushCombo, BrushList>;
TYPED_TEST_SUITE(BrushStyles, BrushTwins);

TYPED_TEST(BrushStyles, BeginWithNoBrushAndOfferEveryStyle) {
    this->Fill(TypeParam::Add(this->m_table, "$CONSTRUCTION"));
    EXPECT_EQ(unsigned{kBrushStyleNone}, this->HostItem(0, kStringNoBrush));
    EXPECT_EQ(this->IndexOf("$CONSTRUCTION"), this->m_control.GetCurSel());
    EXPECT_LT(1, this->m_control.GetCount());
    this->Fill(0);
    EXPECT_EQ(this->m_control.GetCurSel(), -1) << "the item for no brush is not found by its number";
}

TYPED_TEST(BrushStyles, HatchIsScaledToTheSample) {
    const double lines = TypeParam::kIsCombo ? 20.0 * 2.0 / 3.0 : 20.0; // across the sample
    this->ExpectScales({{"None", {}, 0},
                        {"One", {2}, 2 * lines},
                        {"Two", {3, 4}, 2.4 * lines},
                        {"Backwards", {-2}, 2 * lines},
                        {"TooFineCountsNot", {2, 1e-9}, 2 * lines},
                        {"OnlyTooFine", {1e-9}, 0}});
}

TYPED_TEST(BrushStyles, SampleOfAComboBoxFitsItsCell) {
    TypeParam::Add(this->m_table, "Solid like", {});
    this->Fill();
    const struct {
        RECT rect;
        double ratio; // of the cell: the item less 2 pixels on each side
    } rows[] = {{{0, 20, 64, 39}, 4.0}, {{0, 20, 24, 44}, 1.0}, {{0, 20, 64, 24}, 60 / 0.01}};
    for (const auto& row : rows) {
        this->Draw(this->IndexOf("Solid like"), ODA_DRAWENTIRE, 0, row.rect);
        EXPECT_NEAR(TypeParam::kIsCombo ? row.ratio : 4.0, this->m_control.Width(), 1e-9);
        double last = 0;
        for (const VertexStruct* vertex : orlo::host::Vertices(this->m_control.Graphic()))
            last = vertex->x;
        EXPECT_NEAR(0.01, last, 1e-12) << "the outline is closed at its start";
    }
}

// A solid style fills the cell, a hatch part of it; neither paints outside.
TYPED_TEST(BrushStyles, SamplesAreFilledWithinTheCell) {
    TypeParam::Add(this->m_table, "Hatch");
    this->Fill();
    const RECT row = {0, 20, 100, 45}, cell = {2, 22, 98, 43};
    const auto coveredIn = [&](const char* name) {
        this->Draw(this->IndexOf(name), ODA_DRAWENTIRE, 0, row);
        const int inside = this->CountDrawn(cell);
        EXPECT_EQ(inside, this->CountDrawn()) << "outside";
        return inside;
    };
    const int area = (cell.right - cell.left) * (cell.bottom - cell.top);
    const int solid = coveredIn("Solid"), hatch = coveredIn("Hatch");
    EXPECT_LT(area * 8 / 10, solid);
    EXPECT_LT(area / 40, hatch);
    EXPECT_LT(hatch, solid * 7 / 10);
    EXPECT_EQ(solid, coveredIn("Solid")) << "not the fill of the previous item";
}

// ---- Sizes

class DrawnDialog : public ControlDialog {};

TEST_F(DrawnDialog, ListsHaveTheirOwnHeights) {
    CRect rect;
    Get<CListControl>(IDC_LINE_STYLE_LIST).GetWindowRect(rect);
    CRect client;
    CListControl& lines = Get<CListControl>(IDC_LINE_STYLE_LIST);
    lines.GetClientRect(client);
    MEASUREITEMSTRUCT row = {};
    lines.MeasureItem(&row);
    EXPECT_EQ(client.Height() % static_cast<int>(row.itemHeight), 0) << "whole rows";
    EXPECT_LT(136 - Scaled(22), rect.Height());
    EXPECT_GE(Scaled(136), rect.Height());
    CBrushStyleControlL brushes;
    ASSERT_TRUE(brushes.Create(BrushList::kStyle, CRect(0, 0, 101, 300), &m_host, 1));
    MEASUREITEMSTRUCT measure = {};
    brushes.MeasureItem(&measure);
    EXPECT_EQ(measure.itemHeight, 30u) << "three tenths of the width";
    brushes.DestroyWindow();
}

} // namespace

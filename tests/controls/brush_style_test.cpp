// The brush style controls: what they offer, how a sample is shaped, scaled and filled. One suite for combo and list.

#include "style_twins.h"

#include <drawcore/brushstyle.h>
#include <drawcore/census.h>

#include <cmath>
#include <vector>

#include "orlo/controls/brush_style_control_c.h"
#include "orlo/controls/brush_style_control_l.h"
#include "support/object_counts.h"

namespace {

struct Combo : ComboOf<CBrushStyleControlC> {
    static constexpr double kLines = 20.0 * 2.0 / 3.0;
    static constexpr bool kFits = true;
};
struct List : ListOf<CBrushStyleControlL> {
    static constexpr double kLines = 20.0;
    static constexpr bool kFits = false;
};

template <class Kind>
class BrushStyles : public StyleTwins<Kind> {
protected:
    BrushStyles() : StyleTwins<Kind>(kTableBrushStyles) {}
    uint16_t Add(const char* name, const std::vector<double>& spacings) {
        std::vector<BrushLine> lines;
        for (const double spacing : spacings)
            lines.push_back({0.3 + static_cast<double>(lines.size()), 0, 0, 0, spacing, 0, {}});
        return BrushStyleAddLines(this->m_table, name, lines.data(), static_cast<int>(lines.size()));
    }
    std::string HostName() {
        char host[128] = "";
        DrawCoreLoadString(kStringNoBrush, host, sizeof host);
        return host;
    }
};

using Twins = ::testing::Types<Combo, List>;
TYPED_TEST_SUITE(BrushStyles, Twins, TwinName);

TYPED_TEST(BrushStyles, BeginWithNoBrushAndOfferEveryStyle) {
    const uint16_t odd = this->Add("$CONSTRUCTION", {1});
    this->Fill(odd);
    char name[kItemTextSize];
    EXPECT_EQ(0u, this->m_control.GetControlItem(0, name));
    EXPECT_EQ(this->HostName(), name);
    EXPECT_EQ(this->IndexOf("$CONSTRUCTION"), this->m_control.GetCurSel());
    EXPECT_LT(1, this->m_control.GetCount());
    this->Fill(0);
    EXPECT_EQ(-1, this->m_control.GetCurSel()) << "the item for no brush is not found by its number";
}

struct ScaleRow {
    const char* name;
    std::vector<double> spacings;
    double combined; // 0: the scale stays 1
};

TYPED_TEST(BrushStyles, AHatchIsScaledToTheSample) {
    const ScaleRow rows[] = {
        {"None", {}, 0},
        {"One", {2}, 2},
        {"Two", {3, 4}, 2.4},
        {"Backwards", {-2}, 2},
        {"TooFineCountsNot", {2, 1e-9}, 2},
        {"OnlyTooFine", {1e-9}, 0},
    };
    for (const ScaleRow& row : rows)
        ASSERT_NE(0, this->Add(row.name, row.spacings)) << row.name;
    this->Fill();
    for (const ScaleRow& row : rows) {
        this->Draw(this->IndexOf(row.name));
        const double width = this->m_control.Width();
        const double expected = row.combined != 0 ? width / (row.combined * TypeParam::kLines) : 1.0;
        EXPECT_NEAR(expected, this->m_control.Number(kPropBrushScale), 1e-9) << row.name;
    }
}

TYPED_TEST(BrushStyles, TheSampleOfAComboTakesTheShapeOfItsCell) {
    this->Add("Solid like", {});
    this->Fill();
    const int item = this->IndexOf("Solid like");
    const struct {
        RECT rect;
        double ratio; // of the cell, the item less 2 on all sides
    } rows[] = {{{0, 20, 64, 39}, 4.0}, {{0, 20, 24, 44}, 1.0}, {{0, 20, 64, 24}, 60 / 0.01}};
    for (const auto& row : rows) {
        this->Draw(item, ODA_DRAWENTIRE, 0, row.rect);
        EXPECT_NEAR(TypeParam::kFits ? row.ratio : 4.0, this->m_control.Width(), 1e-9);
        int cookie = 0;
        const VertexStruct* last = nullptr;
        for (const VertexStruct* v = GraphicVertexFirst(this->m_control.Graphic(), &cookie, 0, 0xFFFF); v;
             v = GraphicVertexNext(this->m_control.Graphic(), &cookie, 0, 0xFFFF))
            last = v;
        EXPECT_NEAR(0.01, last->x, 1e-12) << "the outline closes where it began";
    }
}

// A solid style fills the cell, a hatch a part of it, and none of them what is around it.
TYPED_TEST(BrushStyles, SamplesAreFilledWithinTheCell) {
    this->Add("Hatch", {1});
    this->Fill();
    const RECT row = {0, 20, 100, 45};
    const RECT cell = {2, 22, 98, 43};
    const COLORREF window = ::GetSysColor(COLOR_WINDOW);
    const auto inkIn = [&](int item) {
        this->Draw(item, ODA_DRAWENTIRE, 0, row);
        const auto isInk = [=](COLORREF c) { return c != window && c != kUntouched; };
        const int inside = this->m_pixels.CountWhere(cell, isInk);
        EXPECT_EQ(inside, this->Ink()) << "outside";
        return inside;
    };
    const int area = (cell.right - cell.left) * (cell.bottom - cell.top);
    const int solid = inkIn(this->IndexOf("Solid")), hatch = inkIn(this->IndexOf("Hatch"));
    EXPECT_LT(area * 8 / 10, solid);
    EXPECT_LT(area / 40, hatch);
    EXPECT_LT(hatch, solid * 7 / 10);
    EXPECT_EQ(solid, inkIn(this->IndexOf("Solid"))) << "not the filling of the item before";
}

TYPED_TEST(BrushStyles, ValuesOfTheClosedField) {
    const uint16_t style = this->Add("Hatch", {1});
    const RECT field = {5, 20, 140, 42};
    const struct {
        unsigned value;
        bool ink;
    } rows[] = {{kBrushStyleNone, true},
                {kBrushStyleIndeterminate, false},
                {0xFFFE, false},
                {0xFFFFFFFF, false},
                {style, true}};
    for (const auto& row : rows) {
        this->Fill(row.value);
        this->Draw(-1, ODA_DRAWENTIRE, 0, field);
        EXPECT_EQ(row.ink, this->Ink() > 0) << row.value;
    }
    this->Fill(style);
    this->m_control.m_pTable = nullptr;
    this->Draw(-1, ODA_DRAWENTIRE, ODS_SELECTED | ODS_FOCUS, field);
    EXPECT_EQ(0, this->Ink()) << "no table, no sample, no frame";
}

TYPED_TEST(BrushStyles, TheSelectionFrameOfTheComboReachesBeyond) {
    this->Add("Hatch", {1});
    this->Fill();
    this->Draw(this->IndexOf("Hatch"), ODA_SELECT, ODS_SELECTED);
    const COLORREF highlight = ::GetSysColor(COLOR_HIGHLIGHT);
    int lowest = 0;
    for (int y = 0; y < 60; ++y)
        if (this->m_pixels.Count({0, y, 150, y + 1}, highlight)) lowest = y;
    EXPECT_EQ(TypeParam::kFits ? kRow.bottom : kRow.bottom - 2, lowest);
}

TYPED_TEST(BrushStyles, ManyPaintsKeepNothing) {
    this->Add("Hatch", {1, 2});
    this->Fill();
    DrawCoreCensus before = {}, after = {};
    int objects = 0;
    for (int round = 0; round < 60; ++round) {
        if (round == 10) {
            objects = GdiObjectCount();
            DrawCoreGetCensus(&before);
        }
        for (int i = 0; i < this->m_control.GetCount(); ++i)
            this->Draw(i, ODA_DRAWENTIRE, ODS_SELECTED | ODS_FOCUS);
    }
    DrawCoreGetCensus(&after);
    EXPECT_EQ(objects, GdiObjectCount());
    EXPECT_EQ(before.graphics, after.graphics);
    EXPECT_EQ(before.vertices, after.vertices);
}

TEST(BrushStyleList, RowsAreThreeTenthsOfTheWidth) {
    HostWindow host;
    CBrushStyleControlL list;
    ASSERT_TRUE(list.Create(List::kStyle, CRect(0, 0, 101, 300), &host, 1));
    MEASUREITEMSTRUCT measure = {};
    list.MeasureItem(&measure);
    EXPECT_EQ(30u, measure.itemHeight);
    list.DestroyWindow();
}

} // namespace

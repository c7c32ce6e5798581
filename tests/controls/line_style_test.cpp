// The line style controls: what they offer, how a sample is scaled and drawn. One suite for combo and list.

#include "style_twins.h"

#include <drawcore/census.h>
#include <drawcore/linestyle.h>

#include <cmath>

#include "orlo/controls/line_style_control_c.h"
#include "orlo/controls/line_style_control_l.h"
#include "orlo/exchange/ddx_control.h"
#include "support/object_counts.h"

namespace {

template <class Kind>
class LineStyles : public StyleTwins<Kind> {
protected:
    LineStyles() : StyleTwins<Kind>(kTableLineStyles) {}
    uint16_t Add(const char* name, std::initializer_list<double> pattern) {
        return LineStyleAdd(this->m_table, name, nullptr, pattern.begin(), static_cast<int>(pattern.size()));
    }
};

using Combo = ComboOf<CLineStyleControlC>;
using List = ListOf<CLineStyleControlL>;
using Twins = ::testing::Types<Combo, List>;
TYPED_TEST_SUITE(LineStyles, Twins, TwinName);

TYPED_TEST(LineStyles, OfferAllButTheStylesForConstruction) {
    this->Add("$CONSTRUCTION", {});
    this->Add("$AUXILIARY", {});
    this->Add("$Auxiliary", {}); // taken already: the table does not mind case
    const uint16_t dashed = this->Add("Dashed", {1.0, -0.5});
    this->Fill(dashed);
    EXPECT_EQ(-1, this->IndexOf("$CONSTRUCTION"));
    EXPECT_EQ(-1, this->IndexOf("$AUXILIARY"));
    EXPECT_EQ(this->IndexOf("Dashed"), this->m_control.GetCurSel());
    char name[kItemTextSize], host[128] = "";
    EXPECT_EQ(0xFFFEu, this->m_control.GetControlItem(this->m_control.GetCount() - 1, name))
        << "the default item is last";
    DrawCoreLoadString(kStringByLayer, host, sizeof host);
    EXPECT_STREQ(host, name);

    this->Fill(kLineStyleByLayer);
    EXPECT_EQ(this->m_control.GetCount() - 1, this->m_control.GetCurSel());
    this->Fill(0);
    EXPECT_EQ(-1, this->m_control.GetCurSel());
}

struct ScaleRow {
    const char* name;
    std::vector<double> pattern;
    double length; // of fifteen gaps; 0: the scale stays 1
};

TYPED_TEST(LineStyles, TheFirstGapIsAFifteenthOfTheSample) {
    const ScaleRow rows[] = {
        {"Solid", {}, 0},
        {"OneDash", {1.0}, 0},
        {"Dashed", {0.5, -0.25}, 3.75},
        {"NoGap", {1, 2}, 2.5},
        {"ZeroGapPassedOver", {1, 0, 1, -0.1}, 1.5},
        {"GapFirst", {-2, 1, -0.1, 1}, 30},
        {"EightItems", {1, 1, 1, 1, 1, 1, 1, -0.2}, 3},
        {"SixtyFourItems", std::vector<double>(64, 1.0), 2.5},
    };
    for (const ScaleRow& row : rows)
        LineStyleAdd(this->m_table, row.name, nullptr, row.pattern.data(),
                     static_cast<int>(row.pattern.size()));
    this->Fill();
    for (const ScaleRow& row : rows) {
        const int index = this->IndexOf(row.name);
        ASSERT_LE(0, index) << row.name;
        this->Draw(index);
        const double expected = row.length != 0 ? this->m_control.Width() / row.length : 1.0;
        EXPECT_NEAR(expected, this->m_control.Number(kPropPenScale), 1e-9) << row.name;
    }
}

TYPED_TEST(LineStyles, DashesShowAsGapsInTheSample) {
    this->Add("Dashed", {0.5, -0.5});
    this->Add("Plain", {});
    this->Fill();
    const COLORREF window = ::GetSysColor(COLOR_WINDOW);
    const auto changes = [&](const char* name) {
        this->Draw(this->IndexOf(name));
        int most = 0;
        for (int y = kRow.top; y < kRow.bottom; ++y)
            most = std::max(most, this->m_pixels.ChangesAlongRow(y, kRow.left, kRow.right, window));
        return most;
    };
    EXPECT_EQ(2, changes("Plain")) << "one stroke with a margin at either end";
    EXPECT_LT(10, changes("Dashed"));
    EXPECT_EQ(kUntouched, this->m_pixels.At(50, kRow.top - 1));
}

TYPED_TEST(LineStyles, SpecialValuesOfTheClosedFieldAreDrawnByName) {
    const RECT field = {5, 20, 140, 42};
    const struct {
        unsigned value;
        bool ink;
    } rows[] = {{kLineStyleNone, false},
                {kLineStyleIndeterminate, false},
                {0xFFFFFFFF, false},
                {kLineStyleByLayer, true},
                {kLineStyleByBlock, true}};
    for (const auto& row : rows) {
        this->Fill(row.value);
        this->m_control.m_nSelected = row.value;
        this->Draw(-1, ODA_DRAWENTIRE, 0, field);
        EXPECT_EQ(row.ink, this->Ink() > 0) << row.value;
    }
}

TYPED_TEST(LineStyles, WithoutATableOnlyTheBackgroundIsDrawn) {
    const uint16_t dashed = this->Add("Dashed", {1, -1});
    this->Fill(dashed);
    const int item = this->IndexOf("Dashed");
    this->m_control.m_pTable = nullptr;
    this->Draw(item, ODA_DRAWENTIRE, ODS_SELECTED | ODS_FOCUS);
    EXPECT_EQ(0, this->Ink()) << "no frame and no focus either";
    this->Draw(this->m_control.GetCount() - 1, ODA_DRAWENTIRE, 0);
    EXPECT_LT(0, this->Ink()) << "a name needs no table";
}

TYPED_TEST(LineStyles, SelectionIsAFrameThatCanBeTakenAway) {
    this->Add("Plain", {});
    this->Fill();
    const int item = this->IndexOf("Plain");
    const COLORREF highlight = ::GetSysColor(COLOR_HIGHLIGHT);
    const RECT all = {0, 0, 150, 60};
    this->Draw(item, ODA_SELECT, ODS_SELECTED);
    const int frame = this->m_pixels.Count(all, highlight);
    EXPECT_LT(2 * 2 * (136 + 22) - 40, frame + 20);
    EXPECT_EQ(150 * 60 - frame, this->m_pixels.Count(all, kUntouched)) << "nothing but the frame";
    this->Draw(item, ODA_SELECT, 0);
    EXPECT_EQ(frame, this->m_pixels.Count(all, ::GetSysColor(COLOR_WINDOW)));
    this->Draw(item, ODA_FOCUS, ODS_FOCUS);
    EXPECT_EQ(0, this->m_pixels.Count(all, highlight));
    EXPECT_LT(this->m_pixels.Count(all, kUntouched), 150 * 60) << "the focus rectangle alone";

    const RECT field = {5, 20, 140, 42};
    this->Draw(item, ODA_FOCUS, ODS_SELECTED | ODS_FOCUS, field);
    EXPECT_LT(100, this->m_pixels.Count(all, highlight)) << "the closed field is always drawn whole";
}

TYPED_TEST(LineStyles, ASubclassedWindowHasItsSampleWhenItIsFilled) {
    CWnd window;
    ASSERT_TRUE(window.CWnd::Create(TypeParam::kClass, "", TypeParam::kStyle, CRect(0, 0, 200, 100),
                                    &this->m_host, 2));
    const HWND handle = window.UnsubclassWindow();
    typename TypeParam::Control control;
    CDataExchange load(&this->m_host, FALSE);
    DDX_Control(1, &load, 2, control);
    EXPECT_EQ(nullptr, control.Graphic());
    this->Add("Dashed", {1, -1});
    const ControlFillRecord record = {this->m_table, 0, 0};
    control.SendMessage(kFillMessage, 0, reinterpret_cast<LPARAM>(&record));
    ASSERT_NE(nullptr, control.Graphic());
    EXPECT_NEAR(this->m_control.Width(), control.Width(), 1e-9) << "as if it had been made with the window";
    EXPECT_EQ(handle, control.m_hWnd);
    control.DestroyWindow();
}

TYPED_TEST(LineStyles, AnyWidthGivesASample) {
    for (const int width : {0, 1, 19, 20, 3000}) {
        this->m_control.DestroyWindow();
        this->Make(width);
        this->Add("Dashed", {1, -1});
        this->Fill();
        ASSERT_LT(0.0, this->m_control.Width()) << width;
        this->Draw(this->IndexOf("Dashed"));
        EXPECT_TRUE(std::isfinite(this->m_control.Number(kPropPenScale)));
    }
}

TYPED_TEST(LineStyles, TheDrawingMayCloseUnderTheControl) {
    this->Add("Dashed", {1, -1});
    this->Fill();
    this->m_drawing.Close();
    for (int i = 0; i < this->m_control.GetCount(); ++i)
        this->Draw(i);
    const ControlFillRecord none = {};
    this->m_control.SendMessage(kFillMessage, 0, reinterpret_cast<LPARAM>(&none));
    EXPECT_EQ(0, this->m_control.GetCount());
    EXPECT_EQ(nullptr, GraphicGetDrawing(this->m_control.Graphic())) << "the sample has left the drawing";
}

TYPED_TEST(LineStyles, ManyPaintsKeepNothing) {
    this->Add("Dashed", {1, -1});
    this->Fill();
    DrawCoreCensus before = {}, after = {};
    int objects = 0;
    for (int round = 0; round < 100; ++round) {
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
    EXPECT_EQ(before.viewports, after.viewports);
}

TEST(LineStyleCombo, HasADefaultItemOnlyIfAsked) {
    HostWindow host;
    TestDrawing drawing;
    for (const int wanted : {0, 1}) {
        CLineStyleControlC combo(wanted);
        ASSERT_TRUE(combo.Create(Combo::kStyle, CRect(0, 0, 100, 100), &host, 1));
        const ControlFillRecord record = {drawing.Table(kTableLineStyles), 0, kLineStyleByLayer};
        combo.SendMessage(kFillMessage, 0, reinterpret_cast<LPARAM>(&record));
        EXPECT_EQ(wanted ? combo.GetCount() - 1 : -1, combo.GetCurSel());
        combo.DestroyWindow();
    }
}

class DrawnDialog : public ControlDialog {};

TEST_F(DrawnDialog, TheListHasItsOwnHeight) {
    CRect rect;
    Get<CListControl>(IDC_LINE_STYLE_LIST).GetWindowRect(rect);
    EXPECT_NEAR(136, rect.Height(), 22) << "whole rows";
}

} // namespace

// Exchange of font properties: style, height and effects.

#include "exchange_dialog.h"

#include <cmath>

#include "orlo/controls/font_size_control.h"
#include "orlo/exchange/ddx_font.h"
#include "support/test_drawing.h"

namespace {

constexpr int kEffectBoxes[] = {103, 104, 105, 106, 107};
constexpr unsigned short kEffectBits[] = {0x0004, 0x0008, 0x0040, 0x0100, 0x1000};

class FontExchange : public ExchangeDialog {
protected:
    FontExchange() : ExchangeDialog(IDD_FONTS) {}

    void FillSizes() {
        const ControlFillRecord record = {m_drawing.Get()->pUnits, 0, 0};
        TableSetStringVar(m_drawing.Get()->pUnits, kUnitFontName, "Nobody's Face");
        Send(IDC_FONT_SIZE, kFillMessage, 0, &record);
    }

    TestDrawing m_drawing;
};

TEST_F(FontExchange, StyleComboBoxShowsTheTwoLowestBits) {
    const struct {
        unsigned short mask, values;
        int shown;
    } rows[] = {{0, 0, 0}, {0, 3, 3}, {0x1004, 0xFFFE, 2}, {1, 2, -1}, {2, 2, -1}, {3, 0, -1}};
    for (const auto& row : rows) {
        unsigned short style[] = {row.mask, row.values};
        EXPECT_EQ(DDX_CBFontStyle(1, &m_load, IDC_FONT_STYLE, style), 1);
        EXPECT_EQ(Send(IDC_FONT_STYLE, CB_GETCOUNT), 4);
        EXPECT_EQ(row.shown, Send(IDC_FONT_STYLE, CB_GETCURSEL)) << row.values;
        EXPECT_EQ(DDX_CBFontStyle(1, &m_save, IDC_FONT_STYLE, style), 1);
        EXPECT_EQ(row.mask, style[0]) << "saved as it was";
        EXPECT_EQ(row.values, style[1]);
    }
    unsigned short style[] = {0x1003, 0x1145};
    Send(IDC_FONT_STYLE, CB_SETCURSEL, 2);
    DDX_CBFontStyle(1, &m_save, IDC_FONT_STYLE, style);
    EXPECT_EQ(style[0], 0x1000);
    EXPECT_EQ(style[1], 0x1146);
}

TEST_F(FontExchange, UneditedEffectsChangeNothing) {
    for (const unsigned short mask : {0, 0x114C, 0x0108, 0xFFFF}) {
        for (const unsigned short values : {0, 0x114C, 0x1040, 0xFFFF}) {
            unsigned short style[] = {mask, values};
            EXPECT_EQ(DDX_ChkBoxEffects(1, &m_load, style), 1);
            for (size_t i = 0; i < 5; ++i) {
                const int state = mask & kEffectBits[i]     ? BST_INDETERMINATE
                                  : values & kEffectBits[i] ? BST_CHECKED
                                                            : BST_UNCHECKED;
                EXPECT_EQ(state, Send(kEffectBoxes[i], BM_GETCHECK)) << kEffectBoxes[i];
            }
            EXPECT_EQ(DDX_ChkBoxEffects(1, &m_save, style), 1);
            EXPECT_EQ(mask, style[0]);
            EXPECT_EQ(values, style[1]);
        }
    }
}

TEST_F(FontExchange, SetEffectIsNoLongerIndeterminate) {
    for (size_t i = 0; i < 5; ++i) {
        const unsigned short bit = kEffectBits[i], rest = 0xFFFF & ~bit;
        for (const bool on : {true, false}) {
            unsigned short style[] = {0xFFFF, static_cast<unsigned short>(on ? 0 : 0xFFFF)};
            DDX_ChkBoxEffects(1, &m_load, style);
            Send(kEffectBoxes[i], BM_SETCHECK, on);
            DDX_ChkBoxEffects(1, &m_save, style);
            EXPECT_EQ(rest, style[0]);
            EXPECT_EQ(on ? bit : rest, style[1]);
        }
        unsigned short style[] = {0, bit}; // the user clicks to the indeterminate state of an effect on which the texts
                                           // agree
        DDX_ChkBoxEffects(1, &m_load, style);
        Send(kEffectBoxes[i], BM_CLICK);
        ASSERT_EQ(Send(kEffectBoxes[i], BM_GETCHECK), BST_INDETERMINATE);
        DDX_ChkBoxEffects(1, &m_save, style);
        EXPECT_EQ(style[0], 0);
        EXPECT_EQ(style[1], 0);
        EXPECT_EQ(Send(kEffectBoxes[i], BM_GETCHECK), BST_UNCHECKED);
    }
}

TEST_F(FontExchange, HeightIsShownAndReadBack) {
    FillSizes();
    for (const double height : {2.5, 0.125, 100.0, 2.5}) {
        double size = height;
        EXPECT_EQ(DDX_CBFontSize(1, &m_load, IDC_FONT_SIZE, size), 1);
        size = 0.0;
        EXPECT_EQ(DDX_CBFontSize(1, &m_save, IDC_FONT_SIZE, size), 1);
        EXPECT_NEAR(height, size, 1e-9);
    }
    EXPECT_EQ(Send(IDC_FONT_SIZE, CB_GETCOUNT), 3) << "each is added once";

    double indeterminate = HUGE_VAL;
    const std::string before = Text(IDC_FONT_SIZE);
    EXPECT_EQ(DDX_CBFontSize(1, &m_load, IDC_FONT_SIZE, indeterminate), 1);
    EXPECT_EQ(before, Text(IDC_FONT_SIZE)) << "an indeterminate value does not change the control";

    double size = 7.0;
    Send(IDC_FONT_SIZE, CB_SETCURSEL, static_cast<WPARAM>(-1));
    SetText(IDC_FONT_SIZE, "4.75");
    DDX_CBFontSize(1, &m_save, IDC_FONT_SIZE, size);
    EXPECT_NEAR(4.75, size, 1e-9) << "a typed text";
    for (const char* none : {"", "tall", "5 and a half"}) {
        SetText(IDC_FONT_SIZE, none);
        size = 7.0;
        EXPECT_EQ(DDX_CBFontSize(1, &m_save, IDC_FONT_SIZE, size), 1);
        EXPECT_EQ(size, HUGE_VAL) << none;
    }
}

TEST_F(FontExchange, FailsWithoutADrawingOrWithoutTheControl) {
    double size = 2.5;
    EXPECT_EQ(DDX_CBFontSize(0, &m_load, IDC_FONT_SIZE, size), 0) << "not filled yet";
    EXPECT_TRUE(Fails([&] { DDX_CBFontSize(1, &m_load, IDC_FONT_SIZE, size); }));
    EXPECT_EQ(DDX_CBFontSize(0, &m_save, IDC_FONT_STYLE, size), 0) << "a plain combo";
    EXPECT_TRUE(Fails([&] { DDX_CBFontSize(1, &m_save, IDC_FONT_STYLE, size); }));
    EXPECT_EQ(size, 2.5);
}

} // namespace

// The Text page in a real sheet: equal and differing texts, the effect of one edit, the list of heights of a font, and
// the preview.

#include "pages/page_over_kit.h"

#include <algorithm>

#include "orlo/win/gdi.h"

namespace {

constexpr int kEffects[] = {IDC_STRIKETHROUGH, IDC_HIDDEN, IDC_ALL_CAPS, IDC_UNDERLINE, IDC_TEXT_BOX};
constexpr int kEffectBits[] = {0x0004, 0x0008, 0x0040, 0x0100, 0x1000};
constexpr char kSans[] = "DejaVu Sans", kSerif[] = "DejaVu Serif";

class TextPage : public PageOverKit {
protected:
    TextPage() : PageOverKit(IDD_TEXT_PAGE) {
        WriteIni("[FontSizes]\nmm=2.5,3.5,5\n");
        ::TableSetStringVar(kit.Drawing()->pUnits, kUnitTextSize, "mm");
        ::TableSetStringVar(kit.Drawing()->pUnits, kUnitFontName, kSans);
    }

    KitGraphic& Add(const char* font, double size, int style, unsigned int color, int format) {
        return kit.Add({{kPropTextFont, font},
                        {kPropTextSize, size},
                        {kPropTextStyle, style},
                        {kPropPenColor, static_cast<double>(color)},
                        {kPropTextFormat, format}},
                       kGraphicText);
    }
    void AddDiffering() {
        Add(kSans, 2, 0x2101, kRed, 0); // 0x2000 is not one of the page's bits
        Add(kSerif, 3, 0x0046, kBlue, 2);
    }

    static int Count(SheetDriver& user, int combo) {
        return static_cast<int>(::SendMessageA(user.Control(combo), CB_GETCOUNT, 0, 0));
    }
    static void ChooseFont(SheetDriver& user, const char* face) {
        const auto index = ::SendMessageA(user.Control(IDC_FONT_FACE), CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                                          reinterpret_cast<LPARAM>(face));
        ASSERT_LE(0, index);
        user.SelectItem(IDC_FONT_FACE, static_cast<int>(index));
    }
};

TEST_F(TextPage, ShowsEqualTexts) {
    for (int i = 0; i < 2; ++i)
        Add(kSerif, 4.25, 0x1146, kBlue, 1);
    RunOk([&](SheetDriver& user) {
        EXPECT_EQ(Shown(user, {IDC_FONT_FACE, IDC_FONT_STYLE, IDC_TEXT_COLOR, IDC_STRIKETHROUGH, IDC_HIDDEN,
                               IDC_ALL_CAPS, IDC_UNDERLINE, IDC_TEXT_BOX, IDC_JUSTIFY_LEFT, IDC_JUSTIFY_CENTER}),
                  (std::vector<std::string>{kSerif, "Bold", "00FF0000", "1", "0", "1", "1", "1", "0", "1"}));
        EXPECT_EQ(user.Text(IDC_FONT_SIZE).find("4.25"), 0u) << user.Text(IDC_FONT_SIZE);
        EXPECT_LE(0, user.Selection(IDC_FONT_SIZE)) << "an unlisted height was added";
    });
    EXPECT_EQ(kit.Writes(), 0);
}

TEST_F(TextPage, ThePreviewGrowsWithTheResolution) {
    constexpr int kPreviewId = 3999;
    Add(kSans, 2, 0, kRed, 0);
    RunOk([&](SheetDriver& user) {
        const orlo::WindowDC screen(nullptr);
        const int size = ::MulDiv(100, ::GetDeviceCaps(screen.get(), LOGPIXELSY), 96);
        CRect preview;
        ::GetWindowRect(::GetDlgItem(user.Sheet(), kPreviewId), preview);
        EXPECT_EQ(preview.Size(), CSize(size, size));
    });
}

TEST_F(TextPage, DifferingTextsShowNothingAndSurviveOk) {
    AddDiffering();
    RunOk([&](SheetDriver& user) {
        for (const int combo : {IDC_FONT_FACE, IDC_FONT_SIZE, IDC_FONT_STYLE, IDC_TEXT_COLOR})
            EXPECT_EQ(user.Selection(combo), -1) << combo;
        user.Focus(IDC_FONT_FACE);
        for (int i = 0; i < 14; ++i)
            user.Key(VK_TAB); // Tab around the sheet, which must not change the selection
        EXPECT_EQ(Shown(user, {IDC_FONT_SIZE, IDC_STRIKETHROUGH, IDC_HIDDEN, IDC_ALL_CAPS, IDC_UNDERLINE, IDC_TEXT_BOX,
                               IDC_JUSTIFY_LEFT, IDC_JUSTIFY_CENTER, IDC_JUSTIFY_RIGHT}),
                  (std::vector<std::string>{"", "2", "0", "2", "2", "0", "0", "0", "0"}));
    });
    EXPECT_EQ(kit.Writes(), 0);
}

// With two texts whose styles differ in every bit, one effect after the other is set; all other bits must not change.
TEST_F(TextPage, EffectChangesOnlyItsBit) {
    KitGraphic& a = Add(kSans, 2, 0, kRed, 0);
    KitGraphic& b = Add(kSans, 2, 0, kRed, 0);
    for (int i = 0; i < 5; ++i) {
        for (const int clicks : {1, 2}) { // from indeterminate to off, and then on
            SCOPED_TRACE(kEffects[i] * 10 + clicks);
            a.properties[kPropTextStyle] = 0x2A15;
            b.properties[kPropTextStyle] = 0xFFFF & ~0x2A15;
            a.writes.clear();
            RunOk([&](SheetDriver& user) {
                for (int click = 0; click < clicks; ++click)
                    user.Click(kEffects[i]);
            });
            const int bit = kEffectBits[i], set = clicks == 2 ? bit : 0;
            EXPECT_EQ((0x2A15 & ~bit) | set, a.Number(kPropTextStyle));
            EXPECT_EQ((0xFFFF & ~0x2A15 & ~bit) | set, b.Number(kPropTextStyle));
            EXPECT_EQ(a.writes.size(), 1u);
        }
    }
}

TEST_F(TextPage, FontStyleChangesOnlyItsTwoBits) {
    AddDiffering();
    RunOk([&](SheetDriver& user) {
        EXPECT_EQ(Count(user, IDC_FONT_STYLE), 4);
        user.SelectItem(IDC_FONT_STYLE, 3);
    });
    EXPECT_EQ(kit[0].Number(kPropTextStyle), 0x2103);
    EXPECT_EQ(kit[1].Number(kPropTextStyle), 0x0047);
}

TEST_F(TextPage, OneEditOverDifferingTextsChangesOneProperty) {
    AddDiffering();
    ExpectEachChangesOneProperty(
        {{kPropTextFont, [](SheetDriver& user) { ChooseFont(user, kSerif); }, kSerif},
         {kPropTextSize, [](SheetDriver& user) { user.Type(IDC_FONT_SIZE, "7.5"); }, 7.5},
         {kPropPenColor, [](SheetDriver& user) { user.SelectItem(IDC_TEXT_COLOR, 0); }, int{kDarkest}},
         {kPropTextFormat, [](SheetDriver& user) { user.Click(IDC_JUSTIFY_CENTER); }, 1}});
}

TEST_F(TextPage, IndeterminateStateOfAnEqualEffectIsOff) {
    KitGraphic& text = Add(kSans, 2, 0x0008, kRed, 0);
    RunOk([&](SheetDriver& user) {
        user.Click(IDC_HIDDEN); // from checked to indeterminate
        EXPECT_EQ(user.Check(IDC_HIDDEN), BST_UNCHECKED) << "reverted when the preview is updated";
    });
    EXPECT_EQ(text.Number(kPropTextStyle), 0);
}

TEST_F(TextPage, ChangingTheFontKeepsTheHeight) {
    KitGraphic& text = Add(kSans, 4.25, 0, kRed, 0);
    RunOk([&](SheetDriver& user) {
        EXPECT_EQ(Count(user, IDC_FONT_SIZE), 4) << "three configured, and the text's own";
        const std::string height = user.Text(IDC_FONT_SIZE);
        ChooseFont(user, kSerif);
        EXPECT_EQ(Count(user, IDC_FONT_SIZE), 4);
        EXPECT_EQ(height, Shown(user, IDC_FONT_SIZE));
        user.Type(IDC_FONT_SIZE, "9.5");
        ChooseFont(user, kSans);
        EXPECT_EQ(Count(user, IDC_FONT_SIZE), 4) << "the typed height instead";
        EXPECT_EQ(Shown(user, IDC_FONT_SIZE), "9.5");
    });
    EXPECT_EQ(text.Number(kPropTextSize), 9.5);
    // An item that begins with the text must not be selected instead.
    WriteIni("[FontSizes]\nmm=10,20,3.5\n");
    for (const double height : {1.0, 2.0, 3.0}) {
        RunOk([&](SheetDriver& user) {
            user.Type(IDC_FONT_SIZE, std::to_string(static_cast<int>(height)));
            ChooseFont(user, height == 2.0 ? kSans : kSerif);
        });
        EXPECT_EQ(height, text.Number(kPropTextSize));
    }
}

TEST_F(TextPage, ChangingTheFontDoesNotEditTheHeight) {
    Add(kSans, 4, 0, kRed, 0);
    Add(kSans, 4, 0, kRed, 0);
    for (const double second : {3.0, 4.0}) { // different, then equal
        kit[1].properties[kPropTextSize] = second;
        ExpectEachChangesOneProperty({{kPropTextFont,
                                       [](SheetDriver& user) {
                                           const std::string height = user.Text(IDC_FONT_SIZE);
                                           ChooseFont(user, kSerif);
                                           EXPECT_EQ(height, user.Text(IDC_FONT_SIZE));
                                           for (int i = 0; i < Count(user, IDC_FONT_SIZE); ++i)
                                               EXPECT_NE(user.ItemText(IDC_FONT_SIZE, i), "");
                                       },
                                       kSerif}});
    }
}

// A text that is not a height, one that is longer than the field, and a blank field in a space without lengths.
TEST_F(TextPage, HeightIsStoredAsTypedOrNotAtAll) {
    const struct {
        int space;
        const char* typed; // null for nothing
        double stored;
    } rows[] = {{0, "tall", 2}, {0, "0012'-11 15/16\"", 155.9375 * 25.4}, {2, nullptr, 2}};
    KitGraphic& text = Add(kSans, 2, 0, kRed, 0);
    for (const auto& row : rows) {
        text.properties[kPropTextSize] = 2.0;
        text.properties[kPropTextFormat] = 0;
        ::DrawingSetCoordSpace(kit.Drawing(), row.space);
        RunOk([&](SheetDriver& user) {
            if (row.typed) user.Type(IDC_FONT_SIZE, row.typed);
            EXPECT_EQ(row.typed ? row.typed : "", user.Text(IDC_FONT_SIZE));
            user.Click(IDC_JUSTIFY_RIGHT);
        });
        EXPECT_NEAR(row.stored, text.Number(kPropTextSize), 1e-9);
        EXPECT_EQ(text.Number(kPropTextFormat), 2);
    }
}

// Opens and closes each list without selecting: with F4 and Return, and by stepping through it and Escape.
TEST_F(TextPage, OpeningAndClosingAListSelectsNothing) {
    AddDiffering();
    kit.Add({{kPropTextFont, "No Such Font"}, {kPropTextSize, 1.0 / 3}}, kGraphicText);
    RunOk([&](SheetDriver& user) {
        for (const int list : {IDC_FONT_FACE, IDC_FONT_SIZE, IDC_FONT_STYLE, IDC_TEXT_COLOR})
            for (const bool walk : {false, true}) {
                user.Focus(list);
                user.Key(VK_F4);
                if (walk) user.Key(VK_DOWN);
                if (walk) user.Key(VK_DOWN);
                user.Key(walk ? VK_ESCAPE : VK_RETURN);
                EXPECT_FALSE(::SendMessageA(user.Control(list), CB_GETDROPPEDSTATE, 0, 0));
                EXPECT_EQ(user.Selection(list), -1);
                EXPECT_EQ(user.Text(list), "");
            }
        user.Click(IDC_HIDDEN);
    });
    EXPECT_EQ(kit[0].writes.size() + kit[1].writes.size(), 2u) << "the check box";
    EXPECT_EQ(kit[2].writes.size(), 0u);
    EXPECT_EQ(kit[0].Number(kPropTextStyle), 0x2109);
    EXPECT_EQ(kit[1].Number(kPropTextStyle), 0x004E);
    EXPECT_EQ(kit[0].Text(kPropTextFont), kSans);
    EXPECT_EQ(kit[1].Text(kPropTextFont), kSerif);
}

TEST_F(TextPage, MissingFontIsKeptWhenOtherPropertiesChange) {
    for (int i = 0; i < 2; ++i)
        Add("No Such Font", 2.123456789, 0, kRed, 0);
    RunOk([&](SheetDriver& user) {
        user.Focus(IDC_FONT_FACE);
        user.Key(VK_F4);
        user.Key(VK_RETURN);
        user.Click(IDC_UNDERLINE);
    });
    EXPECT_EQ(kit[0].Text(kPropTextFont), "No Such Font");
    EXPECT_EQ(kit[0].Number(kPropTextStyle), 0x0100);
}

TEST_F(TextPage, UneditedHeightsAreNotValidated) {
    for (const double height : {0.0, -2.0, 1e39}) {
        Add(kSans, height, 0, kRed, 0);
        MessageBoxWatcher boxes;
        RunOk([](SheetDriver& user) { user.Click(IDC_JUSTIFY_RIGHT); });
        EXPECT_TRUE(boxes.Boxes().empty()) << height;
        EXPECT_EQ(height, kit[kit.Size() - 1].Number(kPropTextSize));
        EXPECT_EQ(kit[kit.Size() - 1].Number(kPropTextFormat), 2);
    }
    RunOk([](SheetDriver& user) {
        MessageBoxWatcher boxes;
        user.Type(IDC_FONT_SIZE, "0");
        user.Ok();
        EXPECT_EQ(boxes.Boxes().size(), 1u) << "typed text is validated";
        user.Type(IDC_FONT_SIZE, "2");
    });
}

// Decimal points in the file are the host's decimal marks in the list.
TEST_F(TextPage, OffersTheConfiguredHeightsWithTheDecimalMarkOfTheHost) {
    TableStruct* const settings = ::AppGetCurrentApp()->pVariables;
    ::TableSetStringVar(settings, kVarDecimalMark, ",");
    Add(kSans, 3, 0, kRed, 0);
    for (const int space : {0, 1}) {
        ::DrawingSetCoordSpace(kit.Drawing(), space);
        RunOk([&](SheetDriver& user) {
            ChooseFont(user, kSerif);
            std::vector<std::string> heights;
            for (int i = 0; i < Count(user, IDC_FONT_SIZE); ++i)
                heights.push_back(user.ItemText(IDC_FONT_SIZE, i));
            for (const char* number : {"2,5", "3,5", "5"})
                EXPECT_EQ(
                    std::count_if(heights.begin(), heights.end(),
                                  [&](const std::string& item) { return item.substr(0, item.find(' ')) == number; }),
                    1)
                    << space << " " << number;
        });
    }
    ::TableSetStringVar(settings, kVarDecimalMark, ".");
}

TEST_F(TextPage, TextsWithoutPropertiesKeepTheDefaults) {
    kit.Add({}, kGraphicText);
    RunOk([&](SheetDriver& user) {
        EXPECT_EQ(user.Text(IDC_FONT_SIZE).find("8"), 0u) << user.Text(IDC_FONT_SIZE);
        EXPECT_EQ(Shown(user, IDC_TEXT_COLOR), "FFFFFFFD");
        EXPECT_EQ(user.Check(IDC_JUSTIFY_LEFT), BST_CHECKED);
    });
}

// The host draws the sample with the values of the controls.
TEST_F(TextPage, ThePreviewFollowsTheControls) {
    Add(kSans, 2, 0, kRed, 0);
    Run([&](SheetDriver& user, CGraphicPropertyPage& page) {
        Pixels pixels(160, 80);
        const auto ink = [&] {
            DrawPreview(page, pixels, 160, 80);
            return pixels.CountWhere({0, 0, 160, 80}, [](COLORREF c) { return c != RGB(255, 255, 255); });
        };
        const int plain = ink();
        EXPECT_LT(50, plain);
        user.SelectItem(IDC_FONT_STYLE, 2);
        EXPECT_LT(plain, ink()) << "bold";
        user.SelectItem(IDC_FONT_STYLE, 0);
        EXPECT_EQ(plain, ink());
        user.Click(IDC_UNDERLINE);
        const int underlined = ink();
        EXPECT_NE(plain, underlined);
        user.Click(IDC_HIDDEN);
        EXPECT_EQ(ink(), 0);
        user.Click(IDC_HIDDEN);
        EXPECT_EQ(underlined, ink()) << "the third state is treated as off";
        ChooseFont(user, kSerif);
        EXPECT_NE(underlined, ink());
        user.SelectItem(IDC_TEXT_COLOR, 0);
        user.Click(IDC_JUSTIFY_RIGHT);
        EXPECT_EQ(Previewed<unsigned long>(page, kPropPenColor), kDarkest);
        EXPECT_EQ(Previewed<unsigned short>(page, kPropTextFormat), 2);
    });
}

} // namespace

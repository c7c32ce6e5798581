// The Text page in a real sheet: what it shows of equal and differing texts, what one edit writes and leaves alone, the list of
// heights of a font, and the preview.

#include <gtest/gtest.h>

#include <afxwin.h>

#include <commctrl.h>

#include <cmath>
#include <fstream>
#include <map>
#include <string>

#include "drawcore/application.h"
#include "drawcore/drawing.h"
#include "drawcore/selection.h"
#include "drawcore/table.h"
#include "drawcore/units.h"
#include "orlo/binding/indeterminate.h"
#include "orlo/entry/entry.h"
#include "orlo/host/drawing.h"
#include "orlo/host/table.h"
#include "orlo/host/text.h"
#include "orlo/host/units.h"
#include "orlo/host/viewport.h"
#include "orlo/resources/resource.h"
#include "support/host_frame.h"
#include "support/message_box_watcher.h"
#include "support/pixels.h"
#include "support/test_sheet.h"

namespace {

constexpr int kEffects[] = {IDC_STRIKETHROUGH, IDC_HIDDEN, IDC_ALL_CAPS, IDC_UNDERLINE, IDC_TEXT_BOX};
constexpr int kEffectBits[] = {0x0004, 0x0008, 0x0040, 0x0100, 0x1000};
constexpr unsigned int kRed = 0x0000FF, kBlue = 0xFF0000;
constexpr char kSans[] = "DejaVu Sans", kSerif[] = "DejaVu Serif";

class TextPage : public ::testing::Test {
protected:
    TextPage() : frame(kit.Drawing()) {
        char folder[MAX_PATH];
        ::GetTempPathA(sizeof folder, folder);
        ini = std::string(folder) + "text_page.ini";
        std::ofstream(ini) << "[FontSizes]\nmm=2.5,3.5,5\n";
        ::AppSetINIFileName(ini.c_str());
        TableStruct* units = ::DrawingGetTable(kit.Drawing(), kTableUnits);
        ::TableSetStringVar(units, kUnitTextSize, "mm");
        ::TableSetStringVar(units, kUnitFontName, kSans);
    }
    ~TextPage() override {
        ::AppSetINIFileName(nullptr);
        ::DeleteFileA(ini.c_str());
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
        Add(kSans, 2, 0x2101, kRed, 0); // 0x2000 is none of the page's bits
        Add(kSerif, 3, 0x0046, kBlue, 2);
    }

    int Run(const std::function<void(SheetDriver&, CGraphicPropertyPage&)>& script) {
        TestSheet sheet(kit);
        for (size_t i = 0; i < kit.Size(); ++i)
            ::AddGraphicPropertyPage(nullptr, kit[i].graphic, &sheet.Sheet());
        return sheet.Run([&](SheetDriver& user) {
            auto* page = sheet.Sheet().FindPage(IDD_TEXT_PAGE);
            ASSERT_NE(nullptr, page);
            sheet.Sheet().SetActivePage(page);
            script(user, static_cast<CGraphicPropertyPage&>(*page));
        });
    }

    static int Count(SheetDriver& user, int combo) {
        return static_cast<int>(::SendMessageA(user.Control(combo), CB_GETCOUNT, 0, 0));
    }
    static void ChooseFont(SheetDriver& user, const char* face) {
        const auto index = ::SendMessageA(user.Control(IDC_FONT_FACE), CB_FINDSTRINGEXACT,
                                          static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(face));
        ASSERT_LE(0, index);
        user.Choose(IDC_FONT_FACE, static_cast<int>(index));
    }

    GraphicKit kit;
    HostFrame frame;
    std::string ini;
};

TEST_F(TextPage, ShowsEqualTexts) {
    for (int i = 0; i < 2; ++i)
        Add(kSerif, 4.25, 0x1146, kBlue, 1);
    EXPECT_EQ(IDOK, Run([&](SheetDriver& user, CGraphicPropertyPage&) {
                  EXPECT_EQ(kSerif, user.ItemText(IDC_FONT_FACE, user.Selection(IDC_FONT_FACE)));
                  EXPECT_EQ(0u, user.Text(IDC_FONT_SIZE).find("4.25")) << user.Text(IDC_FONT_SIZE);
                  EXPECT_LE(0, user.Selection(IDC_FONT_SIZE)) << "a height in no list has joined it";
                  EXPECT_EQ("Bold", user.ItemText(IDC_FONT_STYLE, user.Selection(IDC_FONT_STYLE)));
                  EXPECT_EQ("00FF0000",
                            user.ItemText(IDC_TEXT_COLOR, user.Selection(IDC_TEXT_COLOR)).substr(0, 8));
                  const int states[] = {BST_CHECKED, BST_UNCHECKED, BST_CHECKED, BST_CHECKED, BST_CHECKED};
                  for (int i = 0; i < 5; ++i)
                      EXPECT_EQ(states[i], user.Check(kEffects[i])) << kEffects[i];
                  EXPECT_EQ(BST_UNCHECKED, user.Check(IDC_JUSTIFY_LEFT));
                  EXPECT_EQ(BST_CHECKED, user.Check(IDC_JUSTIFY_CENTER));
                  user.Ok();
              }));
    EXPECT_EQ(0, kit.Writes());
}

TEST_F(TextPage, DifferingTextsShowNothingAndSurviveOk) {
    AddDiffering();
    EXPECT_EQ(IDOK, Run([&](SheetDriver& user, CGraphicPropertyPage&) {
                  for (const int combo : {IDC_FONT_FACE, IDC_FONT_SIZE, IDC_FONT_STYLE, IDC_TEXT_COLOR})
                      EXPECT_EQ(-1, user.Selection(combo)) << combo;
                  EXPECT_EQ("", user.Text(IDC_FONT_SIZE));
                  const int differing[] = {IDC_ALL_CAPS, IDC_UNDERLINE, IDC_STRIKETHROUGH};
                  for (const int box : differing)
                      EXPECT_EQ(BST_INDETERMINATE, user.Check(box)) << box;
                  EXPECT_EQ(BST_UNCHECKED, user.Check(IDC_HIDDEN));
                  EXPECT_EQ(BST_UNCHECKED, user.Check(IDC_TEXT_BOX));
                  user.Focus(IDC_FONT_FACE);
                  for (int i = 0; i < 14; ++i)
                      user.Key(VK_TAB); // round the sheet; to come by is no choice
                  for (const int button : {IDC_JUSTIFY_LEFT, IDC_JUSTIFY_CENTER, IDC_JUSTIFY_RIGHT})
                      EXPECT_EQ(BST_UNCHECKED, user.Check(button)) << button;
                  user.Ok();
              }));
    EXPECT_EQ(0, kit.Writes());
}

// Of two texts whose styles differ in every bit, one effect after the other is set; all other bits stay each text's own.
TEST_F(TextPage, AnEffectChangesItsBitAlone) {
    KitGraphic& a = Add(kSans, 2, 0, kRed, 0);
    KitGraphic& b = Add(kSans, 2, 0, kRed, 0);
    for (int i = 0; i < 5; ++i) {
        for (const int clicks : {1, 2}) { // out of the indeterminate state to off, and on to on
            SCOPED_TRACE(kEffects[i] * 10 + clicks);
            a.properties[kPropTextStyle] = 0x2A15;
            b.properties[kPropTextStyle] = 0xFFFF & ~0x2A15;
            a.writes.clear();
            b.writes.clear();
            EXPECT_EQ(IDOK, Run([&](SheetDriver& user, CGraphicPropertyPage&) {
                          for (int click = 0; click < clicks; ++click)
                              user.Click(kEffects[i]);
                          user.Ok();
                      }));
            const int bit = kEffectBits[i], set = clicks == 2 ? bit : 0;
            EXPECT_EQ((0x2A15 & ~bit) | set, a.Number(kPropTextStyle));
            EXPECT_EQ((0xFFFF & ~0x2A15 & ~bit) | set, b.Number(kPropTextStyle));
            EXPECT_EQ(1u, a.writes.size());
        }
    }
}

TEST_F(TextPage, TheFontStyleChangesItsTwoBitsAlone) {
    KitGraphic& a = Add(kSans, 2, 0x2101, kRed, 0);
    KitGraphic& b = Add(kSans, 2, 0x0046, kRed, 0);
    EXPECT_EQ(IDOK, Run([&](SheetDriver& user, CGraphicPropertyPage&) {
                  EXPECT_EQ(4, Count(user, IDC_FONT_STYLE));
                  user.Choose(IDC_FONT_STYLE, 3);
                  user.Ok();
              }));
    EXPECT_EQ(0x2103, a.Number(kPropTextStyle));
    EXPECT_EQ(0x0047, b.Number(kPropTextStyle));
}

TEST_F(TextPage, OneEditOverDifferingTextsChangesOneProperty) {
    AddDiffering();
    struct {
        const char* property;
        std::function<void(SheetDriver&)> edit;
        KitValue expected;
    } const edits[] = {
        {kPropTextFont, [](SheetDriver& user) { ChooseFont(user, kSerif); }, kSerif},
        {kPropTextSize, [](SheetDriver& user) { user.Type(IDC_FONT_SIZE, "7.5"); }, 7.5},
        {kPropPenColor, [](SheetDriver& user) { user.Choose(IDC_TEXT_COLOR, 0); }, 0x333333},
        {kPropTextFormat, [](SheetDriver& user) { user.Click(IDC_JUSTIFY_CENTER); }, 1},
    };
    const std::map<std::string, KitValue> before[] = {kit[0].properties, kit[1].properties};
    for (const auto& edit : edits) {
        SCOPED_TRACE(edit.property);
        EXPECT_EQ(IDOK, Run([&](SheetDriver& user, CGraphicPropertyPage&) {
                      edit.edit(user);
                      user.Ok();
                  }));
        for (size_t i = 0; i < 2; ++i) {
            auto expected = before[i];
            expected[edit.property] = edit.expected;
            EXPECT_EQ(expected, kit[i].properties);
            EXPECT_EQ(1u, kit[i].writes.size()) << "no other property is written";
            kit[i].properties = before[i];
            kit[i].writes.clear();
        }
    }
}

TEST_F(TextPage, AThirdStateOfAnEffectInWhichTextsAgreeIsOff) {
    KitGraphic& text = Add(kSans, 2, 0x0008, kRed, 0);
    EXPECT_EQ(IDOK, Run([&](SheetDriver& user, CGraphicPropertyPage&) {
                  user.Click(IDC_HIDDEN); // from checked into the third state
                  EXPECT_EQ(BST_UNCHECKED, user.Check(IDC_HIDDEN))
                      << "taken back as soon as the preview follows";
                  user.Ok();
              }));
    EXPECT_EQ(0, text.Number(kPropTextStyle));
}

TEST_F(TextPage, AChangeOfFontKeepsTheHeight) {
    KitGraphic& text = Add(kSans, 4.25, 0, kRed, 0);
    EXPECT_EQ(IDOK, Run([&](SheetDriver& user, CGraphicPropertyPage&) {
                  EXPECT_EQ(4, Count(user, IDC_FONT_SIZE)) << "three configured, and the text's own";
                  const std::string height = user.Text(IDC_FONT_SIZE);
                  ChooseFont(user, kSerif);
                  EXPECT_EQ(4, Count(user, IDC_FONT_SIZE));
                  EXPECT_EQ(height, user.ItemText(IDC_FONT_SIZE, user.Selection(IDC_FONT_SIZE)));
                  user.Type(IDC_FONT_SIZE, "9.5");
                  ChooseFont(user, kSans);
                  EXPECT_EQ(4, Count(user, IDC_FONT_SIZE)) << "the typed height instead";
                  EXPECT_EQ("9.5", user.ItemText(IDC_FONT_SIZE, user.Selection(IDC_FONT_SIZE)));
                  user.Ok();
              }));
    EXPECT_EQ(9.5, text.Number(kPropTextSize));
    EXPECT_EQ(kSans, text.Text(kPropTextFont));
}

// A listed height that begins with it does not take its place.
TEST_F(TextPage, AChangeOfFontKeepsAHeightThatOthersBeginWith) {
    std::ofstream(ini) << "[FontSizes]\nmm=10,20,3.5\n";
    KitGraphic& text = Add(kSans, 5, 0, kRed, 0);
    for (const double height : {1.0, 2.0, 3.0}) {
        text.properties[kPropTextFont] = kSans;
        EXPECT_EQ(IDOK, Run([&](SheetDriver& user, CGraphicPropertyPage&) {
                      user.Type(IDC_FONT_SIZE, std::to_string(static_cast<int>(height)));
                      ChooseFont(user, kSerif);
                      user.Ok();
                  }));
        EXPECT_EQ(height, text.Number(kPropTextSize));
    }
}

TEST_F(TextPage, AChangeOfFontIsNoEditOfTheHeight) {
    KitGraphic& a = Add(kSans, 4, 0, kRed, 0);
    KitGraphic& b = Add(kSans, 4, 0, kRed, 0);
    for (const double second : {3.0, 4.0}) { // different, equal
        b.properties[kPropTextSize] = second;
        for (KitGraphic* text : {&a, &b}) {
            text->properties[kPropTextFont] = kSans;
            text->writes.clear();
        }
        EXPECT_EQ(IDOK, Run([&](SheetDriver& user, CGraphicPropertyPage& page) {
                      const std::string height = user.Text(IDC_FONT_SIZE);
                      ChooseFont(user, kSerif);
                      EXPECT_EQ(height, user.Text(IDC_FONT_SIZE));
                      EXPECT_FALSE(page.GetControlStatus(IDC_FONT_SIZE));
                      user.Ok();
                  }));
        for (const KitGraphic* text : {&a, &b}) {
            EXPECT_EQ(1u, text->writes.size()) << "the font alone";
            EXPECT_EQ(kSerif, text->Text(kPropTextFont));
        }
    }
}

TEST_F(TextPage, AHeightOutOfRangeKeepsThePage) {
    Add(kSans, 2, 0, kRed, 0);
    MessageBoxWatcher boxes;
    EXPECT_EQ(IDCANCEL, Run([&](SheetDriver& user, CGraphicPropertyPage&) {
                  user.Type(IDC_FONT_SIZE, "0");
                  user.Ok();
                  EXPECT_EQ("Please enter a valid font size.", boxes.OnlyText());
                  EXPECT_EQ("0", user.Text(IDC_FONT_SIZE));
                  user.Cancel();
              }));
    EXPECT_EQ(0, kit.Writes());
}

TEST_F(TextPage, ATextThatIsNoHeightWritesNone) {
    Add(kSans, 2, 0, kRed, 0);
    EXPECT_EQ(IDOK, Run([&](SheetDriver& user, CGraphicPropertyPage&) {
                  user.Type(IDC_FONT_SIZE, "tall");
                  user.Click(IDC_JUSTIFY_RIGHT);
                  user.Ok();
              }));
    EXPECT_EQ(2, kit[0].Number(kPropTextSize));
    EXPECT_EQ(2, kit[0].Number(kPropTextFormat));
}

// As long as the narrow field lets nobody see it whole.
TEST_F(TextPage, ALongHeightIsStoredAsTyped) {
    KitGraphic& text = Add(kSans, 2, 0, kRed, 0);
    EXPECT_EQ(IDOK, Run([&](SheetDriver& user, CGraphicPropertyPage&) {
                  user.Type(IDC_FONT_SIZE, "0012'-11 15/16\"");
                  EXPECT_EQ("0012'-11 15/16\"", user.Text(IDC_FONT_SIZE));
                  user.Ok();
              }));
    EXPECT_NEAR(155.9375 * 25.4, text.Number(kPropTextSize), 1e-9);
}

// In a space without lengths there is no text for a height.
TEST_F(TextPage, AHeightThatCannotBeWrittenLeavesItsFieldBlank) {
    KitGraphic& text = Add(kSans, 2, 0, kRed, 0);
    ::DrawingSetCoordSpace(kit.Drawing(), 2);
    EXPECT_EQ(IDOK, Run([&](SheetDriver& user, CGraphicPropertyPage&) {
                  EXPECT_EQ("", user.Text(IDC_FONT_SIZE));
                  user.Click(IDC_JUSTIFY_RIGHT);
                  user.Ok();
              }));
    EXPECT_EQ(2, text.Number(kPropTextSize));
    EXPECT_EQ(2, text.Number(kPropTextFormat));
}

TEST_F(TextPage, CancelWritesNothing) {
    AddDiffering();
    EXPECT_EQ(IDCANCEL, Run([&](SheetDriver& user, CGraphicPropertyPage&) {
                  ChooseFont(user, kSerif);
                  user.Type(IDC_FONT_SIZE, "7.5");
                  user.Choose(IDC_FONT_STYLE, 2);
                  for (const int box : kEffects)
                      user.Click(box);
                  user.Click(IDC_JUSTIFY_CENTER);
                  user.Cancel();
              }));
    EXPECT_EQ(0, kit.Writes());
}

TEST_F(TextPage, TextsThatOfferNothingLeaveTheDefaults) {
    kit.Add({}, kGraphicText);
    EXPECT_EQ(IDOK, Run([&](SheetDriver& user, CGraphicPropertyPage&) {
                  EXPECT_EQ(0u, user.Text(IDC_FONT_SIZE).find("8")) << user.Text(IDC_FONT_SIZE);
                  EXPECT_EQ("FFFFFFFD",
                            user.ItemText(IDC_TEXT_COLOR, user.Selection(IDC_TEXT_COLOR)).substr(0, 8));
                  EXPECT_EQ(BST_CHECKED, user.Check(IDC_JUSTIFY_LEFT));
                  user.Ok();
              }));
}

// The sample is drawn by the host from what the controls show.
TEST_F(TextPage, ThePreviewFollowsTheControls) {
    Add(kSans, 2, 0, kRed, 0);
    Run([&](SheetDriver& user, CGraphicPropertyPage& page) {
        ViewportStruct* viewport = ::ViewportNewEx();
        Pixels pixels(160, 80);
        const auto ink = [&] {
            pixels.Clear(RGB(255, 255, 255));
            CRect rect(0, 0, 160, 80);
            page.DrawPreview(CDC::FromHandle(pixels.DC()), viewport, rect);
            return pixels.CountWhere({0, 0, 160, 80}, [](COLORREF c) { return c != RGB(255, 255, 255); });
        };
        const int plain = ink();
        EXPECT_LT(50, plain);
        user.Choose(IDC_FONT_STYLE, 2);
        EXPECT_LT(plain, ink()) << "bold";
        user.Choose(IDC_FONT_STYLE, 0);
        EXPECT_EQ(plain, ink());
        user.Click(IDC_UNDERLINE);
        const int underlined = ink();
        EXPECT_NE(plain, underlined);
        user.Click(IDC_HIDDEN);
        EXPECT_EQ(0, ink());
        user.Click(IDC_HIDDEN);
        EXPECT_EQ(underlined, ink()) << "the third state counts as off";
        ChooseFont(user, kSerif);
        EXPECT_NE(underlined, ink());
        ::ViewportDispose(&viewport);
        user.Cancel();
    });
}

} // namespace

// The General page in a real sheet: layer and attribute text of a selection, and the style part over a style's graphic.

#include "pages/page_over_kit.h"

#include <memory>

namespace {

bool IsEnabled(SheetDriver& user, int id) {
    return ::IsWindowEnabled(user.Control(id)) != 0;
}

class GeneralPage : public PageOverKit {
protected:
    GeneralPage() : PageOverKit(IDD_GENERAL_PAGE) {
        TableStruct* const layers = ::DrawingGetTable(kit.Drawing(), kTableLayers);
        walls = ::TableEntryAdd(layers, "Walls", nullptr);
        doors = ::TableEntryAdd(layers, "Doors", nullptr);
    }
    void Add(int layer, const char* info) { kit.Add({{kPropLayer, layer}, {kPropInfo, info}}); }

    uint16_t walls, doors;
};

TEST_F(GeneralPage, ShowsEqualValuesAndHidesTheStylePartOfASelection) {
    for (int i = 0; i < 2; ++i)
        Add(doors, "oak\r\npainted");
    RunOk([&](SheetDriver& user) {
        EXPECT_EQ(user.ItemText(IDC_LAYER, user.Selection(IDC_LAYER)).substr(9), "Doors");
        EXPECT_EQ(user.Text(IDC_INFO), "oak\r\npainted");
        for (const int id : {IDC_STYLE_NAME, IDC_STYLE_NEW, IDC_STYLE_DELETE, IDC_STYLE_GROUP}) {
            EXPECT_FALSE(::IsWindowVisible(user.Control(id))) << id;
            EXPECT_FALSE(IsEnabled(user, id)) << id;
        }
    });
    EXPECT_EQ(kit.Writes(), 0);
}

TEST_F(GeneralPage, KeepsUneditedDifferingValues) {
    Add(walls, "a");
    Add(doors, "b");
    RunOk([&](SheetDriver& user) {
        EXPECT_EQ(user.Selection(IDC_LAYER), -1);
        EXPECT_EQ(user.Text(IDC_INFO), "<Indeterminate>");
        user.Type(IDC_INFO, "x");
        user.Type(IDC_INFO, "<Indeterminate>"); // counts as unchanged
    });
    EXPECT_EQ(kit.Writes(), 0);
}

// An edit control accepts no more than 32 KB by default.
TEST_F(GeneralPage, ALongTextCanBeExtended) {
    std::string text;
    for (int line = 0; line < 700; ++line)
        text += "A line of about fifty characters, with its end.\r\n";
    Add(walls, text.c_str());
    RunOk([&](SheetDriver& user) {
        user.Focus(IDC_INFO);
        ::SendMessageA(user.Control(IDC_INFO), EM_SETSEL, text.size(), static_cast<LPARAM>(text.size()));
        user.Key('1');
    });
    EXPECT_TRUE(kit[0].Text(kPropInfo) == text + "1");
}

TEST_F(GeneralPage, OneEditChangesOnePropertyOfAll) {
    Add(walls, "a");
    Add(doors, "b");
    ExpectEachChangesOneProperty({{kPropInfo, [](SheetDriver& user) { user.Type(IDC_INFO, "both"); }, "both"},
                                  {kPropLayer, [](SheetDriver& user) { user.SelectItem(IDC_LAYER, 1); }, int{walls}}});
    Run([&](SheetDriver& user, CGraphicPropertyPage&) {
        user.SelectItem(IDC_LAYER, 2);
        user.Cancel();
    });
    EXPECT_EQ(kit.Writes(), 0);
}

// Loading again, as Apply does, results in the same display.
TEST_F(GeneralPage, DifferingTextsAreShownAtEveryLoad) {
    Add(walls, "a");
    Add(walls, "b");
    EXPECT_EQ(Run([&](SheetDriver& user, CGraphicPropertyPage& page) {
                  page.UpdateData(FALSE);
                  EXPECT_EQ(user.Text(IDC_INFO), "<Indeterminate>");
                  user.SelectPage(0);
                  user.Focus(IDC_INFO);
                  user.Key(VK_END, false, true);
                  user.Key('X');
                  user.Ok();
              }),
              IDOK);
    EXPECT_EQ(kit[0].Text(kPropInfo), "<Indeterminate>x");
    EXPECT_EQ(kit[1].Text(kPropInfo), "<Indeterminate>x");
}

TEST_F(GeneralPage, TextMayBeginWithTheByteOfTheMarker) {
    for (int i = 0; i < 2; ++i)
        Add(walls, "\xFF\xF1");
    RunOk([&](SheetDriver& user) {
        EXPECT_EQ(user.Text(IDC_INFO), "\xFF\xF1");
        user.Focus(IDC_INFO);
        ::SendMessageA(::GetFocus(), EM_SETSEL, 0, -1);
        ::SendMessageA(::GetFocus(), EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>("\xFF\xED\xE2"));
    });
    for (size_t i : {0, 1})
        EXPECT_EQ(kit[i].Text(kPropInfo), "\xFF\xED\xE2");
}

// Three styles of one tree, one of them reserved, and a block of another tree.
class StylePart : public GeneralPage {
protected:
    StylePart() : styles(::DrawingGetTable(kit.Drawing(), kTableBlocks)) {
        beam = AddStyle("Beam", "Steel");
        column = AddStyle("Column", "Steel");
        standard = AddStyle("Standard", "Steel");
        AddStyle("Tree", "Garden");
    }

    uint16_t AddStyle(const char* name, const char* tree) {
        GraphicStruct* group = ::GraphicNewEx(kGraphicVertices, 0, 1);
        ::GraphicAdd(group, ::GraphicNewEx(kGraphicPenBrush, 0, 1));
        group->pszStyleName = tree;
        return ::BlocksAddBlock(styles, name, group);
    }

    int RunOver(uint16_t style, const SheetDriver::Script& script) {
        frame.currentStyle = style;
        ::PropPageInit();
        const std::unique_ptr<CGraphicPropertySheet> sheet(::InitGraphicPropertySheet(
            nullptr, nullptr, kit.Drawing(), ::BlockGetGraphic(styles, style), kWithStylePart));
        return SheetDriver().Run(*sheet, script);
    }

    // With the arrow keys in the closed list.
    static void List(SheetDriver& user, const char* name) {
        user.Focus(IDC_STYLE_NAME);
        for (int i = 0; i < 3; ++i)
            user.Key(VK_UP);
        for (int i = 0; i < 3 && user.Text(IDC_STYLE_NAME) != name; ++i)
            user.Key(VK_DOWN);
        ASSERT_EQ(name, user.Text(IDC_STYLE_NAME));
    }
    // Return changes neither sheet, name nor focus.
    static void ExpectRejected(SheetDriver& user, const char* name) {
        user.Key(VK_RETURN);
        EXPECT_TRUE(::IsWindowVisible(user.Sheet())) << name;
        EXPECT_EQ(name, user.Text(IDC_STYLE_NAME));
        EXPECT_TRUE(::IsChild(user.Control(IDC_STYLE_NAME), ::GetFocus())) << name;
    }

    TableStruct* styles;
    uint16_t beam, column, standard;
};

TEST_F(StylePart, ListsTheTreeAndEnablesTheButtonsByName) {
    RunOver(beam, [&](SheetDriver& user) {
        EXPECT_EQ(user.ItemText(IDC_STYLE_NAME, 0), "Beam");
        EXPECT_EQ(user.ItemText(IDC_STYLE_NAME, 1), "Column");
        EXPECT_EQ(user.ItemText(IDC_STYLE_NAME, 2), "Standard");
        EXPECT_EQ(user.ItemText(IDC_STYLE_NAME, 3), "");
        struct {
            const char* name;
            bool canCreate, canDelete;
        } const rows[] = {{"Girder", true, false},    {"Column", false, true},  {"column", false, true},
                          {"Standard", false, false}, {"Outline", true, false}, {"", false, false}};
        for (const auto& row : rows) {
            user.Type(IDC_STYLE_NAME, row.name);
            EXPECT_EQ(row.canCreate, IsEnabled(user, IDC_STYLE_NEW)) << row.name;
            EXPECT_EQ(row.canDelete, IsEnabled(user, IDC_STYLE_DELETE)) << row.name;
        }
        user.Type(IDC_STYLE_NAME, std::string(60, 'W')); // longer than the field
        EXPECT_EQ(user.Text(IDC_STYLE_NAME).size(), 32u);
        user.Type(IDC_STYLE_NAME, "Beam");
    });
}

TEST_F(StylePart, EndsTheSheetWithACodeForTheHost) {
    const struct {
        const char* name;
        std::function<void(SheetDriver&)> then;
        int code;
    } rows[] = {{"Column", [](SheetDriver& user) { user.Key(VK_TAB, true); }, 1000 + column},
                {"Beam", [](SheetDriver& user) { user.Key(VK_TAB, true); }, 1000 + beam},
                {"Column", [](SheetDriver& user) { user.Ok(); }, 3000 + column},
                {"Column", [](SheetDriver& user) { user.Click(IDC_STYLE_DELETE); }, 2000 + column},
                {"Column", [](SheetDriver& user) { user.Cancel(); }, IDCANCEL},
                // OK without moving the focus
                {"Beam", [](SheetDriver& user) { user.Key(VK_RETURN); }, IDOK}};
    for (const auto& row : rows)
        EXPECT_EQ(row.code, RunOver(beam, [&](SheetDriver& user) {
                      user.Type(IDC_STYLE_NAME, row.name);
                      row.then(user); // back with Tab, because the Delete button follows
                  }));
    EXPECT_NE(::BlocksFindBlock(styles, "Column"), 0) << "deletion is left to the host";
}

TEST_F(StylePart, NewCopiesTheGraphicsUnderTheName) {
    EXPECT_EQ(RunOver(beam,
                      [](SheetDriver& user) {
                          user.Type(IDC_STYLE_NAME, "Girder");
                          user.Click(IDC_STYLE_NEW);
                      }),
              1000);
    const uint16_t girder = ::BlocksFindBlock(styles, "Girder");
    ASSERT_NE(girder, 0);
    GraphicStruct* copy = ::BlockGetGraphic(styles, girder);
    EXPECT_NE(::BlockGetGraphic(styles, beam), copy);
    EXPECT_NE(*orlo::host::Members(copy).begin(), nullptr);
}

TEST_F(StylePart, UnlistedNameKeepsThePage) {
    EXPECT_EQ(IDCANCEL, RunOver(column, [](SheetDriver& user) {
                  user.Type(IDC_STYLE_NAME, "Girder");
                  user.Focus(IDC_INFO);
                  EXPECT_EQ(user.Text(IDC_STYLE_NAME), "Column");
                  EXPECT_FALSE(IsEnabled(user, IDC_STYLE_NEW));
                  EXPECT_TRUE(IsEnabled(user, IDC_STYLE_DELETE));

                  user.Type(IDC_STYLE_NAME, "");
                  user.Focus(IDC_INFO);
                  EXPECT_EQ(user.Text(IDC_STYLE_NAME), "Column");

                  // Return is rejected for a new name and for a typed or selected name of another style; the name stays
                  // in the field.
                  user.Type(IDC_STYLE_NAME, "Girder");
                  ExpectRejected(user, "Girder");
                  EXPECT_TRUE(IsEnabled(user, IDC_STYLE_NEW));
                  user.Type(IDC_STYLE_NAME, "Beam");
                  ExpectRejected(user, "Beam");
                  List(user, "Standard");
                  ExpectRejected(user, "Standard");
              }));
}

TEST_F(StylePart, ButtonsAreUpdatedByEverySelection) {
    EXPECT_EQ(IDCANCEL, RunOver(column, [](SheetDriver& user) {
                  List(user, "Standard");
                  EXPECT_FALSE(IsEnabled(user, IDC_STYLE_DELETE)) << "the application's own";
                  ::SendMessageA(user.Page(), WM_COMMAND, IDC_STYLE_DELETE,
                                 reinterpret_cast<LPARAM>(user.Control(IDC_STYLE_DELETE)));
                  EXPECT_TRUE(::IsWindowVisible(user.Sheet())) << "not even by its command";
                  EXPECT_EQ(user.Text(IDC_STYLE_NAME), "Standard");
                  List(user, "Beam");
                  EXPECT_TRUE(IsEnabled(user, IDC_STYLE_DELETE));
                  user.Type(IDC_STYLE_NAME, "Girder");
                  EXPECT_TRUE(IsEnabled(user, IDC_STYLE_NEW));
                  List(user, "Column");
                  EXPECT_FALSE(IsEnabled(user, IDC_STYLE_NEW));
                  for (const bool back : {false, true}) { // Tab from New to Delete, and back
                      user.Key(VK_TAB, back);
                      EXPECT_EQ(back ? user.Control(IDC_STYLE_NAME) : user.Control(IDC_STYLE_DELETE),
                                back ? ::GetParent(::GetFocus()) : ::GetFocus());
                  }
                  user.Cancel();
              }));
}

TEST_F(StylePart, LosingActivationSelectsNothing) {
    EXPECT_EQ(RunOver(column,
                      [](SheetDriver& user) {
                          user.Type(IDC_STYLE_NAME, "Beam");
                          ::SetFocus(nullptr);
                          user.Pump();
                          EXPECT_EQ(user.Text(IDC_STYLE_NAME), "Beam");
                      }),
              IDCANCEL);
}

} // namespace

// The viewer's own pages, defined by tables: geometry and extended data.

#include "demo/automation/control_text.h"
#include "demo/automation/sheet_pages.h"
#include "demo/viewer.h"
#include "orlo/host/walk.h"
#include "orlo/pages/field_page.h"

namespace {

constexpr int kLength = CFieldPage::FieldID(0), kVertices = CFieldPage::FieldID(2), kX = CFieldPage::FieldID(3),
              kGroups = CFieldPage::FieldID(0);

// A line with data of another program.
constexpr const char* kDrawing =
    "0\nSECTION\n2\nHEADER\n9\n$ACADVER\n1\nAC1009\n9\n$DWGCODEPAGE\n3\nANSI_1252\n0\nENDSEC\n"
    "0\nSECTION\n2\nENTITIES\n"
    "0\nLINE\n8\n0\n10\n5\n20\n5\n11\n15\n21\n5\n"
    "1001\nROOMS\n1000\nK\xFC"
    "che\n1040\n 12.5\n"
    "0\nLINE\n8\n0\n10\n5\n20\n35\n11\n15\n21\n35\n"
    "0\nENDSEC\n0\nEOF\n";

class OwnPages : public Viewer {
protected:
    // Opens the sheet over the graphics, shows the page with that title, and closes the sheet by OK.
    void OnPage(const std::vector<GraphicStruct*>& graphics, const char* title,
                const std::function<void(HWND page)>& work) {
        selection().Apply(graphics, Selection::Operation::Replace);
        user.InDialog([&] { user.Key(VK_RETURN, UserInput::kAlt); },
                      [&](HWND sheet) {
                          titles = PageTitles(sheet);
                          const auto found = std::find(titles.begin(), titles.end(), title);
                          if (found != titles.end()) {
                              ClickTab(user, sheet, static_cast<int>(found - titles.begin()));
                              work(ActivePageOf(sheet));
                          }
                          user.Click(::GetDlgItem(sheet, IDOK));
                      });
    }
    bool HasPage(const char* title) const { return std::find(titles.begin(), titles.end(), title) != titles.end(); }
    std::vector<GraphicStruct*> Graphics() { return document().Selectable(); }
    static VertexStruct Vertex(GraphicStruct* graphic, int index) {
        for (const VertexStruct* vertex : orlo::host::Vertices(graphic))
            if (index-- == 0) return *vertex;
        return {};
    }

    std::vector<std::string> titles;
};

TEST_F(OwnPages, TheFirstPointOfSeveralLinesIsMovedAndUndone) {
    const std::vector<GraphicStruct*> lines = {Graphics()[0], Graphics()[2]}; // red and yellow
    const std::vector<uint32_t> before = ViewPixels();
    OnPage(lines, "Geometry", [&](HWND page) {
        EXPECT_EQ(WindowText(::GetDlgItem(page, kLength)), "*****");
        EXPECT_EQ(WindowText(::GetDlgItem(page, kVertices)), "2");
        EXPECT_EQ(WindowText(::GetDlgItem(page, kX)), "*****");
        user.Mnemonic('x');
        EXPECT_EQ(::GetFocus(), ::GetDlgItem(page, kX));
        user.Type("2*4");
    });
    for (GraphicStruct* line : lines) {
        EXPECT_EQ(Vertex(line, 0).x, 8);
        EXPECT_EQ(Vertex(line, 0).y, 5);
    }
    EXPECT_EQ(Vertex(lines[1], 1).x, 35);
    selection().Clear();
    EXPECT_NE(ViewPixels(), before);
    user.Key('Z', UserInput::kControl);
    EXPECT_EQ(Vertex(lines[0], 0).x, 5);
    EXPECT_EQ(Vertex(lines[1], 0).x, 25);
}

TEST_F(OwnPages, ExtendedDataIsShownAsInTheFile) {
    file.Write(kDrawing);
    ASSERT_TRUE(frame->Open(file.Path()));
    OnPage({Graphics()[0]}, "Extended Data", [&](HWND page) {
        EXPECT_EQ(WindowText(::GetDlgItem(page, kGroups)), "1001 ROOMS\r\n1000 K\xFC"
                                                           "che\r\n1040 12.5");
        EXPECT_NE(::GetWindowLongA(::GetDlgItem(page, kGroups), GWL_STYLE) & ES_READONLY, 0);
    });
    EXPECT_TRUE(HasPage("Extended Data"));
    OnPage({Graphics()[1]}, "Extended Data", [](HWND) { ADD_FAILURE(); });
    OnPage(Graphics(), "Extended Data", [](HWND) { ADD_FAILURE(); });
    EXPECT_TRUE(HasPage("Geometry"));
}

} // namespace

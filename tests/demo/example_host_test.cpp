// The README's example host as a program with a real drawing, driven by messages.

#include "support/host_process.h"

#include "orlo/resources/resource.h"

namespace {

// The host in the folder of this test program, or the one named by EXAMPLE_HOST.
class ExampleHost : public HostProcess {
protected:
    void StartOver(const std::string& drawing) {
        char path[MAX_PATH] = "example_host.exe";
        ::GetEnvironmentVariableA("EXAMPLE_HOST", path, MAX_PATH);
        Start(std::string(path) + " " + drawing);
    }
};

TEST_F(ExampleHost, ShowsTheTablesOfItsDrawingAndSucceeds) {
    StartOver(TEST_DATA "/dxf/kabeja-draft4-roof-details.dxf");
    const HWND sheet = Sheet();
    ASSERT_NE(sheet, nullptr);
    EXPECT_GT(Query(Visible(sheet, IDC_LAYER), CB_GETCOUNT), 1);

    PressInTabs(sheet, VK_RIGHT);
    EXPECT_GT(Query(Visible(sheet, IDC_LINE_STYLE_LIST), LB_GETCOUNT), 1);
    EXPECT_GT(Query(Visible(sheet, IDC_COLOR), CB_GETCOUNT), 200);
    ::SendMessageA(Visible(sheet, IDC_PEN_SCALE), WM_SETTEXT, 0, reinterpret_cast<LPARAM>("2.5"));

    PressInTabs(sheet, VK_RIGHT);
    EXPECT_GT(Query(Visible(sheet, IDC_BRUSH_STYLE_LIST), LB_GETCOUNT), 1);
    EXPECT_GT(Query(Visible(sheet, IDC_BRUSH_COLOR), CB_GETCOUNT), 200);

    ::PostMessageA(::GetDlgItem(sheet, IDOK), BM_CLICK, 0, 0);
    EXPECT_EQ(ExitCode(), 0u);
}

TEST_F(ExampleHost, ReturnsAnExitCodeWithoutADrawing) {
    StartOver("missing.dxf");
    EXPECT_EQ(ExitCode(), 2u);
}

} // namespace

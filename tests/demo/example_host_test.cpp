// The example host of the README as its user meets it: a program of its own over a real drawing, driven by messages.

#include "support/host_process.h"

#include "orlo/resources/resource.h"

namespace {

class ExampleHost : public HostProcess {};

TEST_F(ExampleHost, ShowsTheTablesOfItsDrawingAndEndsWell) {
    Start("example_host.exe " TEST_DATA "/dxf/kabeja-draft4-roof-details.dxf");
    const HWND sheet = Sheet();
    ASSERT_NE(nullptr, sheet);
    EXPECT_GT(Ask(Visible(sheet, IDC_LAYER), CB_GETCOUNT), 1);

    PressInTabs(sheet, VK_RIGHT);
    EXPECT_GT(Ask(Visible(sheet, IDC_LINE_STYLE_LIST), LB_GETCOUNT), 1);
    EXPECT_GT(Ask(Visible(sheet, IDC_COLOR), CB_GETCOUNT), 200);
    ::SendMessageA(Visible(sheet, IDC_PEN_SCALE), WM_SETTEXT, 0, reinterpret_cast<LPARAM>("2.5"));

    PressInTabs(sheet, VK_RIGHT);
    EXPECT_GT(Ask(Visible(sheet, IDC_BRUSH_STYLE_LIST), LB_GETCOUNT), 1);
    EXPECT_GT(Ask(Visible(sheet, IDC_BRUSH_COLOR), CB_GETCOUNT), 200);

    ::PostMessageA(::GetDlgItem(sheet, IDOK), BM_CLICK, 0, 0);
    EXPECT_EQ(0u, ExitCode());
}

TEST_F(ExampleHost, SaysByItsExitCodeThatThereIsNoDrawing) {
    Start("example_host.exe missing.dxf");
    EXPECT_EQ(2u, ExitCode());
}

} // namespace

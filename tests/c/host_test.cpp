// Hosts in C, built with two compilers and run as programs with a real drawing.

#include "support/host_process.h"

#include <commctrl.h>

#include "orlo/pages/field_page.h"
#include "orlo/resources/resource.h"

namespace {

constexpr char kDrawing[] = " " TEST_DATA "/dxf/kabeja-draft4-roof-details.dxf";

class CHost : public HostProcess {
protected:
    // Shows the last page, which is the host's own, and replaces the text of its first field.
    void TypeOnOwnPage(HWND sheet, const char* keys) {
        const HWND tabs = ::FindWindowExA(sheet, nullptr, WC_TABCONTROLA, nullptr);
        for (LRESULT page = Query(tabs, TCM_GETITEMCOUNT); page > 1; --page)
            PressInTabs(sheet, VK_RIGHT);
        const HWND field = Visible(sheet, CFieldPage::FieldID(0));
        ASSERT_NE(field, nullptr);
        ::PostMessageA(field, EM_SETSEL, 0, -1);
        for (; *keys != '\0'; ++keys)
            ::PostMessageA(field, WM_CHAR, static_cast<WPARAM>(*keys), 1);
    }
};
class ForeignHost : public CHost, public ::testing::WithParamInterface<const char*> {};

TEST_F(CHost, GuideExampleShowsTheTablesOfItsDrawing) {
    Start(std::string("c_host.exe") + kDrawing);
    const HWND sheet = Sheet();
    ASSERT_NE(sheet, nullptr);
    EXPECT_GT(Query(Visible(sheet, IDC_LAYER), CB_GETCOUNT), 1);
    ::PostMessageA(::GetDlgItem(sheet, IDOK), BM_CLICK, 0, 0);
    EXPECT_EQ(ExitCode(), 0u);
}

// In C and in Rust.
class PageHost : public CHost, public ::testing::WithParamInterface<const char*> {};

TEST_P(PageHost, OfTheGuideKeepsWhatWasEdited) {
    Start(std::string(GetParam()) + kDrawing);
    const HWND sheet = Sheet();
    ASSERT_NE(sheet, nullptr);
    TypeOnOwnPage(sheet, "19.99");
    ::PostMessageA(::GetDlgItem(sheet, IDOK), BM_CLICK, 0, 0);
    EXPECT_EQ(ExitCode(), 0u);
    EXPECT_EQ(Output(), "first price: 19.99\n");
}

INSTANTIATE_TEST_SUITE_P(Languages, PageHost, ::testing::Values(PAGE_HOSTS));

TEST_P(ForeignHost, EditsThePenColorAndItsOwnPage) {
    Start(std::string(GetParam()) + kDrawing);
    const HWND sheet = Sheet();
    ASSERT_NE(sheet, nullptr) << ExitCode();
    const HWND owner = ::GetWindow(sheet, GW_OWNER);
    EXPECT_EQ(::FindWindowA("STATIC", "Host"), owner);
    EXPECT_FALSE(::IsWindowEnabled(owner));
    EXPECT_EQ(Query(Visible(sheet, IDC_LAYER), CB_GETCOUNT), 0);

    PressInTabs(sheet, VK_RIGHT);
    const HWND color = Visible(sheet, IDC_COLOR);
    EXPECT_GT(Query(color, CB_GETCOUNT), 200);
    ::PostMessageA(color, WM_KEYDOWN, VK_DOWN, 1);
    TypeOnOwnPage(sheet, "7");
    ::PostMessageA(::GetDlgItem(sheet, IDOK), BM_CLICK, 0, 0);
    EXPECT_EQ(ExitCode(), 0u);
}

INSTANTIATE_TEST_SUITE_P(Compilers, ForeignHost, ::testing::Values(FOREIGN_HOSTS));

} // namespace

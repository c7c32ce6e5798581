// Accessibility of every page: each field has a name, and no text contains the key of an item.

#include <gtest/gtest.h>

#include <string>

#include "orlo/resources/resource.h"
#include "orlo/win/child_windows.h"
#include "pages/every_kind.h"
#include "support/accessible.h"
#include "support/accessible_names.h"
#include "support/host_frame.h"
#include "support/sheet_driver.h"

namespace {

TEST(AccessiblePages, NameEveryFieldAndItem) {
    EveryKind kinds;
    HostFrame frame(kinds.Drawing());
    kinds.Select(kEverything);
    const auto sheet = kinds.NewSheet();
    int fields = 0;
    SheetDriver().Run(*sheet, [&](SheetDriver& user) {
        for (int page = 0; page < sheet->GetPageCount(); ++page) {
            SCOPED_TRACE(page);
            user.SelectPage(page);
            fields += ExpectAccessible(user.Sheet());
            ForEachChild(user.Page(), [&](HWND control) {
                char kind[32] = "";
                ::GetClassNameA(control, kind, sizeof kind);
                EXPECT_EQ(std::string(kind).rfind("QX", 0) == 0, Accessible(control).IsOwn()) << kind;
            });
        }
    });
    EXPECT_LT(50, fields);
}

TEST(AccessiblePages, MultipleValuesAreReportedAsVaried) {
    EveryKind kinds;
    HostFrame frame(kinds.Drawing());
    kinds.Select(kShapes);
    const auto sheet = kinds.NewSheet();
    SheetDriver().Run(*sheet, [&](SheetDriver& user) {
        EXPECT_EQ(Accessible(user.Control(IDC_LAYER)).Value(), "0") << "the common layer";
        user.SelectPage(1);
        EXPECT_EQ(Accessible(user.Control(IDC_COLOR)).Value(), "varied");
        EXPECT_EQ(Accessible(user.Control(IDC_LINE_STYLE_LIST)).Value(), "By Layer");
        user.SelectItem(IDC_COLOR, 0);
        EXPECT_NE(Accessible(user.Control(IDC_COLOR)).Value(), "varied");
        int graphics = 0;
        ForEachChild(user.Sheet(), [&](HWND child) {
            const Accessible accessible(child);
            if (accessible.Role() != ROLE_SYSTEM_GRAPHIC) return;
            ++graphics;
            EXPECT_EQ(accessible.Name(), "Preview");
        });
        EXPECT_EQ(graphics, 1);
    });
}

} // namespace

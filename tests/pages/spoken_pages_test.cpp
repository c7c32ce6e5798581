// Accessibility of every page: each field has a name, and no text contains the key of an item.

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <string>

#include "orlo/resources/resource.h"
#include "orlo/win/child_windows.h"
#include "pages/every_kind.h"
#include "support/accessible.h"
#include "support/host_frame.h"
#include "support/sheet_driver.h"

namespace {

// Returns true for eight consecutive hexadecimal digits, or a tab.
bool ShowsKey(const std::string& text) {
    int digits = 0;
    for (const char c : text) {
        digits = std::isxdigit(static_cast<unsigned char>(c)) ? digits + 1 : 0;
        if (digits == 8 || c == '\t') return true;
    }
    return false;
}

bool IsField(HWND control) {
    return ::IsWindowVisible(control) && !(::SendMessageA(control, WM_GETDLGCODE, 0, 0) & DLGC_STATIC);
}

// Returns the name from the window's own accessibility object, from the system's, or from the label that Windows would
// use but Wine does not.
std::string NameOf(HWND control) {
    const std::string name = Accessible(control).Name();
    if (!name.empty()) return name;
    char label[64] = "";
    ::GetWindowTextA(::GetWindow(control, GW_HWNDPREV), label, sizeof label);
    return label;
}

void ExpectSpoken(HWND control) {
    const Accessible spoken(control);
    const int id = ::GetDlgCtrlID(control);
    EXPECT_FALSE(ShowsKey(spoken.Name())) << id << ": " << spoken.Name();
    EXPECT_FALSE(ShowsKey(spoken.Value())) << id << ": " << spoken.Value();
    for (int item = 1; spoken.IsOwn() && item <= spoken.Count(); ++item)
        EXPECT_FALSE(ShowsKey(spoken.Name(item))) << id << ": " << spoken.Name(item);
}

TEST(SpokenPages, NameEveryFieldAndItem) {
    EveryKind kinds;
    HostFrame frame(kinds.Drawing());
    kinds.Select(kEverything);
    const auto sheet = kinds.NewSheet();
    int fields = 0;
    SheetDriver().Run(*sheet, [&](SheetDriver& user) {
        for (int page = 0; page < sheet->GetPageCount(); ++page) {
            user.SelectPage(page);
            ForEachChild(user.Page(), [&](HWND control) {
                if (::GetParent(control) != user.Page() || !IsField(control)) return;
                ++fields;
                char kind[32] = "";
                ::GetClassNameA(control, kind, sizeof kind);
                EXPECT_NE(NameOf(control), "") << "page " << page << ", control " << ::GetDlgCtrlID(control);
                EXPECT_EQ(std::string(kind).rfind("QX", 0) == 0, Accessible(control).IsOwn()) << kind;
                ExpectSpoken(control);
                COMBOBOXINFO info = {};
                info.cbSize = sizeof info;
                if (user.IsCombo(::GetDlgCtrlID(control)) && ::GetComboBoxInfo(control, &info))
                    ExpectSpoken(info.hwndList);
            });
        }
    });
    EXPECT_LT(30, fields);
}

TEST(SpokenPages, MultipleValuesAreReportedAsVaried) {
    EveryKind kinds;
    HostFrame frame(kinds.Drawing());
    kinds.Select(kShapes);
    const auto sheet = kinds.NewSheet();
    SheetDriver().Run(*sheet, [&](SheetDriver& user) {
        EXPECT_EQ(Accessible(user.Control(IDC_LAYER)).Value(), "0") << "the layer that they share";
        user.SelectPage(1);
        EXPECT_EQ(Accessible(user.Control(IDC_COLOR)).Value(), "varied");
        EXPECT_EQ(Accessible(user.Control(IDC_LINE_STYLE_LIST)).Value(), "By Layer");
        user.Choose(IDC_COLOR, 0);
        EXPECT_NE(Accessible(user.Control(IDC_COLOR)).Value(), "varied");
        int graphics = 0;
        ForEachChild(user.Sheet(), [&](HWND child) {
            const Accessible spoken(child);
            if (spoken.Role() != ROLE_SYSTEM_GRAPHIC) return;
            ++graphics;
            EXPECT_EQ(spoken.Name(), "Preview");
        });
        EXPECT_EQ(graphics, 1);
    });
}

} // namespace

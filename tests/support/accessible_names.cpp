// Implements the walk.

#include "support/accessible_names.h"

#include <gtest/gtest.h>

#include <commctrl.h>

#include <algorithm>
#include <cctype>
#include <vector>

#include "demo/automation/control_text.h"
#include "orlo/win/child_windows.h"
#include "support/accessible.h"

namespace {

constexpr int kTextSize = 256;

std::string ClassOf(HWND window) {
    char name[64] = "";
    ::GetClassNameA(window, name, sizeof name);
    return name;
}

std::string Described(HWND window) {
    return ClassOf(window) + " " + std::to_string(::GetDlgCtrlID(window));
}

// Returns true for eight consecutive hexadecimal digits, or a tab.
bool ShowsKey(const std::string& text) {
    int digits = 0;
    for (const char c : text) {
        digits = std::isxdigit(static_cast<unsigned char>(c)) ? digits + 1 : 0;
        if (digits == 8 || c == '\t') return true;
    }
    return false;
}

std::vector<std::string> TabTexts(HWND tabs) {
    std::vector<std::string> texts;
    for (int i = 0; i < ::SendMessageA(tabs, TCM_GETITEMCOUNT, 0, 0); ++i) {
        char text[kTextSize] = "";
        TCITEMA item = {};
        item.mask = TCIF_TEXT;
        item.pszText = text;
        item.cchTextMax = kTextSize;
        ::SendMessageA(tabs, TCM_GETITEMA, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&item));
        texts.emplace_back(item.pszText);
    }
    return texts;
}

std::vector<std::string> PartTexts(HWND bar) {
    std::vector<std::string> texts;
    for (int i = 0; i < ::SendMessageA(bar, SB_GETPARTS, 0, 0); ++i) {
        std::string text(LOWORD(::SendMessageA(bar, SB_GETTEXTLENGTHA, static_cast<WPARAM>(i), 0)) + 1u, '\0');
        ::SendMessageA(bar, SB_GETTEXTA, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(text.data()));
        texts.emplace_back(text.c_str());
    }
    return texts;
}

std::vector<std::string> CellTexts(HWND list) {
    std::vector<std::string> texts;
    const HWND header = ListView_GetHeader(list);
    const int rows = static_cast<int>(::SendMessageA(list, LVM_GETITEMCOUNT, 0, 0));
    for (int column = 0; column < Header_GetItemCount(header); ++column) {
        char text[kTextSize] = "";
        HDITEMA title = {};
        title.mask = HDI_TEXT;
        title.pszText = text;
        title.cchTextMax = kTextSize;
        ::SendMessageA(header, HDM_GETITEMA, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&title));
        EXPECT_NE(std::string(text), "") << "a column without a title";
        texts.emplace_back(text);
        for (int row = 0; row < rows; ++row) {
            LVITEMA item = {};
            item.iSubItem = column;
            item.pszText = text;
            item.cchTextMax = kTextSize;
            ::SendMessageA(list, LVM_GETITEMTEXTA, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
            texts.emplace_back(item.pszText);
        }
    }
    return texts;
}

std::vector<std::string> TextsOfItems(HWND window) {
    const std::string name = ClassOf(window);
    if (name == WC_TABCONTROLA) return TabTexts(window);
    if (name == STATUSCLASSNAMEA) return PartTexts(window);
    if (name == WC_LISTVIEWA) return CellTexts(window);
    std::vector<std::string> texts;
    const Accessible accessible(window);
    for (int item = 1; accessible.IsOwn() && item <= accessible.Count(); ++item)
        texts.push_back(accessible.Name(item));
    return texts;
}

// The arrows beside a field are not reached.
bool IsReached(HWND window) {
    return ::IsWindowEnabled(window) && (::GetWindowLongA(window, GWL_STYLE) & WS_TABSTOP) &&
           ClassOf(window) != UPDOWN_CLASSA && !(::SendMessageA(window, WM_GETDLGCODE, 0, 0) & DLGC_STATIC);
}

} // namespace

std::string AccessibleName(HWND control) {
    const Accessible accessible(control);
    const std::string name = accessible.Name();
    const HWND before = ::GetWindow(control, GW_HWNDPREV);
    const bool namesItself = accessible.IsOwn() || (::SendMessageA(control, WM_GETDLGCODE, 0, 0) & DLGC_BUTTON);
    if (namesItself || before == nullptr || !(::SendMessageA(before, WM_GETDLGCODE, 0, 0) & DLGC_STATIC)) return name;
    std::string label = WindowText(before);
    label.erase(std::remove(label.begin(), label.end(), '&'), label.end());
    return label;
}

void ExpectNoKeys(HWND window) {
    SCOPED_TRACE(Described(window));
    const Accessible accessible(window);
    EXPECT_FALSE(ShowsKey(accessible.Name())) << accessible.Name();
    EXPECT_FALSE(ShowsKey(accessible.Value())) << accessible.Value();
    for (const std::string& text : TextsOfItems(window))
        EXPECT_FALSE(ShowsKey(text)) << text;
    COMBOBOXINFO info = {};
    info.cbSize = sizeof info;
    if (::GetComboBoxInfo(window, &info) && info.hwndList != nullptr) ExpectNoKeys(info.hwndList);
}

int ExpectAccessible(HWND window) {
    int fields = 0;
    ExpectNoKeys(window);
    ForEachChild(window, [&](HWND child) {
        if (!::IsWindowVisible(child)) return;
        ExpectNoKeys(child);
        if (!IsReached(child)) return;
        ++fields;
        if (ClassOf(child) != WC_TABCONTROLA)
            EXPECT_NE(AccessibleName(child), "") << Described(child);
        else
            for (const std::string& page : TabTexts(child))
                EXPECT_NE(page, "") << Described(child);
    });
    return fields;
}

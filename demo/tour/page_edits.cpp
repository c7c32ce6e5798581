// One change on each page.

#include "demo/tour/page_edits.h"

#include <cstdlib>

#include "demo/automation/control_text.h"
#include "orlo/resources/resource.h"

namespace {

constexpr int kDiagonalLines = 5;          // index of the brush in the list; its lines do not hide the graphics below
constexpr const char* kWideSpacing = "60"; // the scale of these lines, for a whole drawing
constexpr unsigned long kOrange = RGB(255, 127, 0);

int Send(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    return static_cast<int>(::SendMessageA(window, message, wParam, lParam));
}

HWND FocusOn(UserInput& user, HWND page, int id) {
    const HWND control = ::GetDlgItem(page, id);
    user.MoveFocus(control);
    return control;
}

void TypeOver(UserInput& user, HWND page, int id, const std::string& text) {
    user.Replace(::GetDlgItem(page, id), text);
}

// Selects the next item, or the previous one at the end; without a selection, the item with that index.
void Move(UserInput& user, HWND list, UINT getSelection, int first) {
    const int before = Send(list, getSelection);
    if (before < 0) return user.Keys(VK_DOWN, first + 1);
    user.Key(VK_DOWN);
    if (Send(list, getSelection) == before) user.Key(VK_UP);
}

// Selects the item with that index, or another one if it is already selected. Without a selection, the first key only
// creates one.
void MoveTo(UserInput& user, HWND list, UINT getSelection, int index) {
    if (Send(list, getSelection) == index) return user.Key(VK_UP);
    user.Keys(VK_HOME, 2);
    user.Keys(VK_DOWN, index);
}

// Returns the index of the color, whose items begin with the color in hexadecimal digits, or 0 if it is missing.
int IndexOfColor(HWND combo, unsigned long color) {
    for (int i = 0; i < Send(combo, CB_GETCOUNT); ++i)
        if (std::strtoul(ComboItem(combo, i).c_str(), nullptr, 16) == color) return i;
    return 0;
}

constexpr PageEdit kEdits[] = {
    {"General", [](UserInput& user, HWND page) { TypeOver(user, page, IDC_INFO, "Checked on site"); }},
    {"Pen",
     [](UserInput& user, HWND page) {
         const HWND colors = FocusOn(user, page, IDC_COLOR);
         Move(user, colors, CB_GETCURSEL, IndexOfColor(colors, kOrange));
     }},
    {"Brush",
     [](UserInput& user, HWND page) {
         MoveTo(user, FocusOn(user, page, IDC_BRUSH_STYLE_LIST), LB_GETCURSEL, kDiagonalLines);
         TypeOver(user, page, IDC_BRUSH_SCALE, kWideSpacing);
     }},
    {"Text", [](UserInput& user, HWND page) { user.Click(::GetDlgItem(page, IDC_UNDERLINE)); }},
    {"Block Insertion", [](UserInput& user, HWND page) { TypeOver(user, page, IDC_ROTATION_Z, "30"); }},
};

} // namespace

const PageEdit* FindPageEdit(const std::string& title) {
    for (const PageEdit& edit : kEdits) {
        if (title == edit.title) return &edit;
    }
    return nullptr;
}

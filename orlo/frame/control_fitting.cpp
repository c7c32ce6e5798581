// Adapts the widths of a page's controls to the page and the screen resolution.

#include "orlo/frame/control_fitting.h"

#include <algorithm>
#include <iterator>

#include "orlo/win/child_windows.h"
#include "orlo/win/gdi.h"
#include "orlo/win/screen_scale.h"

namespace {

constexpr int kBoxWidth = 13;  // width of a check box or radio button, in pixels at 96 dpi
constexpr int kGroupLine = 3;  // width of the line of a group box with the space inside, in device pixels
constexpr int kLabelSpace = 8; // space between box and label, and after the label

bool HasBoxAndLabel(HWND child) {
    constexpr LRESULT kPushes = DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON | DLGC_STATIC;
    const LRESULT code = ::SendMessageA(child, WM_GETDLGCODE, 0, 0);
    return (code & DLGC_BUTTON) && !(code & kPushes);
}

int LabelWidth(HWND child) {
    char label[64];
    const int length = ::GetWindowTextA(child, label, sizeof label);
    const orlo::OwnedDC dc(::CreateCompatibleDC(nullptr));
    const orlo::SelectedObject font(dc.get(), reinterpret_cast<HGDIOBJ>(::SendMessageA(child, WM_GETFONT, 0, 0)));
    SIZE size = {};
    ::GetTextExtentPoint32A(dc.get(), label, length, &size);
    return size.cx;
}

// Returns the width that a control should have. Check boxes and radio buttons of the given size grow with the screen
// resolution, while the space reserved by the template may not.
int WantedWidth(HWND child, int width, int box) {
    if (box == kBoxWidth || !HasBoxAndLabel(child)) return width;
    return std::max(width, box + kLabelSpace + LabelWidth(child));
}

bool IsGroupBox(HWND child) {
    constexpr LONG kGroup = BS_GROUPBOX;
    return (::SendMessageA(child, WM_GETDLGCODE, 0, 0) & DLGC_STATIC) &&
           (::GetWindowLongA(child, GWL_STYLE) & BS_TYPEMASK) == kGroup;
}

// Returns how far to the right a control may extend. Group boxes of the templates extend beyond the page, which would
// clip their right edges: controls beyond the page keep their distance to the group box. Others stay inside its line.
LONG RightLimit(const RECT& rect, LONG page, const std::vector<RECT>& groups) {
    for (const RECT& group : groups) {
        if (group.left >= rect.left || group.top >= rect.top || rect.right >= group.right ||
            rect.bottom >= group.bottom)
            continue;
        return rect.right > page ? page - (group.right - rect.right) : std::min(page, group.right - kGroupLine);
    }
    return page;
}

void FitWidth(HWND child, HWND page, int box, const std::vector<RECT>& groups) {
    RECT client;
    ::GetClientRect(page, &client);
    const RECT rect = PlaceIn(page, child);
    const int width = rect.right - rect.left;
    const LONG limit = RightLimit(rect, client.right, groups);
    const int fitting = std::min<int>(WantedWidth(child, width, box), limit - rect.left);
    if (fitting == width || fitting <= 0) return;
    ::SetWindowPos(child, nullptr, 0, 0, fitting, rect.bottom - rect.top,
                   SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOREDRAW | SWP_DEFERERASE);
}

} // namespace

void FitControls(HWND page, const std::vector<HWND>& children) {
    std::vector<HWND> controls;
    std::copy_if(children.begin(), children.end(), std::back_inserter(controls),
                 [page](HWND child) { return ::GetParent(child) == page; });
    std::vector<RECT> groups; // with the sizes of the template
    for (const HWND control : controls)
        if (IsGroupBox(control)) groups.push_back(PlaceIn(page, control));
    const int box = ScreenPixels(kBoxWidth);
    for (const HWND control : controls)
        FitWidth(control, page, box, groups);
}

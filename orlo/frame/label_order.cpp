// Finds the labels of fields and moves them directly before their fields.

#include "orlo/frame/label_order.h"

#include <algorithm>

#include "orlo/win/child_windows.h"

namespace {

constexpr RECT kReach = {0, 0, 30, 12}; // maximum distance from a label to its field, across and down, in dialog units

struct Child {
    HWND window;
    RECT place;
};

enum class Role { Other, Field, Text, GroupBox };

Role RoleOf(HWND child) {
    constexpr LRESULT kNone = 0;
    const LRESULT code = ::SendMessageA(child, WM_GETDLGCODE, 0, 0);
    if (code != kNone && !(code & (DLGC_STATIC | DLGC_BUTTON | DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON)))
        return Role::Field;
    if (!(code & DLGC_STATIC) || ::GetWindowTextLengthA(child) == 0) return Role::Other;
    return IsOfClass(child, "Button") ? Role::GroupBox : Role::Text;
}

bool IsWithin(const RECT& inner, const RECT& outer) {
    return outer.left <= inner.left && inner.right <= outer.right && outer.top <= inner.top &&
           inner.top <= outer.bottom; // the rectangle of a combo box includes its list
}

// Returns the distance of a text from the field that it precedes or stands above, or a negative number if it does
// neither.
int DistanceToText(const RECT& text, const RECT& field, const RECT& reach) {
    const LONG middle = (text.top + text.bottom) / 2;
    const LONG across = field.left - text.right, down = field.top - text.bottom;
    const bool before = middle >= field.top && middle <= field.bottom && across >= 0 && across <= reach.right;
    const bool above = text.left < field.right && text.right > field.left && down >= 0 && down <= reach.bottom;
    return before ? across : above ? down : -1;
}

const Child* LabelOf(const Child& field, const std::vector<Child>& texts, const std::vector<Child>& boxes,
                     const RECT& reach) {
    const Child* label = nullptr;
    int nearest = 0;
    for (const Child& text : texts) {
        const int distance = DistanceToText(text.place, field.place, reach);
        if (distance < 0 || (label && distance >= nearest)) continue;
        label = &text;
        nearest = distance;
    }
    if (label) return label;
    const auto around =
        std::find_if(boxes.begin(), boxes.end(), [&](const Child& box) { return IsWithin(field.place, box.place); });
    return around != boxes.end() ? &*around : nullptr;
}

// A label that starts a group for the arrow keys would also start one at its new place.
void EndGroup(HWND label) {
    const LONG_PTR style = ::GetWindowLongPtrA(label, GWL_STYLE);
    if (style & WS_GROUP) ::SetWindowLongPtrA(label, GWL_STYLE, style & ~LONG_PTR{WS_GROUP});
}

void PutBefore(HWND label, HWND field, std::vector<HWND>& order) {
    const auto place = std::find(order.begin(), order.end(), field);
    const HWND previous = place == order.begin() ? HWND_TOP : place[-1];
    if (previous == label) return;
    EndGroup(label);
    ::SetWindowPos(label, previous, 0, 0, 0, 0,
                   SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_NOREDRAW | SWP_DEFERERASE);
    order.erase(std::find(order.begin(), order.end(), label));
    order.insert(std::find(order.begin(), order.end(), field), label);
}

} // namespace

void PutLabelsBeforeFields(HWND page, std::vector<HWND> controls) {
    std::vector<Child> fields, texts, boxes;
    for (const HWND window : controls) {
        Child child = {window, {}};
        ::GetWindowRect(window, &child.place);
        const Role role = RoleOf(window);
        if (role == Role::Field) fields.push_back(child);
        if (role == Role::Text) texts.push_back(child);
        if (role == Role::GroupBox) boxes.push_back(child);
    }
    RECT reach = kReach;
    ::MapDialogRect(page, &reach);
    for (const Child& field : fields)
        if (const Child* label = LabelOf(field, texts, boxes, reach)) PutBefore(label->window, field.window, controls);
}

// Finds the labels of fields and moves them directly before their fields.

#include "orlo/frame/label_order.h"

#include <algorithm>
#include <iterator>
#include <numeric>
#include <optional>
#include <utility>

#include "orlo/frame/dialog_controls.h"

namespace {

constexpr LONG kReachAcross = 30, kReachDown = 12; // maximum distance from a label to its field, in dialog units

enum class Role { Other, Field, Text, GroupBox };

bool IsGroupBox(const TemplateControl& control) {
    return control.IsOfClass(L"Button") && (control.style & BS_TYPEMASK) == BS_GROUPBOX;
}

Role RoleOf(const TemplateControl& control) {
    if (control.IsOfClass(L"Static")) return control.hasText ? Role::Text : Role::Other;
    if (control.IsOfClass(L"Button")) return IsGroupBox(control) && control.hasText ? Role::GroupBox : Role::Other;
    static constexpr const wchar_t* kWithoutInput[] = {L"ScrollBar", L"msctls_updown32", L"msctls_progress32"};
    const auto isOf = [&](const wchar_t* name) { return control.IsOfClass(name); };
    return std::any_of(std::begin(kWithoutInput), std::end(kWithoutInput), isOf) ? Role::Other : Role::Field;
}

bool IsWithin(const RECT& inner, const RECT& outer) {
    return outer.left <= inner.left && inner.right <= outer.right && outer.top <= inner.top &&
           inner.top <= outer.bottom; // a list may extend beyond its box
}

// Returns the distance between a field and a text before or above it, or a negative number if the text is elsewhere.
LONG DistanceToText(const RECT& text, const RECT& field) {
    const LONG middle = (text.top + text.bottom) / 2;
    const LONG across = field.left - text.right, down = field.top - text.bottom;
    const bool before = middle >= field.top && middle <= field.bottom && across >= 0 && across <= kReachAcross;
    const bool above = text.left < field.right && text.right > field.left && down >= 0 && down <= kReachDown;
    return before ? across : above ? down : -1;
}

// Returns the index of the nearest text, else of the group box around the field, else -1.
int LabelOf(const TemplateControl& field, const std::vector<TemplateControl>& controls) {
    int label = -1, box = -1;
    LONG nearest = 0;
    for (size_t i = 0; i < controls.size(); ++i) {
        const Role role = RoleOf(controls[i]);
        if (role == Role::GroupBox && box < 0 && IsWithin(field.place, controls[i].place)) box = static_cast<int>(i);
        if (role != Role::Text) continue;
        const LONG distance = DistanceToText(controls[i].place, field.place);
        if (distance < 0 || (label >= 0 && distance >= nearest)) continue;
        label = static_cast<int>(i);
        nearest = distance;
    }
    return label >= 0 ? label : box;
}

// Moves a label to the place before the field, in the list of the controls' indices in their order.
void PutBefore(int label, int field, std::vector<int>& order) {
    order.erase(std::find(order.begin(), order.end(), label));
    order.insert(std::find(order.begin(), order.end(), field), label);
}

// A label that starts a group for the arrow keys would also start one at its new place.
void MoveLabels(std::vector<TemplateControl>& controls) {
    std::vector<int> order(controls.size());
    std::iota(order.begin(), order.end(), 0);
    for (int field = 0; field < static_cast<int>(controls.size()); ++field) {
        if (RoleOf(controls[field]) != Role::Field) continue;
        const int label = LabelOf(controls[field], controls);
        if (label < 0) continue;
        const auto place = std::find(order.begin(), order.end(), field);
        if (place != order.begin() && place[-1] == label) continue;
        controls[label].style &= ~DWORD{WS_GROUP};
        PutBefore(label, field, order);
    }
    std::vector<TemplateControl> ordered;
    for (const int index : order)
        ordered.push_back(std::move(controls[index]));
    controls = std::move(ordered);
}

} // namespace

void OrderLabels(std::vector<BYTE>& dialog) {
    std::optional<DialogControls> read = DialogControls::Read(dialog);
    if (!read) return;
    for (TemplateControl& control : read->controls)
        if (control.IsOfClass(L"Static") || IsGroupBox(control)) control.style &= ~DWORD{WS_TABSTOP};
    MoveLabels(read->controls);
    dialog = read->Template();
}

// Typing ahead by the names of a control's items.

#include "orlo/controls/type_ahead.h"

#include <algorithm>
#include <string>
#include <vector>

namespace {

constexpr DWORD kPauseInDoubleClicks = 4; // as in the system's list boxes

std::string Upper(std::string text) {
    ::CharUpperBuffA(&text[0], static_cast<DWORD>(text.size()));
    return text;
}

// Returns the first item from `from` on, wrapping around, whose name begins with the prefix, or -1.
int FindName(const std::vector<std::string>& names, const std::string& prefix, int from) {
    const int count = static_cast<int>(names.size());
    for (int step = 0; step < count; ++step) {
        const int index = (from + step) % count;
        const std::string& name = names[static_cast<size_t>(index)];
        if (name.size() >= prefix.size() && Upper(name.substr(0, prefix.size())) == prefix) return index;
    }
    return -1;
}

// The prefix typed so far. Only one control has the keyboard focus at a time. A character for another control, after a
// pause, or with a selection other than the last one made here starts a new prefix.
class TypedText {
public:
    bool GoesOnIn(HWND control, int selected) const {
        const DWORD pause = kPauseInDoubleClicks * ::GetDoubleClickTime();
        return control == control_ && !before_.empty() && ::GetTickCount() - last_ <= pause && selected == selected_;
    }
    void BeginIn(HWND control) {
        control_ = control;
        text_.clear();
        before_.clear();
    }
    // Both return the index of the item to select, or the selected one if nothing changes.
    int Add(char letter, const std::vector<std::string>& names, int selected) {
        const std::string alone = Upper({letter});
        if (!before_.empty()) {
            const int found = FindName(names, text_ + alone, std::max(selected, 0));
            if (found >= 0) return Accept(text_ + alone, selected, found);
        }
        const int found = FindName(names, alone, selected + 1);
        if (found < 0) return selected;
        before_.clear();
        return Accept(alone, selected, found);
    }
    int RemoveLast() {
        const int selected = before_.back();
        before_.pop_back();
        text_.pop_back();
        return selected;
    }
    void Leave(int selected) {
        selected_ = selected;
        last_ = ::GetTickCount();
    }

private:
    int Accept(const std::string& text, int before, int found) {
        text_ = text;
        before_.push_back(before);
        return found;
    }

    HWND control_ = nullptr;
    int selected_ = -1;
    DWORD last_ = 0;
    std::string text_;        // in uppercase
    std::vector<int> before_; // the selection before each character
};

TypedText g_typed;

} // namespace

bool TypeAhead(HWND control, const ControlItems& items, ItemNames& names, WPARAM character) {
    const bool isBackspace = character == VK_BACK;
    if ((character < ' ' && !isBackspace) || character > 0xFF || items.Count() <= 0) return false;
    const int before = items.Selected();
    if (!g_typed.GoesOnIn(control, before)) {
        if (character == ' ' || isBackspace) return false;
        g_typed.BeginIn(control);
    }
    const int index =
        isBackspace ? g_typed.RemoveLast() : g_typed.Add(static_cast<char>(character), names.Of(items), before);
    if (index != before) items.Select(index);
    g_typed.Leave(items.Selected());
    if (index != before) NotifySelectionChange(control);
    return true;
}

void NotifySelectionChange(HWND control) {
    // CBN_SELCHANGE and LBN_SELCHANGE have the same value.
    ::SendMessageA(::GetParent(control), WM_COMMAND, MAKEWPARAM(::GetDlgCtrlID(control), CBN_SELCHANGE),
                   reinterpret_cast<LPARAM>(control));
}

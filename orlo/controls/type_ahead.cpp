// Typing ahead by the names of a control's items.

#include "orlo/controls/type_ahead.h"

#include <algorithm>
#include <cstring>
#include <string>

#include "orlo/controls/control_item.h"

namespace {

// What has been typed so far. The keyboard has one focus: letters that go to another control, come after a pause or find
// another selection than they have left begin anew.
class TypedText {
public:
    bool GoesOnIn(HWND control, const ControlItems& items) const {
        const DWORD pause = 4 * ::GetDoubleClickTime(); // as in the system's boxes
        return control == control_ && ::GetTickCount() - last_ <= pause && items.Selected() == selected_;
    }
    // The letters with one more, in upper case.
    const std::string& Take(HWND control, char letter, bool goesOn) {
        if (!goesOn) text_.clear();
        text_ += letter;
        ::CharUpperBuffA(&text_[0], static_cast<DWORD>(text_.size()));
        control_ = control;
        return text_;
    }
    void Leave(int selected) {
        selected_ = selected;
        last_ = ::GetTickCount();
    }

private:
    HWND control_ = nullptr;
    int selected_ = -1;
    DWORD last_ = 0;
    std::string text_;
};

TypedText g_typed;

bool BeginsWith(const char* name, const std::string& prefix) {
    char start[kItemTextSize];
    if (std::strlen(name) < prefix.size() || prefix.size() > sizeof start) return false;
    const auto size = static_cast<DWORD>(prefix.size());
    std::memcpy(start, name, size);
    ::CharUpperBuffA(start, size);
    return std::memcmp(start, prefix.data(), size) == 0;
}

// The first item from that one on, wrapping around, whose name begins with it; -1 without one.
int FindName(const ControlItems& items, const std::string& prefix, int from) {
    char text[kItemTextSize];
    const int count = items.Count();
    for (int step = 0; step < count; ++step) {
        const int index = (from + step) % count;
        if (!items.GetText(index, text, sizeof text)) continue;
        ParseControlItem(text);
        if (BeginsWith(text, prefix)) return index;
    }
    return -1;
}

// A first letter goes on to the next item, and so does the same letter again; more letters keep an item that they fit.
int FindTyped(const ControlItems& items, const std::string& prefix) {
    const int selected = items.Selected();
    if (prefix.size() == 1) return FindName(items, prefix, selected + 1);
    const int found = FindName(items, prefix, std::max(selected, 0));
    const bool oneLetter = prefix.find_first_not_of(prefix[0]) == std::string::npos;
    return found < 0 && oneLetter ? FindName(items, prefix.substr(0, 1), selected + 1) : found;
}

} // namespace

bool TypeAhead(HWND control, const ControlItems& items, WPARAM character) {
    if (character < ' ' || character > 0xFF || items.Count() <= 0) return false;
    const bool goesOn = g_typed.GoesOnIn(control, items);
    if (character == ' ' && !goesOn) return false;
    const int before = items.Selected();
    const int index = FindTyped(items, g_typed.Take(control, static_cast<char>(character), goesOn));
    const bool changes = index >= 0 && index != before;
    if (changes) items.Select(index);
    g_typed.Leave(items.Selected());
    if (changes) {
        // CBN_SELCHANGE and LBN_SELCHANGE are the same.
        ::SendMessageA(::GetParent(control), WM_COMMAND, MAKEWPARAM(::GetDlgCtrlID(control), CBN_SELCHANGE),
                       reinterpret_cast<LPARAM>(control));
    }
    return true;
}

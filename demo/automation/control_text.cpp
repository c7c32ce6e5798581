// Reads the texts of windows and items.

#include "demo/automation/control_text.h"

std::string WindowText(HWND window) {
    std::string text(static_cast<size_t>(::GetWindowTextLengthA(window)) + 1, '\0');
    text.resize(static_cast<size_t>(::GetWindowTextA(window, &text[0], static_cast<int>(text.size()))));
    return text;
}

std::string ComboItem(HWND combo, int index) {
    const auto size = ::SendMessageA(combo, CB_GETLBTEXTLEN, static_cast<WPARAM>(index), 0);
    if (size < 0) return "";
    std::string text(static_cast<size_t>(size) + 1, '\0');
    ::SendMessageA(combo, CB_GETLBTEXT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&text[0]));
    text.resize(static_cast<size_t>(size));
    return text;
}

// Texts of a field that are no values.

#include "orlo/exchange/indeterminate_text.h"

#include <cstring>

bool IsBlankText(HWND window) {
    char text[64] = "";
    ::GetWindowTextA(window, text, sizeof text);
    return text[std::strspn(text, " \t")] == '\0';
}

bool IsIndeterminateText(const char* text) {
    return std::strcmp(text, kIndeterminateDisplay) == 0;
}

void SetIndeterminateText(HWND window) {
    ::SetWindowTextA(window, kIndeterminateDisplay);
}

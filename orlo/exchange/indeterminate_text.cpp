// Recognizes fields that show no value.

#include "orlo/exchange/indeterminate_text.h"

#include <cstring>

#include "orlo/binding/fuzzy.h"
#include "orlo/binding/indeterminate.h"
#include "orlo/exchange/window_text.h"

bool IsBlankText(HWND window) {
    const CString text = WindowText(window);
    return text[static_cast<int>(std::strspn(text, " \t"))] == '\0';
}

bool IsIndeterminateText(const char* text) {
    return std::strcmp(text, kIndeterminateStars) == 0;
}

void SetIndeterminateText(HWND window) {
    ::SetWindowTextA(window, kIndeterminateStars);
}

bool IsNearlyIndeterminate(double value) {
    const double marker = Indeterminate<double>::Value();
    return CompareDoubles(&value, &marker) == 0;
}

// Reads and clears the texts of controls.

#include "orlo/exchange/window_text.h"

#include "orlo/controls/control_items.h"

CString WindowText(HWND control) {
    int length = ::GetWindowTextLengthA(control);
    if (length == -1) length = 255;
    CString text;
    char* const buffer = text.GetBuffer(length);
    buffer[0] = '\0';
    ::GetWindowTextA(control, buffer, length + 1);
    text.ReleaseBuffer();
    return text;
}

void ShowBlank(HWND combo) {
    ControlItems::OfCombo(combo).Select(-1);
    ::SetWindowTextA(combo, "");
}

CString ShownText(HWND combo) {
    const ControlItems items = ControlItems::OfCombo(combo);
    const int selected = items.Selected();
    if (selected == CB_ERR) return WindowText(combo);
    CString text;
    items.GetText(selected, text);
    return text;
}

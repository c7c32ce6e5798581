// The text of a control.

#include "orlo/exchange/window_text.h"

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

// Height of a line of text in an owner-drawn control.

#include "orlo/controls/text_height.h"

int GetOwnerDrawFixedTextHeight(HWND hWnd) {
    const HDC dc = ::GetDC(hWnd);
    if (!dc) return 16;
    SIZE size = {};
    ::GetTextExtentPoint32A(dc, "M", 1, &size);
    ::ReleaseDC(hWnd, dc);
    return size.cy;
}

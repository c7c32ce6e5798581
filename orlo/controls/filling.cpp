// A scope in which a control is filled.

#include "orlo/controls/filling.h"

#include <algorithm>

#include "orlo/controls/text_height.h"

namespace {

// The innermost scope. Controls live on one thread, and filling one control may cause another to be filled.
Filling* g_current = nullptr;

// Rows must fit the control's own font, which at high resolutions is larger than the device context's.
int MeasureRow(HWND window) {
    return std::max(GetOwnerDrawFixedTextHeight(window), ControlFontHeight(window));
}

} // namespace

Filling::Filling(HWND window, Items items) : window_(window), items_(items), outer_(g_current) {
    g_current = this;
    ::SendMessageA(window, WM_SETREDRAW, FALSE, 0);
}

Filling::~Filling() {
    g_current = outer_;
    ::SendMessageA(window_, WM_SETREDRAW, TRUE, 0);
    if (window_) ::InvalidateRect(window_, nullptr, TRUE); // a null window would invalidate all windows
}

Filling* Filling::Of(HWND window) {
    for (Filling* fill = g_current; fill; fill = fill->outer_) {
        if (fill->window_ == window) return fill;
    }
    return nullptr;
}

int Filling::TextHeight() {
    if (!textHeight_) textHeight_ = MeasureRow(window_);
    return textHeight_;
}

int RowTextHeight(HWND window) {
    Filling* const fill = Filling::Of(window);
    return fill ? fill->TextHeight() : MeasureRow(window);
}

// A scope in which a control is filled.

#include "orlo/controls/fill_scope.h"

#include "orlo/controls/control_font.h"

namespace {

// The innermost scope. Controls live on one thread, and filling one control may cause another to be filled.
FillScope* g_current = nullptr;

} // namespace

FillScope::FillScope(HWND window, Items items) : window_(window), items_(items), outer_(g_current) {
    g_current = this;
    ::SendMessageA(window, WM_SETREDRAW, FALSE, 0);
}

FillScope::~FillScope() {
    g_current = outer_;
    ::SendMessageA(window_, WM_SETREDRAW, TRUE, 0);
    if (::IsWindowVisible(window_))
        ::InvalidateRect(window_, nullptr, TRUE); // a null window would invalidate all windows
}

FillScope* FillScope::Of(HWND window) {
    for (FillScope* fill = g_current; fill; fill = fill->outer_) {
        if (fill->window_ == window) return fill;
    }
    return nullptr;
}

int FillScope::TextHeight() {
    if (!textHeight_) textHeight_ = ControlTextHeight(window_);
    return textHeight_;
}

int RowTextHeight(HWND window) {
    FillScope* const fill = FillScope::Of(window);
    return fill ? fill->TextHeight() : ControlTextHeight(window);
}

// A scope in which a control is filled. Internal to the library.
#pragma once

#include <windows.h>

// Suppresses redrawing while a control is filled, and measures its rows only once.
class FillScope {
public:
    enum class Items { Unsorted, Sorted };

    explicit FillScope(HWND window, Items items = Items::Unsorted);
    ~FillScope();
    FillScope(const FillScope&) = delete;
    FillScope& operator=(const FillScope&) = delete;

    // Returns the active scope of that window, or null.
    static FillScope* Of(HWND window);

    bool ItemsAreSorted() const { return items_ == Items::Sorted; }
    int TextHeight();

private:
    HWND window_;
    Items items_;
    int textHeight_ = 0; // 0: not yet measured
    FillScope* outer_;
};

// Returns the height of a row of text in device pixels: GetOwnerDrawFixedTextHeight, or that of the control's own font
// if it is larger. Measured once per scope, because a list with variable row heights measures every added item.
int RowTextHeight(HWND window);

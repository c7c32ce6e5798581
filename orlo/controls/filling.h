// A scope in which a control is filled. Internal to the library.
#pragma once

#include <windows.h>

// Suppresses redrawing while a control is filled, and measures its rows only once.
class Filling {
public:
    enum class Items { AsTheyCome, InFinalOrder };

    explicit Filling(HWND window, Items items = Items::AsTheyCome);
    ~Filling();
    Filling(const Filling&) = delete;
    Filling& operator=(const Filling&) = delete;

    // Returns the active scope of that window, or null.
    static Filling* Of(HWND window);

    bool ItemsInFinalOrder() const { return items_ == Items::InFinalOrder; }
    int TextHeight();

private:
    HWND window_;
    Items items_;
    int textHeight_ = 0; // 0: not yet measured
    Filling* outer_;
};

// Returns the height of a row of text in device pixels: GetOwnerDrawFixedTextHeight, or that of the control's own font
// if it is larger. Measured once per scope, because a list with variable row heights asks for every added item.
int RowTextHeight(HWND window);

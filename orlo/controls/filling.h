// The scope of one filling of a control. Internal to the library.
#pragma once

#include <windows.h>

// One filling of a control: it does not redraw until the end, and measures its rows once.
class Filling {
public:
    enum class Items { AsTheyCome, InFinalOrder };

    explicit Filling(HWND window, Items items = Items::AsTheyCome);
    ~Filling();
    Filling(const Filling&) = delete;
    Filling& operator=(const Filling&) = delete;

    // The filling of that window that is in progress, or null.
    static Filling* Of(HWND window);

    bool ItemsInFinalOrder() const { return items_ == Items::InFinalOrder; }
    int TextHeight();

private:
    HWND window_;
    Items items_;
    int textHeight_ = 0; // 0: not yet measured
    Filling* outer_;
};

// Height of a row of text in device pixels: GetOwnerDrawFixedTextHeight, or that of the control's own font if that is
// larger; determined once per filling. A list of variable row height asks for it with every item that is added.
int RowTextHeight(HWND window);

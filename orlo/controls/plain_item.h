// The data needed to draw an item that is a plain name without a key. Internal to the library.
#pragma once

#include "orlo/controls/combo_control.h"

struct PlainItem {
    unsigned int number; // one-based position in the list, or m_nSelected in a request without an item; 0 if unreadable
    char text[128];      // truncated if longer; empty if IsNothing

    bool IsNothing() const { return IsNoEntry(number); }
};

PlainItem RequestedItem(const CComboControl& control, const DRAWITEMSTRUCT& request);

// What is needed to draw an item of a combo whose items are plain names without a key. Internal to the library.
#pragma once

#include "orlo/controls/combo_control.h"

struct PlainItem {
    unsigned int number; // place in the list from 1, or m_nSelected in a request without an item; 0 if unreadable
    char text[128];      // a longer one is cut; empty if IsNothing

    bool IsNothing() const { return IsNoEntry(number); }
};

PlainItem RequestedItem(const CComboControl& control, const DRAWITEMSTRUCT& request);

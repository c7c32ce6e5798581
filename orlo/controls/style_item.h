// What an item of a control of style samples is made of, for line styles and brush styles alike. Internal to the
// library.
#pragma once

#include "orlo/controls/control_item.h"
#include "orlo/host/records.h"

// A style as an item shows it.
struct StyleItem {
    unsigned int style; // identifier
    const char* name;
    TableStruct* table;     // of the styles; null: only what the host's texts name can be shown
    GraphicStruct* graphic; // the sample; without one, or without a viewport, a style is shown by its name
    ViewportStruct* viewport;
};

// The item of an identifier that is not an entry, named by a text of the host.
ItemText HostTextItem(DWORD number, unsigned int stringID);

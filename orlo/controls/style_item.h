// The data needed to draw an item of a control of line style or brush style samples. Internal to the library.
#pragma once

#include "orlo/controls/control_item.h"
#include "orlo/host/records.h"

// A style shown by an item.
struct StyleItem {
    unsigned int style; // identifier
    const char* name;
    TableStruct* table;     // table of the styles; if null, only styles with a name supplied by the host can be shown
    GraphicStruct* graphic; // the sample; without a sample or a viewport, the name is shown
    ViewportStruct* viewport;
};

// Returns an item for an identifier that is not an entry, named by a string of the host.
ItemText HostTextItem(DWORD number, unsigned int stringID);

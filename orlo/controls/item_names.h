// The names of a control's items. Internal to the library.
#pragma once

#include <string>
#include <vector>

#include "orlo/controls/control_items.h"

// Caches the names of the items, because reading thousands of them takes longer than the time between two keystrokes.
// Items that are added at the end are appended; after other changes, all names are read again.
class ItemNames {
public:
    const std::vector<std::string>& Of(const ControlItems& items);
    // Must be called with each message that changes the items after the control has handled it.
    void Change(const ControlItems& items, UINT message, LPARAM lParam, LRESULT result);

private:
    std::vector<std::string> names_;
    bool isLoaded_ = false;
};

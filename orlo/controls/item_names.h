// The names of a control's items. Internal to the library.
#pragma once

#include <string>
#include <vector>

#include "orlo/controls/control_items.h"

// Keeps the names as items are added at the end: reading thousands of them takes longer than the time between two
// keystrokes. After other changes of the items they are read again.
class ItemNames {
public:
    const std::vector<std::string>& Of(const ControlItems& items);
    // Must be called with each message that changes the items after the control has handled it.
    void Change(const ControlItems& items, UINT message, LPARAM lParam, LRESULT result);

private:
    std::vector<std::string> names_;
    bool known_ = false;
};

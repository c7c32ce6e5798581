// The names of a control's items. Internal to the library.
#pragma once

#include <string>
#include <vector>

#include "orlo/controls/control_items.h"

// Caches the names until the items change: reading thousands of them takes longer than the time between two keystrokes.
class ItemNames {
public:
    const std::vector<std::string>& Of(const ControlItems& items);
    // Must be called with each message of the control before the control handles it.
    void Watch(const ControlItems& items, UINT message);

private:
    std::vector<std::string> names_;
    bool read_ = false;
};

// The names of a control's items. Internal to the library.
#pragma once

#include <string>
#include <vector>

#include "orlo/controls/control_items.h"

// Keeps the names that have been read until the items change: reading thousands of them takes longer than a user types
// a letter.
class ItemNames {
public:
    const std::vector<std::string>& Of(const ControlItems& items);
    // To be called with each message that the control gets, before the control handles it.
    void Watch(const ControlItems& items, UINT message);

private:
    std::vector<std::string> names_;
    bool read_ = false;
};

// The names of a control's items.

#include "orlo/controls/item_names.h"

#include "orlo/controls/control_item.h"

const std::vector<std::string>& ItemNames::Of(const ControlItems& items) {
    if (read_) return names_;
    const int count = items.Count();
    char text[kItemTextSize];
    names_.clear();
    for (int i = 0; i < count; ++i) {
        items.GetText(i, text, sizeof text);
        ParseControlItem(text);
        names_.emplace_back(text);
    }
    read_ = true;
    return names_;
}

void ItemNames::Watch(const ControlItems& items, UINT message) {
    if (items.IsChange(message) || message == WM_DESTROY) read_ = false;
}

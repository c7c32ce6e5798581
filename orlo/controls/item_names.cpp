// The names of a control's items.

#include "orlo/controls/item_names.h"

#include "orlo/controls/control_item.h"

const std::vector<std::string>& ItemNames::Of(const ControlItems& items) {
    if (isLoaded_) return names_;
    const int count = items.Count();
    char text[kItemTextSize];
    names_.clear();
    for (int i = 0; i < count; ++i) {
        items.GetText(i, text, sizeof text);
        ParseControlItem(text);
        names_.emplace_back(text);
    }
    isLoaded_ = true;
    return names_;
}

void ItemNames::Change(const ControlItems& items, UINT message, LPARAM lParam, LRESULT result) {
    const bool emptied = items.IsReset(message);
    const bool appended = isLoaded_ && items.IsAddition(message) && result == static_cast<LRESULT>(names_.size());
    isLoaded_ = emptied;
    if (emptied) names_.clear();
    if (!appended) return;
    char text[kItemTextSize];
    ::lstrcpynA(text, reinterpret_cast<const char*>(lParam), sizeof text);
    ParseControlItem(text);
    names_.emplace_back(text);
    isLoaded_ = true;
}

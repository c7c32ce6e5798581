// Creates menu items from texts.

#include "demo/viewer/drawing_menu.h"

namespace {

std::string ItemText(const std::string& text) {
    std::string item;
    for (const char character : text)
        item += character == '&' ? "&&" : std::string(1, character);
    return item;
}

} // namespace

void FillMenu(HMENU menu, const CommandRange& commands, const std::vector<std::string>& texts, const char* none) {
    while (::DeleteMenu(menu, 0, MF_BYPOSITION)) {
    }
    UINT command = commands.first;
    for (const std::string& text : texts) {
        if (command > commands.last) break;
        ::AppendMenuA(menu, MF_STRING, command++, ItemText(text).c_str());
    }
    if (texts.empty()) ::AppendMenuA(menu, MF_STRING | MF_GRAYED, commands.first, none);
}

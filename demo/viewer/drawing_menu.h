// Submenus whose items depend on the drawing or the user's files, and are created when they open.
#pragma once

#include <string>
#include <vector>

#include <windows.h>

// The commands of a submenu, one for each text in order.
struct CommandRange {
    UINT first, last;
};

// Replaces the items. Ampersands in texts are displayed. Texts beyond the range are omitted; without texts there is a
// disabled item `none`.
void FillMenu(HMENU menu, const CommandRange& commands, const std::vector<std::string>& texts, const char* none);

// Submenus whose items come from the drawing or the user's files, and are made anew when they open.
#pragma once

#include <string>
#include <vector>

#include <windows.h>

// The commands of a submenu: the first stands for the first text, and so on.
struct CommandRange {
    UINT first, last;

    bool Contains(UINT command) const { return first <= command && command <= last; }
};

// Replaces the items. Ampersands of the texts are shown; texts beyond the range are left out; without texts `none`
// stands there, gray.
void FillMenu(HMENU menu, const CommandRange& commands, const std::vector<std::string>& texts, const char* none);

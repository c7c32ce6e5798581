// Opens the user guide in the user's browser.
#pragma once

#include <windows.h>

#include <string>

// Returns the guide's anchor for a window: that of the active page of its sheet, else that of the viewer.
std::string HelpTopicOf(HWND window);

// Opens the guide at that anchor. Returns false after reporting a failure to the user.
bool ShowHelp(HWND owner, const std::string& topic);

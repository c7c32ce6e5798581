// The user guide, in the user's browser.
#pragma once

#include <windows.h>

#include <string>

// The guide's anchor for what the window belongs to: the page of a sheet that is in front, else the viewer.
std::string HelpTopicOf(HWND window);

// Shows the guide at that anchor. False: why not has been told to the user.
bool ShowHelp(HWND owner, const std::string& topic);

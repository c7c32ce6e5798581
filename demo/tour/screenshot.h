// Pictures of windows as PNG files.
#pragma once

#include <windows.h>

#include <string>

// Writes what the screen shows within the rectangle (screen pixels). Throws std::runtime_error with the reason.
void SaveScreenshot(const RECT& area, const std::string& path);

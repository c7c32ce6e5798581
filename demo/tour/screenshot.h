// Saves screenshots as PNG files.
#pragma once

#include <windows.h>

#include <string>

// Saves the screen contents of a rectangle in screen pixels. Throws std::runtime_error with the reason.
void SaveScreenshot(const RECT& area, const std::string& path);

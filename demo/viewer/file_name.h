// Converts file names between UTF-8, used in the demo, UTF-16 for the system, and the system's 8-bit code page for
// window texts.
#pragma once

#include <string>

std::string Utf8(const wchar_t* text);
std::wstring Wide(const std::string& utf8);

// Returns the name without the folder.
std::string WithoutFolder(const std::string& path);

std::string Utf8FromSystem(const char* text);
// Characters that the code page cannot represent become question marks.
std::string SystemText(const std::string& utf8);

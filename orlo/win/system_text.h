// Text in the code page of the system, as interfaces of 8-bit characters have it.
#pragma once

#include <string>

// As the system's wide text, for calls that have no other form.
std::wstring Wide(const char* text);

// Conversion between wide text and text in the code page of the system, as interfaces of 8-bit characters have it.
#pragma once

#include <string>

// To wide text, for calls that have no other form.
std::wstring Wide(const char* text);

// From wide text. What does not fit the buffer of that size is cut off; a character that the code page lacks becomes a blank.
void Narrow(const wchar_t* text, char* buffer, int size);

// All streams of a compound file, by the system's own reading.
#pragma once

#include <windows.h>

#include <objbase.h>

#include <cstdint>
#include <map>
#include <string>
#include <vector>

// "Outer/Inner" to bytes. What the system can't read is left out.
std::map<std::u16string, std::vector<uint8_t>> SystemStreamsOf(IStorage* storage);

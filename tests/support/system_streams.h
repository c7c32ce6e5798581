// Reads all streams of a compound file with the system's functions.
#pragma once

#include <windows.h>

#include <objbase.h>

#include <cstdint>
#include <map>
#include <string>
#include <vector>

// Maps paths such as "Outer/Inner" to bytes. Streams that the system cannot read are left out.
std::map<std::u16string, std::vector<uint8_t>> SystemStreamsOf(IStorage* storage);

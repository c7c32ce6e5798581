// Reads and writes the dictionary of a section in a SetImage. Internal to the library.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "orlo/propset/image_writer.h"
#include "orlo/propset/inspect/report.h"

namespace orlo {

struct ImageDictionary {
    std::vector<DictionaryEntry> entries;
    size_t size; // stored size in bytes
};

// Returns true if the dictionary has as many names as its count states.
bool IsWholeDictionary(const uint8_t* bytes, size_t size, uint16_t codePage);

// Reads a dictionary. Names are packed 8-bit texts in the code page; under code page 1200 they are 16-bit characters
// padded to 4 bytes, or 8-bit texts as CPropertySection writes them. `place` names the section in findings; `offset` is
// the offset of the dictionary. Returns nothing if not even the first name is complete.
std::optional<ImageDictionary> ReadImageDictionary(const uint8_t* bytes, size_t size, uint16_t codePage,
                                                   uint64_t offset, const std::string& place, Report& report);

// Returns false if the code page cannot represent a name.
bool AppendImageDictionary(const std::vector<DictionaryEntry>& entries, uint16_t codePage, ImageWriter& image);

} // namespace orlo

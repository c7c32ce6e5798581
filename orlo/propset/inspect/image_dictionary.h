// The name dictionary of a section as SetImage has it, from and to the stream. Used inside the library.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "orlo/propset/image_writer.h"
#include "orlo/propset/inspect/report.h"

namespace orlo {

struct ImageDictionary {
    std::vector<DictionaryEntry> entries;
    size_t size; // on the stream
};

// True if it has as many names as it announces.
bool IsWholeDictionary(const uint8_t* bytes, size_t size, uint16_t codePage);

// Names are 8-bit texts of the code page, packed; under code page 1200 they are 16-bit characters padded to 4
// bytes, or 8-bit texts after all, as CPropertySection writes them. `place` names the section in findings,
// `offset` is where the dictionary is. Nothing if even its first name is missing.
std::optional<ImageDictionary> ReadImageDictionary(const uint8_t* bytes, size_t size, uint16_t codePage,
                                                   uint64_t offset, const std::string& place, Report& report);

// False if the code page can't represent a name.
bool AppendImageDictionary(const std::vector<DictionaryEntry>& entries, uint16_t codePage, ImageWriter& image);

} // namespace orlo

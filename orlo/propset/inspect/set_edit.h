// Edits a SetImage: sections, values, names, and the code page of a section. Everything else keeps its bytes.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "orlo/propset/inspect/set_image.h"

namespace orlo {

// Returns the section with that format, adding it with the code page if needed. Readers expect the user-defined section
// to be second: if there is no document summary, an empty one is added before it.
ORLO_API ImageSection& SectionFor(SetImage& image, const GUID& format, uint16_t codePage);

// Stores the bytes of a value in the form that EncodeValue returns.
ORLO_API void StoreValue(ImageSection& section, uint32_t id, uint32_t type, Bytes bytes);
// Returns false if there is no such property.
ORLO_API bool RemoveValue(ImageSection& section, uint32_t id);

// Returns the dictionary entry with that name, ignoring case, or null.
ORLO_API const DictionaryEntry* FindName(const ImageSection& section, const std::string& name);
// Sets the name of a property.
ORLO_API void StoreName(ImageSection& section, uint32_t id, const std::string& name);
ORLO_API void RemoveName(ImageSection& section, uint32_t id);

// Converts all texts and names to UTF-8. If a property is not text in the section's code page, returns the ID of the
// first such property and changes nothing.
ORLO_API std::optional<uint32_t> ConvertToUtf8(ImageSection& section);
// Returns true for types whose bytes depend on the code page.
ORLO_API bool HasCodePageText(uint32_t type);

} // namespace orlo

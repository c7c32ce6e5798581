// Changes to a SetImage: sections on demand, values, names, and the code page of a section. Whatever is not touched
// keeps its bytes.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "orlo/propset/inspect/set_image.h"

namespace orlo {

// Returns the section of that format; a new one gets the code page. The user-defined section comes second, where
// readers look for it: an empty document summary is added before it if there is none.
ORLO_API ImageSection& SectionFor(SetImage& image, const GUID& format, uint16_t codePage);

// Stores the bytes of a value, as EncodeValue returns them.
ORLO_API void StoreValue(ImageSection& section, uint32_t id, uint32_t type, Bytes bytes);
// Returns false if there is no such property.
ORLO_API bool RemoveValue(ImageSection& section, uint32_t id);

// Returns the entry of a name, in any case, or null.
ORLO_API const DictionaryEntry* FindName(const ImageSection& section, const std::string& name);
// Replaces the name of a property, or adds it.
ORLO_API void StoreName(ImageSection& section, uint32_t id, const std::string& name);
ORLO_API void RemoveName(ImageSection& section, uint32_t id);

// Converts all texts and names to UTF-8. Returns the first property that is not text of the section's code page; then
// the section is unchanged.
ORLO_API std::optional<uint32_t> ConvertToUtf8(ImageSection& section);
// Returns true for types whose bytes depend on the code page.
ORLO_API bool HasCodePageText(uint32_t type);

} // namespace orlo

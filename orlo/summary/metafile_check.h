// Reads the header of a metafile picture and checks all its records, so that the system can safely play them. Needs no
// window header.
//
// A metafile is accepted if all records are complete, all counts inside a record (points, text, bitmap, palette,
// region) are consistent with its size, all objects that are used have a slot, all patterns together have at most 16
// million pixels, and it restores only states that it has saved. The player limits sizes that depend on the mapping.
// Unknown records are accepted, because the system skips them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>

namespace orlo {

struct MetaFilePicture {
    int32_t xExtent = 0; // in units of the header's mapping mode; only the ratio is used
    int32_t yExtent = 0;
    const uint8_t* bits = nullptr; // the metafile's bytes, inside the checked block
    size_t size = 0;               // in bytes, according to its header
    size_t end = 0;                // offset of the end of its last record, excluding the end-of-file record
};

// Returns nothing if the picture of size bytes at data cannot be played safely to its end.
std::optional<MetaFilePicture> ReadMetaFilePicture(const uint8_t* data, size_t size);

} // namespace orlo

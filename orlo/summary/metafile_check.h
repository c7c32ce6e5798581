// Reads the head of a metafile picture and checks every record after it, so that the system can play them.
// Plays nothing and needs no window header.
//
// A metafile passes if all records lie inside it, every count inside a record (points, text, bitmap, palette,
// region) lies inside the record, every object that is used has a slot, all patterns together have no more than
// 16 million pixels, and the state that is restored was saved by the same metafile. Sizes that depend on the
// mapping are left to the player. Records that no table here knows pass: the system skips what it doesn't know.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>

namespace orlo {

struct MetaFilePicture {
    int32_t xExtent = 0; // in units of the head's mapping mode; only the proportion counts
    int32_t yExtent = 0;
    const uint8_t* bits = nullptr; // the metafile's own bytes, inside the block that was checked
    size_t size = 0;               // bytes, as its header says
    size_t end = 0;                // bytes to the end of its last record, without the one that marks the end
};

// Nothing for a picture that can't be played to its end without harm; data has size bytes.
std::optional<MetaFilePicture> ReadMetaFilePicture(const uint8_t* data, size_t size);

} // namespace orlo

// The property sets of C programs. Handles are numbers that are never reused.
#pragma once

#include <orlo_c.h>

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "orlo/propset/inspect/set_image.h"

namespace orlo {

// The stream of a compound file that a set was read from or saved to, with its bytes at that time.
struct Origin {
    std::filesystem::path file;
    std::string stream;
    Bytes bytes;
};

struct OpenSet {
    SetImage image;
    std::vector<Finding> findings = {}; // of the stream that it was read from
    std::optional<Origin> origin = {};

    // Returns whether the stream could not be read completely, so that the set is not written again.
    bool IsDamaged() const;
};

// Throws CallError if the handle was never issued or is closed.
std::shared_ptr<OpenSet> RequireSet(OrloPropset handle);
// Also throws CallError if the set is damaged. For sets that will be changed or written.
std::shared_ptr<OpenSet> RequireUndamagedSet(OrloPropset handle);
OrloPropset AddSet(OpenSet set);
void Release(OrloPropset handle);

const GUID& AsGuid(const OrloGuid& format);
// Returns the first section of that format. Throws CallError if there is none.
ImageSection& RequireSection(SetImage& image, const OrloGuid* format);
ImageProperty& RequireProperty(SetImage& image, const OrloGuid* format, uint32_t id);

// Copies bytes to the caller's buffer. size: in, the capacity of the buffer; out, the number of bytes. With a null
// buffer only the number is stored. Throws CallError if the buffer is too small.
void CopyOut(const void* bytes, size_t count, void* buffer, size_t* size);

} // namespace orlo

// The property sets that programs in C hold: found by their handles, which are numbers that no later set gets again.
#pragma once

#include <orlo_c.h>

#include <filesystem>
#include <memory>
#include <optional>
#include <string>

#include "orlo/propset/inspect/set_image.h"

namespace orlo {

// The stream of a compound file that a set was read from or saved to, as it was then.
struct Origin {
    std::filesystem::path file;
    std::string stream;
    Bytes bytes;
};

struct HeldSet {
    SetImage image;
    bool isDamaged = false; // part of what the stream announces could not be read; it is not written again
    std::optional<Origin> origin = {};
};

// Throws Refusal for a handle that was never issued or is closed.
std::shared_ptr<HeldSet> Held(OrloPropset handle);
// The same for a set that is to be changed or written.
std::shared_ptr<HeldSet> HeldWhole(OrloPropset handle);
OrloPropset Hold(HeldSet set);
void Release(OrloPropset handle);

const GUID& AsGuid(const OrloGuid& format);
// Of the first section of that format. Throws Refusal if there isn't one.
ImageSection& SectionOf(SetImage& image, const OrloGuid* format);
ImageProperty& PropertyOf(SetImage& image, const OrloGuid* format, uint32_t id);

// size: the room in the buffer, then the count. A null buffer asks for the count alone.
void HandOut(const void* bytes, size_t count, void* buffer, size_t* size);

} // namespace orlo

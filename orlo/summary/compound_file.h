// Compound files of a disk, read by compound_reader.h.
#pragma once

#include <filesystem>
#include <string_view>

#include "orlo/summary/compound_reader.h"

namespace orlo {

// Opens a file, which the reader then keeps open; other programs may read, write and replace it meanwhile. A pipe or a
// device reads as empty. Throws std::runtime_error if the file cannot be opened.
ORLO_API CompoundReader OpenCompoundFile(const std::filesystem::path& file);
// Returns CompoundState::foreign also for a file that cannot be opened.
CompoundState StateOfCompoundFile(const std::filesystem::path& file);
// Returns the stream of that name (UTF-8, in any case) outside of inner storages, or null.
ORLO_API const CompoundStream* FindStream(const CompoundReader& file, std::string_view name);

} // namespace orlo

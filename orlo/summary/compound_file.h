// Opens compound files on disk and in memory for compound_reader.h.
#pragma once

#include <filesystem>
#include <memory>
#include <string_view>

#include "orlo/summary/compound_reader.h"

namespace orlo {

// Opens a file, which stays open as long as the reader exists; other programs can still read, write and replace it. A
// pipe or a device is treated as empty. Throws std::runtime_error if the file cannot be opened.
ORLO_API CompoundReader OpenCompoundFile(const std::filesystem::path& file);
// Reads a file in memory.
ORLO_API CompoundReader ReadCompoundFile(std::shared_ptr<const std::vector<uint8_t>> bytes);
// Returns CompoundState::foreign also for a file that cannot be opened.
CompoundState StateOfCompoundFile(const std::filesystem::path& file);
// Returns the stream with that name (UTF-8, ignoring case) in the root storage, or null.
ORLO_API const CompoundStream* FindStream(const CompoundReader& file, std::string_view name);

} // namespace orlo

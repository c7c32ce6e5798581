// Writes a compound file with a new layout: the streams of another one, some of them replaced or added. Needs no window
// header.
//
//   StreamsToWrite streams;
//   streams[u"\005SummaryInformation"] = bytes;
//   WriteCompoundFile(&original, streams, append);
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "orlo/summary/compound_reader.h"

namespace orlo {

// Streams of the root storage by name.
using StreamsToWrite = std::map<std::u16string, std::vector<uint8_t>>;

// Returns true for a name that storages accept.
bool IsStreamName(std::u16string_view name);

// Appends a compound file with the version and sector size of the original, which must be intact, or a new one of
// version 3 if there is none. Streams that are not replaced, and the directory's data on storages and streams, are
// preserved; sectors that belong to no stream are omitted. A replaced stream keeps the case of its name. Streams are
// copied piece by piece. Throws std::runtime_error if the original cannot be read or the result would be too large, and
// any exception of `append`.
void WriteCompoundFile(const CompoundReader* original, const StreamsToWrite& streams,
                       const std::function<void(std::string_view bytes)>& append);

} // namespace orlo

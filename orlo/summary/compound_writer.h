// Lays a compound file out anew: the streams of another one, some of them replaced or added. Needs no window header.
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

// Streams outside of inner storages by their names.
using StreamsToWrite = std::map<std::u16string, std::vector<uint8_t>>;

// Returns true for a name that storages accept.
bool IsStreamName(std::u16string_view name);

// Appends a compound file of version and sector size of the original, which must be sound; without an original, a new
// one of version 3. Streams that are not replaced, and everything that the directory says of storages and streams, stay
// as they are; sectors that belong to no stream are left out. A replaced stream keeps the case of its name. One piece
// of a stream is in memory at a time. Throws std::runtime_error if the original cannot be read or would become too
// large, and whatever `append` throws.
void WriteCompoundFile(const CompoundReader* original, const StreamsToWrite& streams,
                       const std::function<void(std::string_view bytes)>& append);

} // namespace orlo

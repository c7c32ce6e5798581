// Reads ASCII DXF, R12 to 2018, from a buffer into a Document, without windows.
//
//   dxf::Document drawing = dxf::Read(bytes, {});
//   dxf::Read("0\nSECTION\n", {}); // throws dxf::ReadError: "line 2: the file is truncated: it ends within a section"
//
// A file with a broken structure (a group code that is not a number, a section that does not end, no EOF) is rejected.
// A single invalid value or reference affects only its entity and is reported as a warning.
#pragma once

#include <cstddef>
#include <functional>
#include <string_view>

#include "drawcore/include/drawcore/dxf_document.h"
#include "drawcore/src/dxf/document.h"

namespace dxf {

// Called repeatedly with the completed share, ascending from 0 to 1000; at least once, and with 1000 at the end.
using Progress = std::function<void(int permille)>;
inline int Permille(size_t done, size_t total) {
    return static_cast<int>(static_cast<double>(done) / static_cast<double>(total) * 1000);
}

// The bytes need not outlive the call. Throws ReadError and std::bad_alloc.
Document Read(std::string_view bytes, const Progress& progress);

// Returns the bytes that Read parses: all but a UTF-8 byte order mark, which is also not included in offsets of
// entities.
std::string_view TextOf(std::string_view bytes);

} // namespace dxf

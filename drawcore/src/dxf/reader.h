// Reads ASCII DXF, R12 to 2018, from a buffer into a Document. Opens no window; makes no picture.
//
//   dxf::Document drawing = dxf::Read(bytes, {});
//   dxf::Read("0\nSECTION\n", {});   // throws dxf::ReadError: "line 2: the file ends within a section ..."
//
// A file whose structure is broken (a group code that is not a number, a section that does not end, no EOF) is
// refused. A single value or reference that makes no sense costs its entity only, and a finding says so.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "drawcore/include/drawcore/dxf_document.h"
#include "drawcore/src/dxf/document.h"

namespace dxf {

// Called now and then with the share that is done, 0 to 1000, rising; once at least, and with 1000 at the
// end.
using Progress = std::function<void(int permille)>;
inline int Permille(size_t done, size_t whole) {
    return static_cast<int>(static_cast<double>(done) / static_cast<double>(whole) * 1000);
}

// The bytes need not outlive the call. Throws ReadError, std::bad_alloc.
Document Read(std::string_view bytes, const Progress& progress);

// What Read reads of the bytes of a file: all but a UTF-8 mark in front, which offsets of entities don't count either.
std::string_view TextOf(std::string_view bytes);

} // namespace dxf

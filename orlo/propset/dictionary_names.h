// The names of a dictionary as stored: packed 8-bit texts, or 16-bit characters padded to 4 bytes. Internal to the
// library.
#pragma once

#include <afx.h>

#include <string>
#include <vector>

#include "orlo/propset/image_writer.h"
#include "orlo/propset/stream_reader.h"

namespace orlo {

struct StoredName {
    uint32_t id;
    ULONGLONG at;      // position of its first byte
    size_t storedSize; // in bytes
    std::string bytes; // up to the NUL

    bool HasNul() const { return bytes.size() < storedSize; }
};

struct StoredNames {
    bool isWide;
    uint32_t count; // as stored
    std::vector<StoredName> names;
    bool isWhole; // as many names as the count states
};

inline size_t UnitSize(bool isWide) {
    return isWide ? 2 : 1;
}
// Returns the number of bytes between a name of that stored size and the next entry.
inline size_t NamePadding(size_t size, bool isWide) {
    return isWide ? size % 4 : 0; // at most two bytes
}

// Reads a dictionary, as far as it is complete and names have at most that many bytes or 16-bit characters, and leaves
// the reader after the last name. Under code page 1200, names have 16-bit characters unless only 8-bit names, as
// CPropertySection writes them, are valid.
StoredNames ReadNames(StreamReader& reader, uint16_t codePage, uint32_t longest);

// Returns the number of bytes of a name stored by CPropertySection: including the NUL for up to 254 characters; a
// longer name is truncated to 255 characters without a NUL.
DWORD StoredNameSize(const CString& name);
void AppendName(ImageWriter& image, DWORD id, const CString& name);

} // namespace orlo

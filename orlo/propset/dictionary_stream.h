// The stored entries of a dictionary: property ID, length and name. Internal to the library.
#pragma once

#include <afx.h>

#include "orlo/propset/image_writer.h"
#include "orlo/propset/stream_reader.h"

namespace orlo {

// Returns the number of bytes of a stored name: including the NUL for up to 254 characters; a longer name is truncated
// to 255 characters without a NUL.
DWORD StoredNameSize(const CString& name);
void AppendName(ImageWriter& image, DWORD id, const CString& name);

// Read the next entry. Return false if it is truncated or its name is longer than 256 bytes (characters for a 16-bit
// name). A 16-bit name that the system's code page cannot represent becomes empty.
bool ReadName(StreamReader& reader, uint32_t& id, CString& name);
bool ReadWideName(StreamReader& reader, uint32_t& id, CString& name);

// Returns true if the dictionary at the reader's position is valid with names of 16-bit characters, each terminated by
// a NUL and padded to 4 bytes. Does not move the reader.
bool AreNamesWide(StreamReader& reader);

} // namespace orlo

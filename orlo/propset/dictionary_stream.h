// The entries of a name dictionary on the stream: an ID, the name's length, the name. Used inside the
// library.
#pragma once

#include <afx.h>

#include "orlo/propset/image_writer.h"
#include "orlo/propset/stream_reader.h"

namespace orlo {

// The name's bytes on the stream: with its NUL up to 254 characters; a longer name is cut to 255 and has
// none.
DWORD StoredNameSize(const CString& name);
void AppendName(ImageWriter& image, DWORD id, const CString& name);

// The next entry; false if it is cut short or its name is longer than 256 bytes (characters for a wide one). A
// wide name that the system's code page can't represent is empty.
bool ReadName(StreamReader& reader, uint32_t& id, CString& name);
bool ReadWideName(StreamReader& reader, uint32_t& id, CString& name);

// True if the dictionary at the reader's position makes sense with names of 16-bit characters, each to its
// NUL and padded to 4 bytes. The reader stays where it is.
bool AreNamesWide(StreamReader& reader);

} // namespace orlo

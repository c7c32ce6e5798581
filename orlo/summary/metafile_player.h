// Plays a metafile whose records have been checked, and limits what they ask of the system.
#pragma once

#include <windows.h>

namespace orlo {

// Plays the records into dc, whose mapping gives the picture its place.
//
// Skipped: what would change the palette of the whole system, what only a device of its own would
// understand, and what would take the system more memory than a picture is worth: shapes that reach far beyond
// every screen, very wide pens, and text once the glyphs of the picture are large enough to fill one many times.
void PlayPicture(HDC dc, HMETAFILE metafile);

} // namespace orlo

// Plays a metafile whose records have been checked, limiting the system resources that it uses.
#pragma once

#include <windows.h>

namespace orlo {

// Plays the records into dc, whose mapping determines the position of the picture.
//
// Skips records that would change the system palette, that only certain devices support, or that would take excessive
// memory: shapes far outside the screen, very wide pens, and text whose glyphs would cover the picture many times.
void PlayPicture(HDC dc, HMETAFILE metafile);

} // namespace orlo

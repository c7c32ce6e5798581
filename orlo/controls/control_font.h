// The font shared by all controls of the library. The DLL entry function releases it.
#pragma once

#include <windows.h>

// Returns the font, creating it at the first call. Returns null if it cannot be created; the next call tries again.
HFONT SharedControlFont();

// Releases the font at process detach.
void ReleaseSharedFont();

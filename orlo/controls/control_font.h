// The font that all controls of the library share. The module entry releases it.
#pragma once

#include <windows.h>

// Made at the first call; null if it cannot be made, in which case the next call tries again.
HFONT SharedControlFont();

// At process detach.
void ReleaseSharedFont();

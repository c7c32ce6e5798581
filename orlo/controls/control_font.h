// The font that all controls of the library share. The module entry releases it.
#pragma once

#include <windows.h>

// Made at the first call; null if it cannot be made, and tried again at the next.
HFONT SharedControlFont();

// At process detach.
void ReleaseSharedFont();

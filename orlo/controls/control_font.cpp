// The font shared by all controls of the library.

#include "orlo/controls/control_font.h"

#include <cstring>

#include "orlo/win/gdi.h"
#include "orlo/win/screen_scale.h"

namespace {

orlo::OwnedFont CreateSharedFont() {
    LOGFONTA font = {};
    font.lfHeight = -ScreenPixels(12);
    font.lfWeight = FW_NORMAL;
    font.lfCharSet = DEFAULT_CHARSET;
    std::strcpy(font.lfFaceName, "MS Sans Serif");
    return orlo::OwnedFont(::CreateFontIndirectA(&font));
}

orlo::OwnedFont g_font;

} // namespace

HFONT SharedControlFont() {
    if (!g_font) g_font = CreateSharedFont();
    return g_font.get();
}

void ReleaseSharedFont() {
    g_font.reset();
}

// Draws a color as a swatch with its name.

#include "orlo/controls/color_swatch.h"

#include <cstring>

#include "orlo/controls/paint.h"
#include "orlo/host/application.h"
#include "orlo/win/realized_palette.h"

namespace {

constexpr COLORREF kBlack = RGB(0, 0, 0);
constexpr COLORREF kWhite = RGB(255, 255, 255);
constexpr DWORD kMarkerBits = 0xFF000000;
constexpr DWORD kPaletteRelative = 0x02000000;

orlo::OwnedFont BoldVersion(HFONT font) {
    LOGFONTA description = {};
    if (!font || !::GetObjectA(font, sizeof description, &description)) return nullptr;
    description.lfWeight = FW_BOLD;
    return orlo::OwnedFont(::CreateFontIndirectA(&description));
}

// Returns white for a dark color, judged by the mean of its channels, unless it would be hard to read: a bright green
// has a low mean.
COLORREF ReadableOn(DWORD color) {
    const int mean = (GetRValue(color) + GetGValue(color) + GetBValue(color)) / 3;
    return mean < 0x80 && Contrast(kWhite, color) >= kReadableContrast ? kWhite : kBlack;
}

void FillWithColor(HDC dc, const RECT& rect, DWORD color) {
    HPALETTE palette = nullptr;
    if (::IsPaletteSupported(dc)) {
        const AppStruct* const application = ::AppGetCurrentApp();
        palette = application ? application->hPalette : nullptr;
        color |= kPaletteRelative;
    }
    const RealizedPalette realized(dc, palette);
    const orlo::OwnedBrush brush(::CreateSolidBrush(color));
    ::FillRect(dc, &rect, brush.get());
}

// Draws the name in bold, centered. With keepStart, a name that is too wide is aligned left instead.
void DrawName(const SwatchPlace& place, RECT rect, const char* name, COLORREF color, bool keepStart) {
    const orlo::OwnedFont bold = BoldVersion(place.font);
    const orlo::SelectedObject selected(place.dc, bold.get());
    const orlo::TextColor colors(place.dc, color);
    SIZE size = {};
    ::GetTextExtentPoint32A(place.dc, name, static_cast<int>(std::strlen(name)), &size);
    const bool centered = !keepStart || rect.right - rect.left > size.cx;
    ::DrawTextA(place.dc, name, -1, &rect, DT_SINGLELINE | DT_VCENTER | (centered ? DT_CENTER : DT_LEFT));
}

void DrawLabel(const SwatchPlace& place, const RECT& frame, COLORREF frameColor, int frameWidth, const char* name) {
    FrameRectangle(place.dc, frame, frameColor, frameWidth);
    DrawClippedText(place.dc, place.rect.left + 4, CenteredTextTop(place.dc, place.rect, 1), place.rect, name,
                    place.textColor);
}

// A swatch in the color of the background needs a frame. In a list the frame stays within the row, because neighboring
// rows are not redrawn with it.
void DrawFramed(const SwatchPlace& place, DWORD color, const char* name) {
    const RECT frame = Inflated(place.rect, place.inField ? 1 : -1);
    FillSolid(place.dc, place.rect, color);
    FrameRectangle(place.dc, frame, place.textColor, 2);
    DrawName(place, frame, name, ReadableOn(color), false);
}

} // namespace

void DrawSwatch(const SwatchPlace& place, DWORD color, const char* name) {
    const RECT cleared = place.inField ? Inflated(place.rect, 2) : place.rect;
    FillSolid(place.dc, cleared, place.background);
    if (color & kMarkerBits) {
        if (*name) DrawLabel(place, Inflated(cleared, -1), place.textColor, 1, name);
    } else if (place.disabled) {
        DrawLabel(place, Inflated(place.rect, -1), color, 2, name);
    } else if (color == kWhite || color == place.background) {
        DrawFramed(place, color, name);
    } else {
        FillWithColor(place.dc, place.rect, color);
        DrawName(place, place.rect, name, ReadableOn(color), true);
    }
}

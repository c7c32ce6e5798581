// Measures a dialog template.

#include "orlo/frame/dialog_measure.h"

#include "orlo/frame/template_words.h"
#include "orlo/win/encoded_text.h"
#include "orlo/win/gdi.h"
#include "orlo/win/screen_scale.h"

namespace {

constexpr size_t kFaceSize = 128;

struct DialogFont {
    char face[kFaceSize] = "System";
    int points = 8;
};

struct DialogTemplate {
    DialogFont font;
    int width = 250; // in dialog units
    int height = 62;
};

// Reads at most to the end of the memory mapping, since the exact size of a locked resource is unknown.
TemplateWords WordsOfResource(const void* start) {
    MEMORY_BASIC_INFORMATION region;
    if (::VirtualQuery(start, &region, sizeof region) == 0) return {start, 0};
    const auto* end = static_cast<const char*>(region.BaseAddress) + region.RegionSize;
    return {start, static_cast<size_t>(end - static_cast<const char*>(start))};
}

bool ReadFont(TemplateWords& words, DialogFont& font) {
    WORD points;
    std::wstring face;
    if (!words.Read(points) || !words.ReadText(face)) return false;
    font.points = points;
    const size_t length = orlo::Narrow(face, CP_ACP).copy(font.face, sizeof font.face - 1);
    font.face[length] = '\0';
    return true;
}

DialogTemplate ReadTemplate(const void* resource) {
    DialogTemplate result;
    TemplateWords words = WordsOfResource(resource);
    WORD styleLow, width, height;
    const size_t afterStyle = 14 - sizeof styleLow; // extended style, item count and position are not needed
    if (!words.Read(styleLow) || !words.SkipBytes(afterStyle) || !words.Read(width) || !words.Read(height))
        return result;
    result.width = width;
    result.height = height;
    if (words.SkipNameOrNumber() && words.SkipNameOrNumber() && words.SkipNameOrNumber() && (styleLow & DS_SETFONT))
        ReadFont(words, result.font);
    return result;
}

// Returns the dialog base units of a font: average character width and height.
CSize BaseUnits(const DialogFont& font) {
    const orlo::OwnedDC screen(::CreateCompatibleDC(nullptr));
    LOGFONTA description = {};
    description.lfHeight = FontHeight(screen.get(), font.points);
    description.lfWeight = FW_BOLD;
    description.lfCharSet = DEFAULT_CHARSET;
    lstrcpynA(description.lfFaceName, font.face, LF_FACESIZE);
    CFont created;
    if (!created.CreateFontIndirect(&description)) {
        const LONG units = ::GetDialogBaseUnits();
        return CSize(LOWORD(units), HIWORD(units));
    }
    const orlo::SelectedObject selected(screen.get(), created.m_hObject);
    TEXTMETRICA metrics;
    ::GetTextMetricsA(screen.get(), &metrics);
    const bool isVariable =
        (metrics.tmPitchAndFamily & TMPF_FIXED_PITCH) != 0; // contrary to its name, the bit means variable pitch
    return CSize(isVariable ? AverageLetterWidth(screen.get()) : metrics.tmAveCharWidth, metrics.tmHeight);
}

} // namespace

CSize MeasureDialog(void* hDialog) {
    const void* resource = hDialog != nullptr ? ::LockResource(hDialog) : nullptr;
    const DialogTemplate dialog = resource != nullptr ? ReadTemplate(resource) : DialogTemplate();
    const CSize base = BaseUnits(dialog.font);
    return CSize(::MulDiv(dialog.width, base.cx, 4), ::MulDiv(dialog.height, base.cy, 8));
}

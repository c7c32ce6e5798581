// Measures a dialog template.

#include "orlo/frame/dialog_measure.h"

#include <cstring>

#include "orlo/win/encoded_text.h"
#include "orlo/win/gdi.h"
#include "orlo/win/screen_scale.h"

namespace {

constexpr WORD kOrdinal = 0xFFFF; // marks a number in place of a name
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

// Reads the words of a locked resource, at most to the end of its memory mapping, since its exact size is unknown.
class TemplateWords {
public:
    explicit TemplateWords(const void* start) : m_next(static_cast<const char*>(start)), m_left(0) {
        MEMORY_BASIC_INFORMATION region;
        if (::VirtualQuery(start, &region, sizeof region) == 0) return;
        m_left = static_cast<const char*>(region.BaseAddress) + region.RegionSize - m_next;
    }

    bool Read(WORD& word) {
        if (m_left < sizeof word) return false;
        std::memcpy(&word, m_next, sizeof word);
        m_next += sizeof word;
        m_left -= sizeof word;
        return true;
    }

    bool SkipBytes(size_t count) {
        if (m_left < count) return false;
        m_next += count;
        m_left -= count;
        return true;
    }

    // Reads NUL-terminated text and copies at most `size` characters of it to `text` unless null.
    bool ReadText(wchar_t* text, size_t size) {
        WORD word;
        for (size_t i = 0; Read(word); ++i) {
            if (text != nullptr && i < size) text[i] = word;
            if (word == 0) return true;
        }
        return false;
    }

    bool SkipNameOrOrdinal() {
        WORD first;
        if (!Read(first)) return false;
        if (first == kOrdinal) return SkipBytes(sizeof first);
        return first == 0 || ReadText(nullptr, 0);
    }

private:
    const char* m_next;
    size_t m_left;
};

bool ReadFont(TemplateWords& words, DialogFont& font) {
    WORD points;
    wchar_t face[kFaceSize] = {};
    if (!words.Read(points) || !words.ReadText(face, kFaceSize - 1)) return false;
    font.points = points;
    const size_t length = orlo::Narrow(face, CP_ACP).copy(font.face, sizeof font.face - 1);
    font.face[length] = '\0';
    return true;
}

DialogTemplate ReadTemplate(const void* resource) {
    DialogTemplate result;
    TemplateWords words(resource);
    WORD styleLow, width, height;
    const size_t afterStyle = 14 - sizeof styleLow; // extended style, item count and position are not needed
    if (!words.Read(styleLow) || !words.SkipBytes(afterStyle) || !words.Read(width) || !words.Read(height))
        return result;
    result.width = width;
    result.height = height;
    const bool named = words.SkipNameOrOrdinal() && words.SkipNameOrOrdinal() && words.ReadText(nullptr, 0);
    if (named && (styleLow & DS_SETFONT)) ReadFont(words, result.font);
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
    const bool isVariable = (metrics.tmPitchAndFamily & TMPF_FIXED_PITCH) != 0; // the name of the bit is wrong
    return CSize(isVariable ? AverageLetterWidth(screen.get()) : metrics.tmAveCharWidth, metrics.tmHeight);
}

} // namespace

CSize MeasureDialog(void* hDialog) {
    const void* resource = hDialog != nullptr ? ::LockResource(hDialog) : nullptr;
    const DialogTemplate dialog = resource != nullptr ? ReadTemplate(resource) : DialogTemplate();
    const CSize base = BaseUnits(dialog.font);
    return CSize(::MulDiv(dialog.width, base.cx, 4), ::MulDiv(dialog.height, base.cy, 8));
}

// Checks a value: texts, padding, Booleans, clipboard data.

#include "orlo/propset/inspect/value_findings.h"

#include <cstdio>

#include "orlo/propset/code_page.h"
#include "orlo/propset/value_walk.h"

namespace orlo {

namespace {

// The check of one element of a property.
struct ElementCheck {
    uint16_t codePage; // for texts; always 1200 for LPWSTR
    uint64_t offset;
    const std::string& section;
    uint32_t property;
    Report& report;

    template <class... Parts>
    void Add(FindingCode code, Severity severity, const Parts&... parts) const {
        report.Add(code, severity, offset, section, ", property ", property, ": ", parts...);
    }
};

// Returns the length of the text up to its first NUL, or of all its bytes.
size_t TextEnd(std::string_view text, bool isWide) {
    const size_t unit = isWide ? 2 : 1;
    for (size_t i = 0; i + unit <= text.size(); i += unit)
        if (text[i] == '\0' && text[i + unit - 1] == '\0') return i;
    return text.size();
}

void CheckText(std::string_view bytes, const ElementCheck& check) {
    const bool isWide = check.codePage == kCodePageUtf16;
    const size_t end = TextEnd(bytes, isWide);
    const std::string_view rest = bytes.substr(end);
    if (rest.empty() && !bytes.empty())
        check.Add(FindingCode::textWithoutNul, Severity::note, "the text has no NUL; its length is used");
    if (rest.find_first_not_of('\0') != std::string_view::npos)
        check.Add(FindingCode::bytesAfterNul, Severity::note,
                  "there are bytes after the text's NUL; readers ignore them");
    const std::string_view text = bytes.substr(0, end);
    if (!IsPlainText(text, check.codePage) && !CodePageToUtf8(text, check.codePage))
        check.Add(FindingCode::textUndecodable, Severity::irregular, "the text is not valid in code page ",
                  check.codePage);
}

void CheckBool(std::string_view bytes, const ElementCheck& check) {
    const uint32_t stored = LittleEndian<uint32_t>(reinterpret_cast<const uint8_t*>(bytes.data()));
    if (stored == 0 || stored == 0xFFFF) return;
    char number[16];
    std::snprintf(number, sizeof number, "0x%08X", static_cast<unsigned>(stored));
    check.Add(FindingCode::boolForm, Severity::note, "true is stored as ", number, "; any value other than 0 is true");
}

void CheckClipboard(std::string_view bytes, const ElementCheck& check) {
    const bool hasTag = bytes.size() >= 4;
    const int32_t tag =
        hasTag ? static_cast<int32_t>(LittleEndian<uint32_t>(reinterpret_cast<const uint8_t*>(bytes.data()))) : 0;
    const size_t needed = hasTag && (tag == -1 || tag == -2) ? 8 : 4;
    if (bytes.size() < needed)
        check.Add(FindingCode::clipboardShort, Severity::irregular, "clipboard data needs ", needed,
                  " bytes for tag and format, but only ", bytes.size(), " are present; it cannot be shown");
}

} // namespace

void CheckValue(const ImageProperty& property, std::optional<uint16_t> codePage, uint64_t offset,
                const std::string& place, Report& report) {
    const uint8_t* bytes = property.bytes.data();
    const size_t size = property.bytes.size();
    const std::optional<Extent> extent = MeasureValue(property.type, bytes, size);
    if (!extent) return;
    if (extent->elementsPadded)
        report.Add(FindingCode::elementsPadded, Severity::note, offset, place, ", property ", property.id,
                   ": the elements are padded to 4 bytes each; readers that expect packed elements fail");
    Cursor cursor{bytes, size};
    const auto check = [&](uint32_t type, const TypeForm& form, std::string_view element) {
        const uint16_t page = type == VT_LPWSTR ? kCodePageUtf16 : codePage.value_or(kUsualCodePage);
        const size_t at = static_cast<size_t>(reinterpret_cast<const uint8_t*>(element.data()) - bytes);
        const ElementCheck here{page, offset + at, place, property.id, report};
        if (form.isText) CheckText(element, here);
        if (type == VT_BOOL) CheckBool(element, here);
        if (type == VT_CF) CheckClipboard(element, here);
        return true;
    };
    Walk(cursor, property.type, extent->elementsPadded, check);
}

} // namespace orlo

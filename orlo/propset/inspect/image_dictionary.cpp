// Reads and writes the dictionary of a set image in each layout that writers use.

#include "orlo/propset/inspect/image_dictionary.h"

#include <set>

#include "orlo/propset/code_page.h"
#include "orlo/propset/value_form.h"

namespace orlo {

namespace {

constexpr size_t kEntryHead = 8; // property ID and length

// A layout in which names may be stored.
struct NameForm {
    uint16_t codePage;
    bool isWide;

    size_t UnitSize() const { return isWide ? 2 : 1; }
    size_t PaddingOf(size_t size) const { return isWide ? size % 4 : 0; } // at most two bytes
};

struct RawName {
    uint32_t id;
    size_t at; // offset in the dictionary
    std::string_view bytes;
};

struct RawDictionary {
    uint32_t count; // the stored number of entries
    std::vector<RawName> names;
    size_t size;
};

// Splits the dictionary into names, as far as it is complete.
std::optional<RawDictionary> Split(const uint8_t* bytes, size_t size, const NameForm& form) {
    if (size < 4) return std::nullopt;
    RawDictionary raw{Load32(bytes), {}, 4};
    while (raw.names.size() < raw.count && size - raw.size >= kEntryHead) {
        const uint32_t id = Load32(bytes + raw.size);
        const uint64_t length = uint64_t{Load32(bytes + raw.size + 4)} * form.UnitSize();
        const size_t at = raw.size + kEntryHead;
        if (length > size - at) break;
        const auto nameSize = static_cast<size_t>(length);
        raw.names.push_back({id, at, {reinterpret_cast<const char*>(bytes + at), nameSize}});
        raw.size = std::min(size, at + nameSize + form.PaddingOf(nameSize));
    }
    return raw;
}

// Truncates the name at its NUL. Returns false if there is none.
bool CutAtNul(std::string_view& name, const NameForm& form) {
    const size_t unit = form.UnitSize();
    for (size_t i = 0; i + unit <= name.size(); i += unit) {
        if (name[i] != '\0' || name[i + unit - 1] != '\0') continue;
        name = name.substr(0, i);
        return true;
    }
    return false;
}

bool IsWhole(const std::optional<RawDictionary>& raw) {
    return raw && raw->names.size() == raw->count;
}

bool EndInNul(const RawDictionary& raw, const NameForm& form) {
    for (const RawName& name : raw.names) {
        std::string_view text = name.bytes;
        if (!CutAtNul(text, form) || text.size() + form.UnitSize() != name.bytes.size()) return false;
    }
    return true;
}

struct SplitNames {
    NameForm form;
    std::optional<RawDictionary> raw;
};

// Under code page 1200, names have 16-bit characters unless only 8-bit names are valid.
SplitNames SplitByBestForm(const uint8_t* bytes, size_t size, uint16_t codePage) {
    const NameForm form{codePage, codePage == kCodePageUtf16};
    SplitNames usual{form, Split(bytes, size, form)};
    if (!form.isWide || (IsWhole(usual.raw) && EndInNul(*usual.raw, form))) return usual;
    const NameForm narrow{0, false};
    SplitNames other{narrow, Split(bytes, size, narrow)};
    return IsWhole(other.raw) && EndInNul(*other.raw, narrow) ? other : usual;
}

} // namespace

bool IsWholeDictionary(const uint8_t* bytes, size_t size, uint16_t codePage) {
    return IsWhole(SplitByBestForm(bytes, size, codePage).raw);
}

std::optional<ImageDictionary> ReadImageDictionary(const uint8_t* bytes, size_t size, uint16_t codePage,
                                                   uint64_t offset, const std::string& place, Report& report) {
    const auto [form, raw] = SplitByBestForm(bytes, size, codePage);
    if (!IsWhole(raw))
        report.Add(FindingCode::dictionaryShort, Severity::damaged, offset, place, ": the dictionary declares ",
                   raw ? raw->count : 0, " names, but contains ", raw ? raw->names.size() : 0);
    if (!raw || (raw->names.empty() && raw->count != 0)) return std::nullopt;

    ImageDictionary result{{}, raw->size};
    std::set<std::string_view> seen;
    for (const RawName& name : raw->names) {
        std::string_view text = name.bytes;
        if (!CutAtNul(text, form))
            report.Add(FindingCode::nameWithoutNul, Severity::note, offset + name.at, place, ": the name of property ",
                       name.id, " has no NUL; its length is used");
        std::optional<std::string> utf8 = CodePageToUtf8(text, form.codePage);
        if (!utf8) {
            report.Add(FindingCode::nameUndecodable, Severity::irregular, offset + name.at, place,
                       ": the name of property ", name.id, " is not text in code page ", form.codePage);
            if (form.codePage == codePage) result.entries.push_back({name.id, {}, Bytes(text.begin(), text.end())});
            continue;
        }
        if (!seen.insert(text).second)
            report.Add(FindingCode::nameRepeated, Severity::irregular, offset + name.at, place,
                       ": the name of property ", name.id, " is repeated; readers use the first or the last");
        result.entries.push_back({name.id, std::move(*utf8), {}});
    }
    return result;
}

bool AppendImageDictionary(const std::vector<DictionaryEntry>& entries, uint16_t codePage, ImageWriter& image) {
    const NameForm form{codePage, codePage == kCodePageUtf16};
    image.Put32(static_cast<uint32_t>(entries.size()));
    for (const DictionaryEntry& entry : entries) {
        const std::optional<std::string> name = entry.undecoded.empty()
                                                    ? Utf8ToCodePage(entry.name, codePage)
                                                    : std::string(entry.undecoded.begin(), entry.undecoded.end());
        if (!name || name->size() % form.UnitSize() != 0) return false;
        const size_t size = name->size() + form.UnitSize();
        image.Put32(entry.id);
        image.Put32(static_cast<uint32_t>(size / form.UnitSize()));
        image.Put(name->data(), name->size());
        image.PutZeros(form.UnitSize() + form.PaddingOf(size));
    }
    return true;
}

} // namespace orlo

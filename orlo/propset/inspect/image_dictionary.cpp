// Reads and writes the dictionary of a set image.

#include "orlo/propset/inspect/image_dictionary.h"

#include <set>

#include "orlo/propset/code_page.h"
#include "orlo/propset/dictionary_names.h"

namespace orlo {

bool IsWholeDictionary(const uint8_t* bytes, size_t size, uint16_t codePage) {
    StreamReader reader(bytes, size);
    return ReadNames(reader, codePage, UINT32_MAX).isWhole;
}

std::optional<ImageDictionary> ReadImageDictionary(const uint8_t* bytes, size_t size, uint16_t codePage,
                                                   uint64_t offset, const std::string& place, Report& report) {
    StreamReader reader(bytes, size);
    const StoredNames read = ReadNames(reader, codePage, UINT32_MAX);
    if (!read.isWhole)
        report.Add(FindingCode::dictionaryShort, Severity::damaged, offset, place, ": the dictionary declares ",
                   read.count, " names, but contains ", read.names.size());
    if (!read.isWhole && read.names.empty()) return std::nullopt;

    const uint16_t page = read.isWide || codePage != kCodePageUtf16 ? codePage : 0;
    ImageDictionary result{{}, std::min(size, static_cast<size_t>(reader.Position()))};
    std::set<std::string_view> seen;
    for (const StoredName& name : read.names) {
        if (!name.HasNul())
            report.Add(FindingCode::nameWithoutNul, Severity::note, offset + name.at, place, ": the name of property ",
                       name.id, " has no NUL; its length is used");
        std::optional<std::string> utf8 = CodePageToUtf8(name.bytes, page);
        if (!utf8) {
            report.Add(FindingCode::nameUndecodable, Severity::irregular, offset + name.at, place,
                       ": the name of property ", name.id, " is not text in code page ", page);
            if (page == codePage) result.entries.push_back({name.id, {}, Bytes(name.bytes.begin(), name.bytes.end())});
            continue;
        }
        if (!seen.insert(name.bytes).second)
            report.Add(FindingCode::nameRepeated, Severity::irregular, offset + name.at, place,
                       ": the name of property ", name.id, " is repeated; readers use the first or the last");
        result.entries.push_back({name.id, std::move(*utf8), {}});
    }
    return result;
}

bool AppendImageDictionary(const std::vector<DictionaryEntry>& entries, uint16_t codePage, ImageWriter& image) {
    const bool isWide = codePage == kCodePageUtf16;
    const size_t unit = UnitSize(isWide);
    image.Put32(static_cast<uint32_t>(entries.size()));
    for (const DictionaryEntry& entry : entries) {
        const std::optional<std::string> name = entry.undecoded.empty()
                                                    ? Utf8ToCodePage(entry.name, codePage)
                                                    : std::string(entry.undecoded.begin(), entry.undecoded.end());
        if (!name || name->size() % unit != 0) return false;
        const size_t size = name->size() + unit;
        image.Put32(entry.id);
        image.Put32(static_cast<uint32_t>(size / unit));
        image.Put(name->data(), name->size());
        image.PutZeros(unit + NamePadding(size, isWide));
    }
    return true;
}

} // namespace orlo

// Reads the names of a dictionary in the layouts that writers use, and writes 8-bit names.

#include "orlo/propset/dictionary_names.h"

#include <algorithm>

#include "orlo/propset/code_page.h"

namespace orlo {

namespace {

// Returns the offset of the first NUL, or the size if there is none.
size_t EndOfText(const std::string& bytes, size_t unit) {
    for (size_t i = 0; i + unit <= bytes.size(); i += unit)
        if (bytes[i] == '\0' && bytes[i + unit - 1] == '\0') return i;
    return bytes.size();
}

bool ReadEntry(StreamReader& reader, bool isWide, uint32_t longest, StoredName& name) {
    uint32_t length;
    if (!reader.Spend(8) || !reader.Read32(name.id) || !reader.Read32(length) || length > longest) return false;
    const uint64_t size = uint64_t{length} * UnitSize(isWide);
    if (size > reader.Left() || !reader.Spend(size)) return false;
    name.at = reader.Position();
    name.storedSize = static_cast<size_t>(size);
    name.bytes.resize(name.storedSize);
    if (reader.Read(name.bytes.data(), name.storedSize) != name.storedSize) return false;
    name.bytes.resize(EndOfText(name.bytes, UnitSize(isWide)));
    reader.SeekTo(reader.Position() + NamePadding(name.storedSize, isWide));
    return true;
}

StoredNames ReadInForm(StreamReader& reader, bool isWide, uint32_t longest) {
    StoredNames read{isWide, 0, {}, false};
    if (!reader.Read32(read.count)) return read;
    for (StoredName name; read.names.size() < read.count && ReadEntry(reader, isWide, longest, name);)
        read.names.push_back(std::move(name));
    read.isWhole = read.names.size() == read.count;
    return read;
}

// Returns true if the dictionary is complete and each name has a single NUL, at its end.
bool IsValid(const StoredNames& read) {
    const auto endsAtNul = [unit = UnitSize(read.isWide)](const StoredName& name) {
        return name.bytes.size() + unit == name.storedSize;
    };
    return read.isWhole && std::all_of(read.names.begin(), read.names.end(), endsAtNul);
}

constexpr DWORD kLongestStored = 255;

} // namespace

StoredNames ReadNames(StreamReader& reader, uint16_t codePage, uint32_t longest) {
    const ULONGLONG begin = reader.Position();
    StoredNames usual = ReadInForm(reader, codePage == kCodePageUtf16, longest);
    if (!usual.isWide || IsValid(usual)) return usual;
    const ULONGLONG end = reader.Position();
    reader.SeekTo(begin);
    StoredNames narrow = ReadInForm(reader, false, longest);
    if (IsValid(narrow)) return narrow;
    reader.SeekTo(end);
    return usual;
}

DWORD StoredNameSize(const CString& name) {
    return std::min(static_cast<DWORD>(name.GetLength()) + 1, kLongestStored);
}

void AppendName(ImageWriter& image, DWORD id, const CString& name) {
    image.Put32(id);
    image.Put32(StoredNameSize(name));
    image.Put(static_cast<const char*>(name), StoredNameSize(name));
}

} // namespace orlo

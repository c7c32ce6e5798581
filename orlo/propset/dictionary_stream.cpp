// Reads and writes dictionary entries, with 8-bit or 16-bit names.

#include "orlo/propset/dictionary_stream.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "orlo/propset/code_page.h"

namespace orlo {

namespace {

constexpr DWORD kLongestStored = 255;
constexpr DWORD kLongestRead = 256;

using WideBuffer = std::array<uint16_t, kLongestRead>;

// Reads the next entry with a 16-bit name as stored. The length is in characters, including the NUL.
bool ReadWideEntry(StreamReader& reader, uint32_t& id, uint32_t& length, WideBuffer& characters) {
    if (!reader.Spend(8) || !reader.Read32(id) || !reader.Read32(length) || length > kLongestRead) return false;
    const size_t size = size_t{length} * 2;
    if (!reader.Spend(size) || reader.Read(characters.data(), size) != size) return false;
    reader.SeekTo(reader.Position() + size % 4);
    return true;
}

} // namespace

DWORD StoredNameSize(const CString& name) {
    return std::min(static_cast<DWORD>(name.GetLength()) + 1, kLongestStored);
}

void AppendName(ImageWriter& image, DWORD id, const CString& name) {
    image.Put32(id);
    image.Put32(StoredNameSize(name));
    image.Put(static_cast<const char*>(name), StoredNameSize(name));
}

bool ReadName(StreamReader& reader, uint32_t& id, CString& name) {
    uint32_t size;
    char text[kLongestRead];
    if (!reader.Spend(8) || !reader.Read32(id) || !reader.Read32(size) || size > sizeof text) return false;
    if (!reader.Spend(size) || reader.Read(text, size) != size) return false;
    name = CString(text, static_cast<int>(std::find(text, text + size, '\0') - text));
    return true;
}

bool ReadWideName(StreamReader& reader, uint32_t& id, CString& name) {
    uint32_t length;
    WideBuffer characters;
    if (!ReadWideEntry(reader, id, length, characters)) return false;
    const auto* end = std::find(characters.data(), characters.data() + length, 0);
    const std::string_view bytes(reinterpret_cast<const char*>(characters.data()),
                                 static_cast<size_t>(end - characters.data()) * 2);
    const std::optional<std::string> utf8 = CodePageToUtf8(bytes, kCodePageUtf16);
    const std::optional<std::string> text = utf8 ? Utf8ToCodePage(*utf8, 0) : std::nullopt;
    name = text ? text->c_str() : "";
    return true;
}

bool AreNamesWide(StreamReader& reader) {
    const ULONGLONG begin = reader.Position();
    uint32_t count;
    bool wide = reader.Read32(count) && count <= reader.Left() / 8;
    for (uint32_t i = 0; wide && i < count; ++i) {
        uint32_t id;
        uint32_t length;
        WideBuffer characters;
        wide = ReadWideEntry(reader, id, length, characters) && length > 0 &&
               std::find(characters.data(), characters.data() + length, 0) == characters.data() + length - 1;
    }
    reader.SeekTo(begin);
    return wide;
}

} // namespace orlo

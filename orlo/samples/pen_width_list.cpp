// CPenWidthList: reads a list and its aliases from the configuration file.

#include "orlo/samples/pen_width_list.h"

#include <charconv>
#include <cstdio>
#include <cstring>

#include "orlo/host/application.h"
#include "orlo/host/table.h"
#include "orlo/host/units.h"

namespace {

constexpr int kEntrySize = 256;
constexpr int kMaxAliases = 100; // limit that ends circular aliases
constexpr char kAlias = '*';
constexpr int kNumberSize = 32; // buffer size for DoubleToString
constexpr int kDigits = 15;

// The file always uses decimal points. Returns the number in the host's format, stored in the buffer, or the token
// itself if it is not a plain number.
const char* HostNumber(const char* token, char (&buffer)[kNumberSize]) {
    while (*token == ' ' || *token == '\t')
        ++token;
    const char* end = token + std::strlen(token);
    while (end > token && (end[-1] == ' ' || end[-1] == '\t'))
        --end;
    double number = 0;
    const auto read = std::from_chars(token, end, number);
    if (read.ec != std::errc() || read.ptr != end) return token;
    ::DoubleToString(0, number, kDigits, buffer, 0, 0, 1);
    return buffer;
}

} // namespace

CPenWidthList::CPenWidthList() : m_pszCursor(nullptr), m_szUnit(), m_szItem() {}

const char* CPenWidthList::First(AppStruct* application, TableStruct* units, const char* section,
                                 unsigned int unitVariable) {
    m_pszCursor = nullptr;
    m_szUnit[0] = m_szItem[0] = '\0';
    char path[MAX_PATH];
    if (!::TableGetStringVar(units, static_cast<uint16_t>(unitVariable), m_szUnit, sizeof m_szUnit)) return nullptr;
    if (!::AppGetINIFileName(application, path, sizeof path)) return nullptr;
    if (!ReadEntry(path, section)) return nullptr;
    return NextItem(m_strBuffer.GetBuffer(kEntrySize));
}

// Follows aliases to a list and sets m_szUnit to the key of the list.
bool CPenWidthList::ReadEntry(const char* path, const char* section) {
    for (int step = 0; step < kMaxAliases; ++step) {
        char* text = m_strBuffer.GetBuffer(kEntrySize);
        const DWORD length = ::GetPrivateProfileStringA(section, m_szUnit, "", text, kEntrySize, path);
        m_strBuffer.ReleaseBuffer(static_cast<int>(length));
        if (m_strBuffer.IsEmpty()) return false;
        if (m_strBuffer[0] != kAlias) return true;
        const CString alias = m_strBuffer.Mid(1);
        if (alias.GetLength() >= static_cast<int>(sizeof m_szUnit)) return false; // longer than any unit's name
        std::strcpy(m_szUnit, alias);
    }
    return false;
}

const char* CPenWidthList::Next() {
    return m_pszCursor != nullptr ? NextItem(nullptr) : nullptr;
}

const char* CPenWidthList::NextItem(char* text) {
    for (m_pszCursor = std::strtok(text, ","); m_pszCursor != nullptr; m_pszCursor = std::strtok(nullptr, ",")) {
        char number[kNumberSize];
        const int length = std::snprintf(m_szItem, sizeof m_szItem, "%s %s", HostNumber(m_pszCursor, number), m_szUnit);
        if (length < static_cast<int>(sizeof m_szItem)) return m_szItem;
    }
    return nullptr;
}

// CString. Loading from resources is in module.cpp.

#include <afx.h>

#include <algorithm>
#include <cctype>
#include <cstring>
#if !defined(_WIN32)
#include <strings.h>
#endif

namespace {

LPCSTR Text(LPCSTR lpsz) {
    return lpsz != nullptr ? lpsz : "";
}

std::size_t Size(int n) {
    return n > 0 ? static_cast<std::size_t>(n) : 0;
}

#if !defined(_WIN32)
// Code page 1252, the code page of Western Windows systems.
bool HasCasePair(unsigned char lower) {
    return (lower >= 0xE0 && lower != 0xF7 && lower != 0xFF);
}

char Lower(char ch) {
    const auto c = static_cast<unsigned char>(ch);
    if (c >= 'A' && c <= 'Z') return static_cast<char>(c + 32);
    if (c >= 0xC0 && c <= 0xDE && HasCasePair(static_cast<unsigned char>(c + 32))) return static_cast<char>(c + 32);
    if (c == 0x8A || c == 0x8C || c == 0x8E) return static_cast<char>(c + 16);
    return c == 0x9F ? static_cast<char>(0xFF) : ch;
}

char Upper(char ch) {
    const auto c = static_cast<unsigned char>(ch);
    if ((c >= 'a' && c <= 'z') || HasCasePair(c)) return static_cast<char>(c - 32);
    if (c == 0x9A || c == 0x9C || c == 0x9E) return static_cast<char>(c - 16);
    return c == 0xFF ? static_cast<char>(0x9F) : ch;
}
#endif

bool IsSpace(char ch) {
    return std::isspace(static_cast<unsigned char>(ch)) != 0;
}

} // namespace

CString::CString() = default;
CString::CString(const CString& stringSrc) = default;
CString::CString(CString&& stringSrc) noexcept = default;
CString::CString(LPCSTR lpsz) : m_text(Text(lpsz)) {}
CString::CString(LPCSTR lpch, int nLength) : m_text(Text(lpch), lpch != nullptr ? Size(nLength) : 0) {}
CString::CString(char ch, int nRepeat) : m_text(Size(nRepeat), ch) {}
CString::~CString() = default;

CString& CString::operator=(const CString& stringSrc) = default;
CString& CString::operator=(CString&& stringSrc) noexcept = default;

CString& CString::operator=(LPCSTR lpsz) {
    m_text = Text(lpsz);
    return *this;
}

CString& CString::operator=(char ch) {
    m_text.assign(1, ch);
    return *this;
}

CString& CString::operator+=(const CString& string) {
    m_text += string.m_text;
    return *this;
}

CString& CString::operator+=(LPCSTR lpsz) {
    m_text += Text(lpsz);
    return *this;
}

CString& CString::operator+=(char ch) {
    m_text += ch;
    return *this;
}

CString operator+(const CString& string1, const CString& string2) {
    CString result(string1);
    return result += string2;
}

CString operator+(const CString& string, LPCSTR lpsz) {
    CString result(string);
    return result += lpsz;
}

CString operator+(LPCSTR lpsz, const CString& string) {
    CString result(lpsz);
    return result += string;
}

CString operator+(const CString& string, char ch) {
    CString result(string);
    return result += ch;
}

void CString::Empty() {
    m_text.clear();
}

void CString::SetAt(int nIndex, char ch) {
    m_text[static_cast<std::size_t>(nIndex)] = ch;
}

int CString::Compare(LPCSTR lpsz) const {
    return std::strcmp(m_text.c_str(), Text(lpsz));
}

int CString::CompareNoCase(LPCSTR lpsz) const {
#if defined(_WIN32)
    return ::_stricmp(m_text.c_str(), Text(lpsz));
#else
    return ::strcasecmp(m_text.c_str(), Text(lpsz));
#endif
}

CString CString::Mid(int nFirst) const {
    return Mid(nFirst, GetLength());
}

CString CString::Mid(int nFirst, int nCount) const {
    const std::size_t first = std::min(Size(nFirst), m_text.size());
    const std::size_t count = std::min(Size(nCount), m_text.size() - first);
    return CString(m_text.data() + first, static_cast<int>(count));
}

CString CString::Left(int nCount) const {
    return Mid(0, nCount);
}

CString CString::Right(int nCount) const {
    return Mid(GetLength() - std::min(GetLength(), std::max(nCount, 0)), nCount);
}

void CString::MakeUpper() {
#if defined(_WIN32)
    ::CharUpperBuffA(m_text.data(), static_cast<DWORD>(m_text.size()));
#else
    std::transform(m_text.begin(), m_text.end(), m_text.begin(), Upper);
#endif
}

void CString::MakeLower() {
#if defined(_WIN32)
    ::CharLowerBuffA(m_text.data(), static_cast<DWORD>(m_text.size()));
#else
    std::transform(m_text.begin(), m_text.end(), m_text.begin(), Lower);
#endif
}

void CString::TrimLeft() {
    m_text.erase(m_text.begin(), std::find_if_not(m_text.begin(), m_text.end(), IsSpace));
}

void CString::TrimRight() {
    m_text.erase(std::find_if_not(m_text.rbegin(), m_text.rend(), IsSpace).base(), m_text.end());
}

int CString::Find(char ch) const {
    const std::size_t at = m_text.find(ch);
    return at == std::string::npos ? -1 : static_cast<int>(at);
}

int CString::Find(LPCSTR lpszSub) const {
    const std::size_t at = m_text.find(Text(lpszSub));
    return at == std::string::npos ? -1 : static_cast<int>(at);
}

int CString::ReverseFind(char ch) const {
    const std::size_t at = m_text.rfind(ch);
    return at == std::string::npos ? -1 : static_cast<int>(at);
}

void CString::Format(LPCSTR lpszFormat, ...) {
    va_list args;
    va_start(args, lpszFormat);
    FormatV(lpszFormat, args);
    va_end(args);
}

void CString::FormatV(LPCSTR lpszFormat, va_list args) {
    va_list again;
    va_copy(again, args);
    const int length = std::vsnprintf(nullptr, 0, lpszFormat, args);
    std::string text(Size(length), '\0'); // separate, because an argument can point into this string
    if (length > 0) std::vsnprintf(text.data(), text.size() + 1, lpszFormat, again);
    va_end(again);
    m_text = std::move(text);
}

LPSTR CString::GetBuffer(int nMinBufLength) {
    if (Size(nMinBufLength) > m_text.size()) m_text.resize(Size(nMinBufLength));
    return m_text.data();
}

LPSTR CString::GetBufferSetLength(int nNewLength) {
    m_text.resize(Size(nNewLength));
    return m_text.data();
}

void CString::ReleaseBuffer(int nNewLength) {
    m_text.resize(nNewLength >= 0 ? std::min(Size(nNewLength), m_text.size()) : std::strlen(m_text.c_str()));
}

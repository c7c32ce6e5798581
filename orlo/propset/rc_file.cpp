// Writes items, separators and line breaks of a resource script.

#include "orlo/propset/rc_file.h"

#include <string>

namespace {

constexpr int kWrapColumn = 70;
constexpr int kIndent = 4;
constexpr int kBreakColumn = 1000; // greater than any column, so that the next item starts a new line

// Appends a character as it appears in a quoted text of a script. Control characters are escaped as numbers, including
// line feeds, which would end the text for windres.
void AppendEscaped(std::string& text, char character) {
    const auto code = static_cast<unsigned char>(character);
    if (code < 0x20) {
        char escape[8];
        std::snprintf(escape, sizeof escape, "\\x%02X", code);
        text += escape;
        return;
    }
    if (character == '\\' || character == '"') text += character;
    text += character;
}

} // namespace

CRCFile::CRCFile() : m_nColumn(0), m_bNeedComma(0) {}
CRCFile::CRCFile(FILE* pOpenStream) : CStdioFile(pOpenStream), m_nColumn(0), m_bNeedComma(0) {}
CRCFile::CRCFile(const char* pszFileName, UINT nOpenFlags)
    : CStdioFile(pszFileName, nOpenFlags), m_nColumn(0), m_bNeedComma(0) {}
CRCFile::~CRCFile() = default;

void CRCFile::StartBlock() {
    m_nColumn = 0;
    m_bNeedComma = 0;
}

void CRCFile::PrintWholeTexts() {
    m_bWholeTexts = true;
}

void CRCFile::NewLine() {
    m_nColumn = kBreakColumn;
}

void CRCFile::Format() {
    if (m_nColumn > kWrapColumn) {
        CStdioFile::WriteString(m_bNeedComma ? ",\n    " : "\n    ");
        m_nColumn = kIndent;
    } else if (m_bNeedComma) {
        CStdioFile::WriteString(", ");
        m_nColumn += 2;
    }
    m_bNeedComma = 1;
}

void CRCFile::WriteString(const char* psz) {
    Format();
    CStdioFile::WriteString(psz);
    m_nColumn += static_cast<int>(std::char_traits<char>::length(psz));
}

void CRCFile::WriteCString(const char* psz, DWORD cb) {
    do {
        const auto length = static_cast<DWORD>(::strnlen(psz, cb));
        const bool endsAtNul = length < cb;
        Format();
        Write("\"", 1);
        std::string text;
        for (DWORD i = 0; i < length; ++i)
            AppendEscaped(text, psz[i]);
        text += endsAtNul ? "\\0\"" : "\"";
        Write(text.data(), static_cast<UINT>(text.size()));
        m_nColumn += static_cast<int>(text.size());
        psz += length + endsAtNul;
        cb -= length + endsAtNul;
    } while (m_bWholeTexts && cb > 0);
}

void CRCFile::WriteByte(BYTE b) {
    if (b == 0) {
        WriteNULByte();
        return;
    }
    char item[8];
    std::snprintf(item, sizeof item, "\"\\x%02X\"", b);
    WriteString(item);
}

void CRCFile::WriteWord(WORD w) {
    char item[8];
    std::snprintf(item, sizeof item, "0x%04X", w);
    WriteString(item);
}

void CRCFile::WriteDWord(DWORD dw) {
    WriteWord(static_cast<WORD>(dw));
    WriteWord(static_cast<WORD>(dw >> 16));
}

void CRCFile::WriteBytes(BYTE* p, int n) {
    for (; n >= 2; p += 2, n -= 2)
        WriteWord(static_cast<WORD>(p[0] | p[1] << 8));
    if (n > 0) WriteByte(*p);
}

void CRCFile::WriteNULByte() {
    WriteString("\"\\0\"");
}

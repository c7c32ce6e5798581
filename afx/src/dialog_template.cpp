// Reads dialog templates in the standard and the extended format.

#include "dialog_template.h"

#include <afxapp.h>

#include <cstring>

namespace {

struct ExtendedHead {
    WORD version;
    WORD signature;
    DWORD helpID;
    DWORD exStyle;
    DWORD style;
};

constexpr std::size_t kCountAndRectangle = 5 * sizeof(WORD);

void MakePageStyle(DWORD& style, DWORD& exStyle) {
    style &= ~(WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_THICKFRAME | WS_MINIMIZEBOX | WS_MAXIMIZEBOX | WS_DISABLED |
               WS_VISIBLE | DS_MODALFRAME);
    style |= WS_CHILD | DS_CONTROL;
    exStyle &= ~(WS_EX_DLGMODALFRAME | WS_EX_APPWINDOW | WS_EX_TOOLWINDOW);
    exStyle |= WS_EX_CONTROLPARENT;
}

} // namespace

// Reads 16-bit words. Past the end all words are 0.
class AfxDialogTemplate::Reader {
public:
    Reader(const BYTE* data, std::size_t size) : m_data(data), m_left(size) {}

    void Skip(std::size_t bytes) {
        bytes = bytes < m_left ? bytes : m_left;
        m_data += bytes;
        m_left -= bytes;
    }
    WORD Word() {
        WORD word = 0;
        if (m_left >= sizeof word) std::memcpy(&word, m_data, sizeof word);
        Skip(sizeof word);
        return word;
    }
    CString Text() {
        std::wstring wide;
        while (const WORD ch = Word())
            wide += static_cast<wchar_t>(ch);
        CString text;
        const int length = static_cast<int>(wide.size());
        const int capacity = length * 2; // enough for double-byte code pages
        LPSTR buffer = text.GetBufferSetLength(capacity);
        text.ReleaseBuffer(::WideCharToMultiByte(CP_ACP, 0, wide.c_str(), length, buffer, capacity, nullptr, nullptr));
        return text;
    }
    // A menu or window class: 0xFFFF and a number, or a string.
    void SkipNameOrNumber() {
        const WORD first = Word();
        if (first == 0xFFFF) {
            Word();
        } else if (first != 0) {
            while (Word() != 0) {
            }
        }
    }

    // Reads a name or number. Returns true if it is the given name. A number never matches, because the templates
    // contain CONTROL statements, which store the class as a name.
    bool NextNameIs(const char* name) {
        const Reader before = *this;
        if (Word() == 0xFFFF) {
            Word();
            return false;
        }
        *this = before;
        return Text().CompareNoCase(name) == 0;
    }
    void Align(std::size_t whole) { Skip((whole - m_left) % sizeof(DWORD) ? sizeof(WORD) : 0); }
    std::size_t Left() const { return m_left; }

private:
    const BYTE* m_data;
    std::size_t m_left;
};

AfxDialogTemplate::AfxDialogTemplate(LPCSTR lpszName, HINSTANCE hModule)
    : m_module(hModule), m_data(nullptr), m_size(0) {
    LPCSTR type = reinterpret_cast<LPCSTR>(RT_DIALOG);
    if (m_module == nullptr) m_module = AfxFindResourceHandle(lpszName, type);
    HRSRC resource = ::FindResourceA(m_module, lpszName, type);
    HGLOBAL loaded = resource != nullptr ? ::LoadResource(m_module, resource) : nullptr;
    m_data = loaded != nullptr ? static_cast<const BYTE*>(::LockResource(loaded)) : nullptr;
    if (m_data == nullptr || ::SizeofResource(m_module, resource) < sizeof(ExtendedHead) + kCountAndRectangle) return;
    m_size = ::SizeofResource(m_module, resource);
    ReadHead();
}

AfxDialogTemplate::AfxDialogTemplate(const BYTE* data, std::size_t size, HINSTANCE hModule)
    : m_module(hModule), m_data(data), m_size(size) {
    ReadHead();
}

bool AfxDialogTemplate::IsExtended() const {
    ExtendedHead head;
    std::memcpy(&head, m_data, sizeof head);
    return head.version == 1 && head.signature == 0xFFFF;
}

void AfxDialogTemplate::ReadHead() {
    Reader reader(m_data, m_size);
    DWORD style = 0;
    if (IsExtended()) {
        std::memcpy(&style, m_data + offsetof(ExtendedHead, style), sizeof style);
        reader.Skip(sizeof(ExtendedHead) + kCountAndRectangle);
    } else {
        std::memcpy(&style, m_data, sizeof style);
        reader.Skip(2 * sizeof(DWORD) + kCountAndRectangle);
    }
    reader.SkipNameOrNumber();
    reader.SkipNameOrNumber();
    m_title = reader.Text();
    if ((style & DS_SETFONT) == 0) return;
    m_points = reader.Word();
    if (IsExtended()) {
        m_weight = reader.Word();
        m_italic = (reader.Word() & 0xFF) != 0; // the high byte is the character set
    }
    m_face = reader.Text();
}

LOGFONTA AfxDialogTemplate::Font() const {
    LOGFONTA font = {};
    HDC screen = ::GetDC(nullptr);
    font.lfHeight = -::MulDiv(m_points > 0 ? m_points : 8, ::GetDeviceCaps(screen, LOGPIXELSY), 72);
    ::ReleaseDC(nullptr, screen);
    font.lfWeight = m_weight;
    font.lfItalic = m_italic;
    font.lfCharSet = DEFAULT_CHARSET;
    ::lstrcpynA(font.lfFaceName, m_face.IsEmpty() ? "MS Shell Dlg" : static_cast<LPCSTR>(m_face), LF_FACESIZE);
    return font;
}

void AfxDialogTemplate::ScrollCombos(std::vector<BYTE>& copy) const {
    constexpr std::size_t kStylesPlaceAndId = 2 * sizeof(DWORD) + 5 * sizeof(WORD);
    Reader reader(m_data, m_size);
    DWORD style = 0;
    std::memcpy(&style, m_data, sizeof style);
    reader.Skip(2 * sizeof(DWORD));
    const WORD controls = reader.Word();
    reader.Skip(kCountAndRectangle - sizeof(WORD));
    reader.SkipNameOrNumber(); // menu, class
    reader.SkipNameOrNumber();
    reader.Text();
    if ((style & DS_SETFONT) != 0) {
        reader.Word();
        reader.Text();
    }
    for (WORD i = 0; i < controls && reader.Left() > kStylesPlaceAndId; ++i) {
        reader.Align(m_size);
        const std::size_t at = m_size - reader.Left();
        reader.Skip(kStylesPlaceAndId);
        const bool isCombo = reader.NextNameIs("COMBOBOX");
        reader.SkipNameOrNumber(); // its text
        reader.Skip(reader.Word());
        if (!isCombo || m_size - at < sizeof style) continue;
        std::memcpy(&style, &copy[at], sizeof style);
        if ((style & CBS_DROPDOWNLIST) != CBS_DROPDOWNLIST) style |= CBS_AUTOHSCROLL;
        std::memcpy(&copy[at], &style, sizeof style);
    }
}

std::vector<BYTE> AfxDialogTemplate::AsPage(bool scrollingCombos) const {
    std::vector<BYTE> copy(m_data, m_data + m_size);
    const std::size_t styleAt = IsExtended() ? offsetof(ExtendedHead, style) : 0;
    const std::size_t exStyleAt = IsExtended() ? offsetof(ExtendedHead, exStyle) : sizeof(DWORD);
    DWORD style;
    DWORD exStyle;
    std::memcpy(&style, &copy[styleAt], sizeof style);
    std::memcpy(&exStyle, &copy[exStyleAt], sizeof exStyle);
    MakePageStyle(style, exStyle);
    std::memcpy(&copy[styleAt], &style, sizeof style);
    std::memcpy(&copy[exStyleAt], &exStyle, sizeof exStyle);
    // The sheet determines the position; the size, which follows, is not changed.
    const std::size_t placeAt = (IsExtended() ? sizeof(ExtendedHead) : 2 * sizeof(DWORD)) + sizeof(WORD);
    std::memset(&copy[placeAt], 0, 2 * sizeof(WORD));
    if (scrollingCombos && !IsExtended()) ScrollCombos(copy);
    return copy;
}

// Writes dialog templates, and measures texts in their font.

#include "orlo/pages/dialog_writer.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "orlo/win/encoded_text.h"
#include "orlo/win/screen_scale.h"

namespace {

constexpr char kFace[] = "MS Sans Serif";
constexpr int kPoints = 8;
constexpr DWORD kPageStyle = WS_CHILD | WS_DISABLED | WS_CAPTION | DS_SETFONT;

class Writer {
public:
    template <class Number>
    void Add(Number number) {
        const auto* bytes = reinterpret_cast<const BYTE*>(&number);
        m_bytes.insert(m_bytes.end(), bytes, bytes + sizeof number);
    }
    void AddText(const std::string& text) {
        for (const wchar_t letter : orlo::Widen(text, CP_ACP))
            Add(static_cast<WORD>(letter));
        Add(WORD{0});
    }
    void AddPlace(short x, short y, short cx, short cy) {
        for (const short number : {x, y, cx, cy})
            Add(number);
    }
    void Align() { m_bytes.resize((m_bytes.size() + sizeof(DWORD) - 1) / sizeof(DWORD) * sizeof(DWORD)); }
    std::vector<BYTE> Take() { return std::move(m_bytes); }

private:
    std::vector<BYTE> m_bytes;
};

HFONT CreateDialogFont(HDC screen) {
    return ::CreateFontA(FontHeight(screen, kPoints), 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET,
                         OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, PROOF_QUALITY, DEFAULT_PITCH, kFace);
}

} // namespace

std::vector<BYTE> WriteDialogTemplate(const std::string& title, SIZE size, const std::vector<DialogItem>& items) {
    Writer writer;
    writer.Add(DWORD{kPageStyle});
    writer.Add(DWORD{0});
    writer.Add(static_cast<WORD>(items.size()));
    writer.AddPlace(0, 0, static_cast<short>(size.cx), static_cast<short>(size.cy));
    writer.Add(WORD{0}); // no menu
    writer.Add(WORD{0}); // the system's window class
    writer.AddText(title);
    writer.Add(static_cast<WORD>(kPoints));
    writer.AddText(kFace);
    for (const DialogItem& item : items) {
        writer.Align();
        writer.Add(item.style | DWORD{WS_CHILD | WS_VISIBLE});
        writer.Add(DWORD{0});
        writer.AddPlace(item.x, item.y, item.cx, item.cy);
        writer.Add(item.id);
        writer.AddText(item.className);
        writer.AddText(item.text);
        writer.Add(WORD{0}); // no creation data
    }
    return writer.Take();
}

void SetTemplateDirection(std::vector<BYTE>& dialog, bool fromRightToLeft) {
    const DWORD exStyle = fromRightToLeft ? WS_EX_LAYOUTRTL : 0;
    std::memcpy(dialog.data() + sizeof(DWORD), &exStyle, sizeof exStyle);
}

DialogFont::DialogFont()
    : m_screen(::CreateCompatibleDC(nullptr)), m_font(CreateDialogFont(m_screen.get())),
      m_selected(m_screen.get(), m_font.get()) {
    m_unitsWidth = std::max(AverageLetterWidth(m_screen.get()), 1);
}

int DialogFont::Width(const std::string& text) const {
    RECT place = {};
    ::DrawTextA(m_screen.get(), text.c_str(), -1, &place, DT_CALCRECT | DT_SINGLELINE);
    return (static_cast<int>(place.right) * 4 + m_unitsWidth - 1) / m_unitsWidth;
}

int DialogFont::Lines(const std::string& text, int width) const {
    RECT one = {}, all = {0, 0, width * m_unitsWidth / 4, 0};
    ::DrawTextA(m_screen.get(), "X", -1, &one, DT_CALCRECT | DT_SINGLELINE);
    ::DrawTextA(m_screen.get(), text.c_str(), -1, &all, DT_CALCRECT | DT_WORDBREAK);
    return one.bottom > 0 ? std::max<int>(all.bottom / one.bottom, 1) : 1;
}

// Reads and writes the controls of a dialog template.

#include "orlo/frame/dialog_controls.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <iterator>

#include "orlo/frame/template_words.h"

namespace {

constexpr LONG kClosedHeight = 14; // at most, of a combo box in dialog units

// The beginning of a template, and of each of its controls, in the extended format.
struct ExtendedHead {
    WORD version; // 1
    WORD signature;
    DWORD helpId, exStyle, style;
};

struct ExtendedControl {
    DWORD helpId, exStyle, style;
};

struct StandardControl {
    DWORD style, exStyle;
};

struct Place {
    short x, y, cx, cy;
};

// The window classes that templates store as a number, from 0x80.
std::wstring PredefinedClass(WORD number) {
    static constexpr const wchar_t* kNames[] = {L"Button", L"Edit", L"Static", L"ListBox", L"ScrollBar", L"ComboBox"};
    constexpr WORD kFirst = 0x80;
    return number >= kFirst && number - kFirst < static_cast<int>(std::size(kNames)) ? kNames[number - kFirst] : L"";
}

bool IsExtended(const std::vector<BYTE>& dialog) {
    ExtendedHead head = {};
    std::memcpy(&head, dialog.data(), std::min(dialog.size(), sizeof head));
    return head.version == 1 && head.signature == 0xFFFF;
}

// Reads up to the first control.
bool ReadHead(TemplateWords& words, bool extended, WORD& count) {
    ExtendedHead head = {};
    StandardControl standard = {};
    Place place;
    if (!(extended ? words.Read(head) : words.Read(standard)) || !words.Read(count) || !words.Read(place)) return false;
    for (int i = 0; i < 3; ++i) // menu, class, title
        if (!words.SkipNameOrNumber()) return false;
    if (!((extended ? head.style : standard.style) & DS_SETFONT)) return true;
    constexpr size_t kWeightItalicAndCharset = 4;
    std::wstring face;
    return words.SkipBytes(sizeof(WORD) + (extended ? kWeightItalicAndCharset : 0)) && words.ReadText(face);
}

bool ReadControl(TemplateWords& words, bool extended, TemplateControl& control) {
    ExtendedControl head = {};
    StandardControl standard = {};
    Place place;
    std::wstring text;
    WORD number, extra;
    const size_t idSize = extended ? sizeof(DWORD) : sizeof(WORD);
    if (!(extended ? words.Read(head) : words.Read(standard)) || !words.Read(place) || !words.SkipBytes(idSize))
        return false;
    if (!words.ReadNameOrNumber(control.className, number)) return false;
    if (number != 0) control.className = PredefinedClass(number);
    if (!words.ReadNameOrNumber(text, number) || !words.Read(extra) || !words.SkipBytes(extra)) return false;
    control.style = extended ? head.style : standard.style;
    control.hasText = !text.empty();
    control.place = {place.x, place.y, place.x + place.cx, place.y + place.cy};
    return true;
}

bool IsDropDown(const TemplateControl& control) {
    const bool combo = control.IsOfClass(L"ComboBox") || control.IsOfClass(L"QXComboBox");
    return combo && (control.style & CBS_DROPDOWNLIST) != CBS_SIMPLE;
}

// Returns the number of bytes up to the next control, which is aligned.
size_t Padding(size_t size) {
    return (sizeof(DWORD) - size % sizeof(DWORD)) % sizeof(DWORD);
}

} // namespace

std::optional<DialogControls> DialogControls::Read(const std::vector<BYTE>& dialog) {
    DialogControls result;
    result.m_extended = IsExtended(dialog);
    TemplateWords words(dialog.data(), dialog.size());
    const auto position = [&] { return dialog.begin() + static_cast<ptrdiff_t>(dialog.size() - words.Left()); };
    WORD count;
    if (!ReadHead(words, result.m_extended, count)) return std::nullopt;
    result.m_head.assign(dialog.begin(), position());
    result.controls.resize(count);
    for (TemplateControl& control : result.controls) {
        words.SkipBytes(Padding(dialog.size() - words.Left()));
        const auto begin = position();
        if (!ReadControl(words, result.m_extended, control)) return std::nullopt;
        if (IsDropDown(control))
            control.place.bottom = std::min(control.place.bottom, control.place.top + kClosedHeight);
        control.bytes.assign(begin, position());
    }
    return result;
}

std::vector<BYTE> DialogControls::Template() const {
    const size_t styleAt = m_extended ? offsetof(ExtendedControl, style) : offsetof(StandardControl, style);
    std::vector<BYTE> dialog = m_head;
    for (const TemplateControl& control : controls) {
        dialog.resize(dialog.size() + Padding(dialog.size()));
        const size_t begin = dialog.size();
        dialog.insert(dialog.end(), control.bytes.begin(), control.bytes.end());
        std::memcpy(&dialog[begin + styleAt], &control.style, sizeof control.style);
    }
    return dialog;
}

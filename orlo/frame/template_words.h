// Reads a dialog template word by word, but not beyond its end.
#pragma once

#include <cstring>
#include <string>
#include <windows.h>

class TemplateWords {
public:
    TemplateWords(const void* start, size_t size) : m_next(static_cast<const char*>(start)), m_left(size) {}

    // Each function returns false if the template ends first.
    template <class Value>
    bool Read(Value& value) {
        if (m_left < sizeof value) return false;
        std::memcpy(&value, m_next, sizeof value);
        return SkipBytes(sizeof value);
    }

    bool SkipBytes(size_t count) {
        if (m_left < count) return false;
        m_next += count;
        m_left -= count;
        return true;
    }

    // Reads NUL-terminated text.
    bool ReadText(std::wstring& text) {
        WORD word;
        for (text.clear(); Read(word); text += static_cast<wchar_t>(word))
            if (word == 0) return true;
        return false;
    }

    // Reads a name or a number. The other one is set to an empty string or 0.
    bool ReadNameOrNumber(std::wstring& name, WORD& number) {
        constexpr WORD kNumber = 0xFFFF; // marks a number in place of a name
        name.clear();
        number = 0;
        const TemplateWords before = *this;
        WORD first;
        if (!Read(first)) return false;
        if (first == kNumber) return Read(number);
        *this = before;
        return ReadText(name);
    }

    bool SkipNameOrNumber() {
        std::wstring name;
        WORD number;
        return ReadNameOrNumber(name, number);
    }

    size_t Left() const { return m_left; }

private:
    const char* m_next;
    size_t m_left;
};

// Sets system colors during the lifetime of an object: SchemeColors dark({{COLOR_WINDOW, RGB(0, 0, 0)}});
#pragma once

#include <windows.h>

#include <initializer_list>
#include <utility>
#include <vector>

class SchemeColors {
public:
    SchemeColors(std::initializer_list<std::pair<INT, COLORREF>> colors) {
        std::vector<COLORREF> wanted;
        for (const auto& [element, color] : colors) {
            m_elements.push_back(element);
            m_before.push_back(::GetSysColor(element));
            wanted.push_back(color);
        }
        Set(wanted);
    }
    ~SchemeColors() { Set(m_before); }
    SchemeColors(const SchemeColors&) = delete;
    SchemeColors& operator=(const SchemeColors&) = delete;

private:
    void Set(const std::vector<COLORREF>& colors) {
        ::SetSysColors(static_cast<int>(m_elements.size()), m_elements.data(), colors.data());
    }

    std::vector<INT> m_elements;
    std::vector<COLORREF> m_before;
};

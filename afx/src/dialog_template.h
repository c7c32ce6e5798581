// A dialog template of the module chain, read once: its title, its font, and what it is as a page of a sheet.
#pragma once

#include <afx.h>

#include <vector>

class AfxDialogTemplate {
public:
    // lpszName: a number below 0x10000, or a name. Without a module it is searched along the chain.
    explicit AfxDialogTemplate(LPCSTR lpszName, HINSTANCE hModule = nullptr);

    bool IsFound() const { return m_size != 0; }
    HINSTANCE Module() const { return m_module; }
    LPCDLGTEMPLATEA Get() const { return reinterpret_cast<LPCDLGTEMPLATEA>(m_data); }
    const CString& Title() const { return m_title; }
    // The font of the template, or that of dialogs in general if it names none.
    LOGFONTA Font() const;
    // The same dialog as a child without frame and caption, hidden and enabled, whatever its template says.
    // scrollingCombos: the edit fields of its combo boxes scroll (plain templates only).
    std::vector<BYTE> AsPage(bool scrollingCombos) const;

private:
    class Reader;
    bool IsExtended() const;
    void ReadHead();
    void ScrollCombos(std::vector<BYTE>& copy) const;

    HINSTANCE m_module;
    const BYTE* m_data; // in the module; stays as long as that does
    std::size_t m_size;
    CString m_title;
    int m_points = 0;
    int m_weight = FW_NORMAL;
    bool m_italic = false;
    CString m_face;
};

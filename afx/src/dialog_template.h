// A dialog template resource: reads its title and font, and converts it for a page of a sheet.
#pragma once

#include <afx.h>

#include <vector>

class AfxDialogTemplate {
public:
    // lpszName is a name, or a number below 0x10000. If the module is null, the template is searched for in the list of
    // modules.
    explicit AfxDialogTemplate(LPCSTR lpszName, HINSTANCE hModule = nullptr);
    // A template in memory, which must outlive the object.
    AfxDialogTemplate(const BYTE* data, std::size_t size, HINSTANCE hModule);

    bool IsFound() const { return m_size != 0; }
    HINSTANCE Module() const { return m_module; }
    LPCDLGTEMPLATEA Get() const { return reinterpret_cast<LPCDLGTEMPLATEA>(m_data); }
    const CString& Title() const { return m_title; }
    // Returns the font of the template, or the default font of dialogs if it has none.
    LOGFONTA Font() const;
    // Returns the template of the same dialog as a child window: without frame and caption, hidden, enabled. If
    // scrollingCombos is set, the edit fields of combo boxes scroll (not in extended templates).
    std::vector<BYTE> AsPage(bool scrollingCombos) const;

private:
    class Reader;
    bool IsExtended() const;
    void ReadHead();
    void ScrollCombos(std::vector<BYTE>& copy) const;

    HINSTANCE m_module;
    const BYTE* m_data; // valid as long as the module is loaded
    std::size_t m_size;
    CString m_title;
    int m_points = 0;
    int m_weight = FW_NORMAL;
    bool m_italic = false;
    CString m_face;
};

// The controls of a dialog template, which can be changed and reordered before the dialog is created.
#pragma once

#include <optional>
#include <string>
#include <vector>
#include <windows.h>

struct TemplateControl {
    std::wstring className;
    DWORD style;
    RECT place;   // in dialog units; for a combo box without its list
    bool hasText; // text, and not an image

    bool IsOfClass(const wchar_t* name) const { return ::lstrcmpiW(className.c_str(), name) == 0; }

private:
    friend class DialogControls;
    std::vector<BYTE> bytes; // its part of the template
};

class DialogControls {
public:
    // Reads a template in the standard or the extended format. Returns nullopt if it is truncated.
    static std::optional<DialogControls> Read(const std::vector<BYTE>& dialog);

    // Returns the template with the controls' styles and their order; other changes are ignored.
    std::vector<BYTE> Template() const;

    std::vector<TemplateControl> controls; // in the order of the dialog

private:
    bool m_extended = false;
    std::vector<BYTE> m_head; // the part before the controls
};

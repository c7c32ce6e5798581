// Writes a dialog template in memory, in the format of a dialog resource.
#pragma once

#include <string>
#include <vector>
#include <windows.h>

#include "orlo/win/gdi.h"

// A control; position and size in dialog units.
struct DialogItem {
    const char* className = "";
    DWORD style = 0; // WS_CHILD and WS_VISIBLE are added
    short x = 0, y = 0, cx = 0, cy = 0;
    WORD id = 0xFFFF;
    std::string text; // in the code page of the system
};

// Returns a template with that title and size (dialog units), in the font of the library's own templates.
std::vector<BYTE> WriteDialogTemplate(const std::string& title, SIZE size, const std::vector<DialogItem>& items);

// Lays the dialog out from right to left, or from left to right.
void SetTemplateDirection(std::vector<BYTE>& dialog, bool fromRightToLeft);

// Measures texts in the font of the templates.
class DialogFont {
public:
    DialogFont();

    // Returns the width of a text in dialog units, rounded up, without the ampersand of a mnemonic.
    int Width(const std::string& text) const;
    // Returns the number of lines of the text at that width in dialog units, wrapped between words.
    int Lines(const std::string& text, int width) const;

private:
    orlo::OwnedDC m_screen;
    orlo::OwnedFont m_font;
    orlo::SelectedObject m_selected;
    int m_unitsWidth; // pixels of four horizontal dialog units
};

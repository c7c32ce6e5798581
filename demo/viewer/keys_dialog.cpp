// The list of keys.

#include "demo/viewer/keys_dialog.h"

#include <string>

#include "demo/viewer/resource.h"

namespace {

struct Row {
    const char* keys;
    const char* meaning;
};
constexpr Row kRows[] = {{"Click", "select; Ctrl adds or takes away, Shift adds"},
                         {"Drag to the right", "select what is inside"},
                         {"Drag to the left", "select also what is crossed"},
                         {"Tab, Shift+Tab", "select the next one, the one before"},
                         {"Ctrl+A, Esc", "select all, nothing"},
                         {"Ctrl+I", "select all that are similar"},
                         {"", ""},
                         {"Double click, Alt+Enter", "properties of the selection"},
                         {"F4, F6", "pane of properties; to it and back"},
                         {"Ctrl+Z, Ctrl+Y", "take the last change back, make it again"},
                         {"Ctrl+N", "new style after the selection"},
                         {"Ctrl+Enter, Ctrl+E", "edit the style, apply it"},
                         {"Ctrl+L", "layers: on, frozen, locked"},
                         {"", ""},
                         {"Wheel, + and -", "zoom"},
                         {"Home, End", "fit the drawing, the selection"},
                         {"Middle button, arrows", "move the drawing"},
                         {"Ctrl+W", "line weights, or all lines thin"},
                         {"", ""},
                         {"Ctrl+O, or drop a file", "open a drawing; Esc gives it up"},
                         {"Ctrl+S, Ctrl+Shift+S", "save it, under another name"},
                         {"F1", "in a sheet: help on its page"}};

} // namespace

CKeysDialog::CKeysDialog(CWnd* owner) : CDialog(IDD_KEYS, owner) {}

BOOL CKeysDialog::OnInitDialog() {
    std::string keys, meanings;
    for (const Row& row : kRows) {
        keys += std::string(row.keys) + "\n";
        meanings += std::string(row.meaning) + "\n";
    }
    SetDlgItemText(IDC_KEYS, keys.c_str());
    SetDlgItemText(IDC_MEANINGS, meanings.c_str());
    return CDialog::OnInitDialog();
}

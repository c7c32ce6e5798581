// CKeysDialog: shows keys and mouse actions.

#include "demo/viewer/keys_dialog.h"

#include <string>

#include "demo/viewer/resource.h"

namespace {

struct Row {
    const char* keys;
    const char* meaning;
};
constexpr Row kRows[] = {{"Click", "select; Ctrl adds or removes, Shift adds"},
                         {"Drag to the right", "select the graphics inside the rectangle"},
                         {"Drag to the left", "also select graphics that it touches"},
                         {"Tab, Shift+Tab", "select the next, the previous"},
                         {"Ctrl+A, Esc", "select all; deselect"},
                         {"Ctrl+I", "select similar graphics"},
                         {"", ""},
                         {"Double click, Alt+Enter", "properties of the selection"},
                         {"F4, F6", "properties pane; move the focus there and back"},
                         {"Ctrl+Z, Ctrl+Y", "undo, redo"},
                         {"Ctrl+N", "new style from the selection"},
                         {"Ctrl+Enter, Ctrl+E", "edit, apply the current style"},
                         {"Ctrl+L", "layers: on, frozen, locked"},
                         {"", ""},
                         {"Wheel, + and -", "zoom"},
                         {"Home, End", "fit the drawing, the selection"},
                         {"Middle button, arrows", "move the drawing"},
                         {"Ctrl+W", "line weights or thin lines"},
                         {"", ""},
                         {"Ctrl+O, or drop a file", "open a drawing; Esc cancels"},
                         {"Ctrl+S, Ctrl+Shift+S", "save, save under another name"},
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

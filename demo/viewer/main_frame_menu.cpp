// The main window's menu: enabled and checked items, and submenus created when they open.

#include "demo/viewer/main_frame.h"

#include <algorithm>

#include "demo/viewer/drawing_menu.h"
#include "demo/viewer/file_name.h"
#include "demo/viewer/recent_files.h"
#include "demo/viewer/resource.h"
#include "demo/viewer/settings.h"

namespace {

constexpr CommandRange kRecentCommands = {ID_FILE_RECENT_FIRST, ID_FILE_RECENT_LAST};
static_assert(kRecentCommands.last - kRecentCommands.first + 1 == RecentFiles::kMax, "a command for each");
constexpr CommandRange kKindCommands = {ID_SELECT_KIND_FIRST, ID_SELECT_KIND_LAST};
constexpr CommandRange kLayerCommands = {ID_SELECT_LAYER_FIRST, ID_SELECT_LAYER_LAST};

// Commands that need a drawing, and those that need selected graphics.
constexpr UINT kOfDrawing[] = {ID_FILE_SAVE,        ID_FILE_SAVE_AS,    ID_FILE_WARNINGS,    ID_EDIT_UNDO,
                               ID_EDIT_REDO,        ID_EDIT_SELECT_ALL, ID_EDIT_SELECT_NEXT, ID_EDIT_SELECT_PREVIOUS,
                               ID_STYLE_PROPERTIES, ID_VIEW_ZOOM_IN,    ID_VIEW_ZOOM_OUT,    ID_VIEW_FIT_ALL,
                               ID_VIEW_LAYERS};
constexpr UINT kOfSelection[] = {ID_EDIT_SELECT_SIMILAR, ID_EDIT_SELECT_NONE, ID_EDIT_PROPERTIES,
                                 ID_STYLE_NEW,           ID_STYLE_APPLY,      ID_VIEW_FIT_SELECTION};

template <size_t N>
bool Contains(const UINT (&commands)[N], UINT command) {
    return std::find(std::begin(commands), std::end(commands), command) != std::end(commands);
}

} // namespace

bool CMainFrame::CanDo(UINT command) const {
    if (!m_document) return !Contains(kOfDrawing, command) && !Contains(kOfSelection, command);
    if (Contains(kOfSelection, command) && m_document->Selected().Count() == 0) return false;
    switch (command) {
    case ID_FILE_WARNINGS:
        return !m_document->Warnings().empty();
    case ID_EDIT_UNDO:
        return m_document->UndoSteps() > 0;
    case ID_EDIT_REDO:
        return m_document->RedoSteps() > 0;
    case ID_STYLE_PROPERTIES:
    case ID_STYLE_APPLY:
        return m_document->Styles().Current() != 0;
    default:
        return true;
    }
}

// A submenu is identified by its first item.
bool CMainFrame::FillSubmenu(HMENU menu) {
    const UINT command = ::GetMenuItemID(menu, 0);
    std::vector<std::string> texts;
    if (command == kRecentCommands.first) {
        for (const std::string& path : RecentFiles::List())
            texts.push_back(SystemText(path));
        FillMenu(menu, kRecentCommands, texts, "None");
        return true;
    }
    if (command == kKindCommands.first) {
        for (const KindCount& kind : SelectedKinds())
            texts.push_back(KindText(kind));
        FillMenu(menu, kKindCommands, texts, "Nothing is selected");
    } else if (command == kLayerCommands.first) {
        for (const LayerCount& layer : Layers())
            texts.push_back(layer.name + "\t" + std::to_string(layer.count));
        FillMenu(menu, kLayerCommands, texts, "No graphics");
    } else {
        return false;
    }
    return true;
}

bool CMainFrame::IsChosen(UINT command) const {
    switch (command) {
    case ID_VIEW_DARK_BACKGROUND:
        return m_view.Background() == CDrawingView::kDarkBackground;
    case ID_VIEW_LIGHT_BACKGROUND:
        return m_view.Background() == CDrawingView::kLightBackground;
    case ID_VIEW_LINE_WEIGHTS:
        return m_view.ShowsLineWeights();
    case ID_VIEW_PROPERTIES:
        return m_pane.IsOpen();
    case ID_VIEW_MARK_SYSTEM:
    case ID_VIEW_MARK_POINT:
    case ID_VIEW_MARK_COMMA:
        return Settings::Number(kSettingDecimalMark).value_or(0) == MarkOf(command);
    default:
        return false;
    }
}

// Returns the character of a command that selects the decimal mark, 0 for the system's.
int CMainFrame::MarkOf(UINT command) {
    return command == ID_VIEW_MARK_POINT ? '.' : command == ID_VIEW_MARK_COMMA ? ',' : 0;
}

LRESULT CMainFrame::OnInitMenuPopup(WPARAM wParam, LPARAM) {
    const HMENU menu = reinterpret_cast<HMENU>(wParam);
    if (FillSubmenu(menu)) return 0;
    for (int i = 0; i < ::GetMenuItemCount(menu); ++i) {
        const UINT command = ::GetMenuItemID(menu, i);
        ::EnableMenuItem(menu, i, MF_BYPOSITION | (CanDo(command) ? MF_ENABLED : MF_GRAYED));
        ::CheckMenuItem(menu, i, MF_BYPOSITION | (IsChosen(command) ? MF_CHECKED : MF_UNCHECKED));
    }
    return 0;
}

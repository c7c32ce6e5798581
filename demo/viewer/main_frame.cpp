// The main window.

#include "demo/viewer/main_frame.h"

#include <algorithm>
#include <cctype>
#include <cstring>
#include <iterator>
#include <optional>
#include <utility>

#include "demo/viewer/control_tables.h"
#include "demo/viewer/counted.h"
#include "demo/viewer/help.h"
#include "demo/viewer/keys_dialog.h"
#include "demo/viewer/layer_states.h"
#include "demo/viewer/layers_dialog.h"
#include "demo/viewer/long_operation.h"
#include "demo/viewer/property_sheet.h"
#include "demo/viewer/resource.h"
#include "demo/viewer/settings.h"
#include "demo/viewer/style_commands.h"
#include "drawcore/application.h"
#include "orlo/host/application.h"
#include "orlo/host/table.h"

namespace {

// Pixels at 96 dpi.
constexpr int kSplitterWidth = 5;
constexpr int kSmallestPane = 120;
constexpr int kSmallestView = 200;
constexpr int kSmallestHeight = 240;

constexpr UINT kTyped = WM_APP + 2; // posted after a keystroke in a sheet, so that the field has handled it

constexpr const char* kHello = "Open a drawing with Ctrl+O, or drop one here";
std::string ChangedText(int changed, const Document& document) {
    if (!changed) return "Nothing changed";
    std::string text = Counted(changed, "graphic") + " changed";
    if (const int dropped = document.DroppedSteps())
        text += "; not enough memory to undo the oldest " + Counted(dropped, "change");
    return text;
}

// Returns whether the command changes neither the drawing nor the selection.
bool IsViewCommand(UINT command) {
    return command >= ID_VIEW_ZOOM_IN && command <= ID_HELP_GUIDE && command != ID_VIEW_PROPERTIES;
}

// Returns the resolution of the window's monitor, or the system's if the window is null. Before Windows 10 all monitors
// have the same.
int DpiOf(HWND window) {
    using Function = UINT(WINAPI*)(HWND);
    const FARPROC found = ::GetProcAddress(::GetModuleHandleA("user32.dll"), "GetDpiForWindow");
    if (found && window) return static_cast<int>(reinterpret_cast<Function>(reinterpret_cast<void*>(found))(window));
    const orlo::WindowDC screen(nullptr);
    return ::GetDeviceCaps(screen.get(), LOGPIXELSY);
}

// Before Windows 10 there is no such setting; the background is then dark.
bool IsSystemLight() {
    DWORD light = 0, size = sizeof light;
    ::RegGetValueA(HKEY_CURRENT_USER, R"(Software\Microsoft\Windows\CurrentVersion\Themes\Personalize)",
                   "AppsUseLightTheme", RRF_RT_REG_DWORD, nullptr, &light, &size);
    return light != 0;
}

} // namespace

IMPLEMENT_DYNAMIC(CMainFrame, CFrameWnd)

BEGIN_MESSAGE_MAP(CMainFrame, CFrameWnd)
ON_WM_CREATE()
ON_WM_CLOSE()
ON_MESSAGE(WM_QUERYENDSESSION, &CMainFrame::OnQueryEndSession)
ON_WM_DESTROY()
ON_WM_SIZE()
ON_MESSAGE(WM_ACTIVATE, &CMainFrame::OnActivate)
ON_WM_SETFOCUS()
ON_WM_DROPFILES()
ON_MESSAGE(kTyped, &CMainFrame::OnTyped)
ON_MESSAGE(kWaitCursorEnds, &CMainFrame::OnHourglassEnds)
ON_MESSAGE(WM_DPICHANGED, &CMainFrame::OnDpiChanged)
ON_MESSAGE(WM_GETMINMAXINFO, &CMainFrame::OnGetMinMaxInfo)
ON_MESSAGE(WM_SETTINGCHANGE, &CMainFrame::OnSettingChange)
ON_MESSAGE(WM_INITMENUPOPUP, &CMainFrame::OnInitMenuPopup)
ON_COMMAND(ID_FILE_OPEN, &CMainFrame::OnFileOpen)
ON_COMMAND_RANGE(ID_FILE_RECENT_FIRST, ID_FILE_RECENT_LAST, &CMainFrame::OnRecentFile)
ON_COMMAND(ID_FILE_SAVE, &CMainFrame::OnFileSave)
ON_COMMAND(ID_FILE_SAVE_AS, &CMainFrame::OnFileSaveAs)
ON_COMMAND(ID_FILE_WARNINGS, &CMainFrame::OnFileWarnings)
ON_COMMAND(ID_APP_EXIT, &CMainFrame::OnAppExit)
ON_COMMAND(ID_EDIT_UNDO, &CMainFrame::OnEditUndo)
ON_COMMAND(ID_EDIT_REDO, &CMainFrame::OnEditRedo)
ON_COMMAND(ID_EDIT_SELECT_ALL, &CMainFrame::OnSelectAll)
ON_COMMAND(ID_EDIT_SELECT_NEXT, &CMainFrame::OnSelectNext)
ON_COMMAND(ID_EDIT_SELECT_PREVIOUS, &CMainFrame::OnSelectPrevious)
ON_COMMAND(ID_EDIT_SELECT_NONE, &CMainFrame::OnSelectNone)
ON_COMMAND(ID_EDIT_SELECT_SIMILAR, &CMainFrame::OnSelectSimilar)
ON_COMMAND_RANGE(ID_SELECT_KIND_FIRST, ID_SELECT_KIND_LAST, &CMainFrame::OnSelectKind)
ON_COMMAND_RANGE(ID_SELECT_LAYER_FIRST, ID_SELECT_LAYER_LAST, &CMainFrame::OnSelectLayer)
ON_COMMAND(ID_EDIT_PROPERTIES, &CMainFrame::OnProperties)
ON_COMMAND(ID_STYLE_NEW, &CMainFrame::OnNewStyle)
ON_COMMAND(ID_STYLE_PROPERTIES, &CMainFrame::OnStyleProperties)
ON_COMMAND(ID_STYLE_APPLY, &CMainFrame::OnApplyStyle)
ON_COMMAND(ID_VIEW_ZOOM_IN, &CMainFrame::OnZoomIn)
ON_COMMAND(ID_VIEW_ZOOM_OUT, &CMainFrame::OnZoomOut)
ON_COMMAND(ID_VIEW_FIT_ALL, &CMainFrame::OnFitAll)
ON_COMMAND(ID_VIEW_FIT_SELECTION, &CMainFrame::OnFitSelection)
ON_COMMAND(ID_VIEW_DARK_BACKGROUND, &CMainFrame::OnDarkBackground)
ON_COMMAND(ID_VIEW_LIGHT_BACKGROUND, &CMainFrame::OnLightBackground)
ON_COMMAND(ID_VIEW_LINE_WEIGHTS, &CMainFrame::OnLineWeights)
ON_COMMAND(ID_VIEW_LAYERS, &CMainFrame::OnLayers)
ON_COMMAND_RANGE(ID_VIEW_MARK_SYSTEM, ID_VIEW_MARK_COMMA, &CMainFrame::OnDecimalMark)
ON_COMMAND(ID_VIEW_PROPERTIES, &CMainFrame::OnPropertiesPane)
ON_COMMAND(ID_VIEW_SWITCH_PANE, &CMainFrame::OnSwitchPane)
ON_COMMAND(ID_HELP_KEYS, &CMainFrame::OnHelpKeys)
ON_COMMAND(ID_HELP_GUIDE, &CMainFrame::OnHelpGuide)
ON_MESSAGE(WM_COMMANDHELP, &CMainFrame::OnCommandHelp)
END_MESSAGE_MAP()

CMainFrame::CMainFrame()
    : m_view(*this), m_pane([this](int changed) { ShowApplied(changed); }),
      m_hints([this](const std::string& hint) { m_status.ShowMessage(hint); }),
      m_dialogMessages([this](MSG& message) { return OnDialogMessage(message); }),
      m_splitter([this](int left, bool done) { SizePane(left, done); }),
      m_paneKeys(::LoadAcceleratorsA(AfxGetInstanceHandle(), MAKEINTRESOURCEA(IDR_PANE))) {}

BOOL CMainFrame::Create() {
    return LoadFrame(IDR_MAINFRAME);
}

BOOL CMainFrame::PreCreateWindow(CREATESTRUCT& cs) {
    CRect work; // of the screen
    ::SystemParametersInfoA(SPI_GETWORKAREA, 0, static_cast<RECT*>(work), 0);
    const int dpi = DpiOf(nullptr);
    cs.cx = std::min(::MulDiv(1000, dpi, 96), work.Width());
    cs.cy = std::min(::MulDiv(740, dpi, 96), work.Height());
    return CFrameWnd::PreCreateWindow(cs);
}

int CMainFrame::OnCreate(LPCREATESTRUCT create) {
    if (CFrameWnd::OnCreate(create) == -1) return -1;
    if (!m_view.Create(this, IDC_VIEW) || !m_status.Create(this, IDC_STATUS)) return -1;
    if (!m_splitter.Create(this, IDC_SPLITTER) || !m_pane.CreatePane(WS_CHILD, this, IDC_PROPERTIES_PANE)) return -1;
    if (!m_hints.Create(m_hWnd)) return -1;
    ShowSettings();
    m_status.SetDpi(DpiOf(m_hWnd));
    m_status.ShowMessage(kHello);
    DragAcceptFiles();
    return 0;
}

void CMainFrame::OnDestroy() {
    SaveWindowPlace();
    m_pane.SetDocument(nullptr);
    m_view.SetDocument(nullptr);
    CFrameWnd::OnDestroy();
}

void CMainFrame::OnSize(UINT type, int cx, int cy) {
    CFrameWnd::OnSize(type, cx, cy);
    if (type != SIZE_MINIMIZED && m_status.GetSafeHwnd()) ArrangeClient();
}

void CMainFrame::ArrangeClient() {
    m_status.Arrange();
    CRect client;
    GetClientRect(client);
    const int height = std::max(0, client.Height() - m_status.Height());
    client.bottom = height;
    const int pane = PaneWidth(client), bar = m_pane.IsOpen() ? Scaled(kSplitterWidth) : 0;
    const int width = std::max(0, client.Width() - pane - bar);
    m_view.MoveWindow(0, 0, width, height);
    m_splitter.MoveWindow(width, 0, bar, height);
    m_splitter.ShowWindow(bar ? SW_SHOWNA : SW_HIDE);
    m_pane.MoveWindow(width + bar, 0, pane, height);
}

// Keeps some space for the drawing if the pane has at least its minimum width.
int CMainFrame::PaneWidth(const CRect& client) const {
    if (!m_pane.IsOpen()) return 0;
    const int smallest = Scaled(kSmallestPane);
    const int most = std::max(smallest, client.Width() - Scaled(kSmallestView + kSplitterWidth));
    const int width = m_paneWidth ? Scaled(m_paneWidth) : m_pane.FittingWidth(client.Height());
    return std::clamp(width, smallest, most);
}

void CMainFrame::SizePane(int left, bool done) {
    CRect client;
    GetClientRect(client);
    const int width = client.Width() - left - Scaled(kSplitterWidth);
    m_paneWidth = std::max(kSmallestPane, ::MulDiv(width, 96, DpiOf(m_hWnd)));
    ArrangeClient();
    if (done) Settings::SetNumber(kSettingPaneWidth, m_paneWidth);
}

int CMainFrame::Scaled(int at96) const {
    return ::MulDiv(at96, DpiOf(m_hWnd), 96);
}

LRESULT CMainFrame::OnGetMinMaxInfo(WPARAM, LPARAM lParam) {
    auto& info = *reinterpret_cast<MINMAXINFO*>(lParam);
    info.ptMinTrackSize = CPoint(Scaled(kSmallestPane + kSmallestView), Scaled(kSmallestHeight));
    return 0;
}

// ---- Settings

void CMainFrame::ShowSettings() {
    m_view.ShowLineWeights(Settings::Number(kSettingLineWeights).value_or(1) != 0);
    SetBackground(Settings::Number(kSettingLightBackground).value_or(IsSystemLight()) != 0);
    m_paneWidth = Settings::Number(kSettingPaneWidth).value_or(0);
    ShowDecimalMark();
    if (Settings::Number(kSettingPaneOpen).value_or(0)) m_pane.Open();
}

// Ignores a position that is not on any monitor.
void CMainFrame::ShowFirst(int show) {
    WINDOWPLACEMENT place = {};
    place.length = sizeof place;
    long* const edges[] = {&place.rcNormalPosition.left, &place.rcNormalPosition.top, &place.rcNormalPosition.right,
                           &place.rcNormalPosition.bottom};
    bool known = true;
    for (size_t i = 0; i < std::size(edges); ++i) {
        const std::optional<int> edge = Settings::Number(kSettingWindow[i]);
        known = known && edge;
        *edges[i] = edge.value_or(0);
    }
    if (known && ::MonitorFromRect(&place.rcNormalPosition, MONITOR_DEFAULTTONULL)) {
        place.showCmd = SW_HIDE;
        ::SetWindowPlacement(m_hWnd, &place);
    }
    const bool asBefore = show == SW_SHOWNORMAL || show == SW_SHOWDEFAULT;
    const bool maximized = asBefore && Settings::Number(kSettingMaximized).value_or(0);
    ShowWindow(maximized ? SW_SHOWMAXIMIZED : show);
}

void CMainFrame::SaveWindowPlace() const {
    WINDOWPLACEMENT place = {};
    place.length = sizeof place;
    if (!::GetWindowPlacement(m_hWnd, &place)) return;
    const RECT& normal = place.rcNormalPosition;
    const long edges[] = {normal.left, normal.top, normal.right, normal.bottom};
    for (size_t i = 0; i < std::size(edges); ++i)
        Settings::SetNumber(kSettingWindow[i], edges[i]);
    Settings::SetNumber(kSettingMaximized, place.showCmd == SW_SHOWMAXIMIZED);
    Settings::SetNumber(kSettingPaneOpen, m_pane.IsOpen());
}

// Typed text in the pane has already been applied, with the previous decimal mark.
void CMainFrame::OnDecimalMark(UINT command) {
    Settings::SetNumber(kSettingDecimalMark, MarkOf(command));
    ShowDecimalMark();
}

void CMainFrame::ShowDecimalMark() {
    char system[8] = "";
    ::GetLocaleInfoA(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, system, sizeof system);
    const int chosen = Settings::Number(kSettingDecimalMark).value_or(0);
    const bool comma = (chosen ? chosen : system[0]) == ',';
    ::TableSetStringVar(::AppGetCurrentApp()->pVariables, kVarDecimalMark, comma ? "," : ".");
    OnSelectionChanged();
}

LRESULT CMainFrame::OnSettingChange(WPARAM, LPARAM) {
    if (!Settings::Number(kSettingLightBackground)) SetBackground(IsSystemLight());
    return Default();
}

// Handles a move to a monitor with another resolution; the message contains the suggested size.
LRESULT CMainFrame::OnDpiChanged(WPARAM wParam, LPARAM lParam) {
    m_status.SetDpi(HIWORD(wParam));
    const RECT& place = *reinterpret_cast<const RECT*>(lParam);
    MoveWindow(place.left, place.top, place.right - place.left, place.bottom - place.top);
    ArrangeClient(); // even if the size is the same
    return 0;
}

LRESULT CMainFrame::OnActivate(WPARAM wParam, LPARAM) {
    if (LOWORD(wParam) == WA_INACTIVE) m_focus = m_pane.HasFocus() ? ::GetFocus() : nullptr;
    return Default();
}

void CMainFrame::OnSetFocus(CWnd*) {
    if (!m_view.GetSafeHwnd()) return;
    const HWND focus = std::exchange(m_focus, nullptr);
    ::SetFocus(focus && ::IsChild(m_pane.m_hWnd, focus) ? focus : m_view.m_hWnd);
}

// ---- Editing

// Typed text in the pane is applied before any command that uses the drawing.
BOOL CMainFrame::OnCommand(WPARAM wParam, LPARAM lParam) {
    if (lParam && FillStyleControl(wParam, lParam, m_document.get())) return TRUE;
    if (!lParam && !IsViewCommand(LOWORD(wParam)) && !m_pane.Apply()) return TRUE;
    return CFrameWnd::OnCommand(wParam, lParam);
}

void CMainFrame::OnProperties() {
    OnEditProperties();
}

void CMainFrame::OnEditProperties() {
    if (!CanDo(ID_EDIT_PROPERTIES)) {
        m_status.ShowMessage("Nothing is selected");
        return;
    }
    const SheetOutcome outcome = EditSelection(this, *m_document);
    ShowChange();
    m_status.ShowMessage(ChangedText(outcome.changed, *m_document));
}

// Updates the information about graphics that the window shows beside the drawing.
void CMainFrame::ShowChange() {
    ShowTitle();
    OnSelectionChanged();
}

// The pane already shows the values that it has written.
void CMainFrame::ShowApplied(int changed) {
    m_hints.Renew();
    ShowTitle();
    ShowSelected();
    m_status.ShowMessage(ChangedText(changed, *m_document));
}

void CMainFrame::OnEditUndo() {
    if (!CanDo(ID_EDIT_UNDO)) return;
    ShowUndone("Undone: " + m_document->Undo());
}

void CMainFrame::OnEditRedo() {
    if (!CanDo(ID_EDIT_REDO)) return;
    ShowUndone("Redone: " + m_document->Redo());
}

// Undo also changes layers; graphics on hidden layers must not remain selected.
void CMainFrame::ShowUndone(const std::string& message) {
    m_status.ShowMessage(message);
    m_view.Redraw();
    ShowChange();
    DeselectUnselectable();
}

void CMainFrame::DeselectUnselectable() {
    const std::vector<GraphicStruct*> selectable = m_document->CurrentlySelectable();
    const int left = m_document->Selected().Count() - static_cast<int>(selectable.size());
    if (left == 0) return;
    m_view.SelectOnly(selectable);
    m_status.ShowMessage(Counted(left, "graphic") + " on locked or hidden layers deselected");
}

// ---- Styles

void CMainFrame::OnNewStyle() {
    if (!CanDo(ID_STYLE_NEW)) return;
    m_status.ShowMessage(NewStyle(this, *m_document));
    ShowTitle();
}

void CMainFrame::OnStyleProperties() {
    if (!CanDo(ID_STYLE_PROPERTIES)) return;
    m_status.ShowMessage(EditStyles(this, *m_document));
    ShowTitle();
}

void CMainFrame::OnApplyStyle() {
    if (!CanDo(ID_STYLE_APPLY)) return;
    m_status.ShowMessage(ApplyStyle(*m_document));
    ShowChange();
}

// ---- Selection

void CMainFrame::OnSelectAll() {
    m_view.SelectAll();
}

void CMainFrame::OnSelectNext() {
    m_view.SelectNext(true);
}

void CMainFrame::OnSelectPrevious() {
    m_view.SelectNext(false);
}

void CMainFrame::OnSelectNone() {
    m_view.ClearSelection();
}

void CMainFrame::OnSelectSimilar() {
    if (CanDo(ID_EDIT_SELECT_SIMILAR))
        m_view.SelectOnly(SimilarGraphics(m_document->Selectable(), m_document->Selected().Members()));
}

std::vector<KindCount> CMainFrame::SelectedKinds() const {
    return m_document ? CountKinds(m_document->Selected().Members()) : std::vector<KindCount>();
}

void CMainFrame::OnSelectKind(UINT command) {
    const std::vector<KindCount> kinds = SelectedKinds();
    const size_t place = command - ID_SELECT_KIND_FIRST;
    if (place < kinds.size()) m_view.SelectOnly(OfKind(m_document->Selected().Members(), kinds[place].kind));
}

std::vector<LayerCount> CMainFrame::Layers() const {
    return m_document ? CountLayers(m_document->Drawing(), m_document->Selectable()) : std::vector<LayerCount>();
}

void CMainFrame::OnSelectLayer(UINT command) {
    const std::vector<LayerCount> layers = Layers();
    const size_t place = command - ID_SELECT_LAYER_FIRST;
    if (place < layers.size()) m_view.SelectOnly(OnLayer(m_document->Selectable(), layers[place].layer));
}

// Shows the wait cursor, since a sheet, undo or style may change many graphics.
void CMainFrame::OnDrawingChanging() {
    ShowWaitCursor(*this);
}

LRESULT CMainFrame::OnHourglassEnds(WPARAM, LPARAM) {
    RestoreCursor();
    return 0;
}

bool CMainFrame::MayChangeSelection() {
    return m_pane.Apply();
}

void CMainFrame::OnSelectionChanged() {
    ShowSelected();
    m_pane.Follow();
}

void CMainFrame::ShowSelected() {
    const Graphics selected = m_document ? m_document->Selected().Members() : Graphics();
    if (selected.empty()) return m_status.ShowSelection({}, {});
    const std::vector<ValueCount> widths = CountValues(m_document->Drawing(), selected, kPropPenWidth);
    m_status.ShowSelection({KindsText(selected), Counted(static_cast<int>(selected.size()), "graphic")},
                           {CountsText(widths), CountsText(widths, 1)});
}

void CMainFrame::OnPointerMoved(WorldPoint point) {
    if (m_document) m_status.ShowPointer(m_document->LengthText(point.x) + ",  " + m_document->LengthText(point.y));
}

// ---- View

void CMainFrame::OnZoomIn() {
    m_view.ZoomIn();
}

void CMainFrame::OnZoomOut() {
    m_view.ZoomOut();
}

void CMainFrame::OnFitAll() {
    m_view.FitAll();
}

void CMainFrame::OnFitSelection() {
    m_view.FitSelection();
}

void CMainFrame::OnDarkBackground() {
    ChooseBackground(false);
}

void CMainFrame::OnLightBackground() {
    ChooseBackground(true);
}

void CMainFrame::ChooseBackground(bool light) {
    SetBackground(light);
    Settings::SetNumber(kSettingLightBackground, light);
}

void CMainFrame::SetBackground(bool light) {
    const COLORREF color = light ? CDrawingView::kLightBackground : CDrawingView::kDarkBackground;
    m_view.SetBackground(color);
    ::TableSetIntVar(::AppGetCurrentApp()->pVariables, kVarPreviewBackground, static_cast<int>(color));
}

void CMainFrame::OnLineWeights() {
    m_view.ShowLineWeights(!m_view.ShowsLineWeights());
    Settings::SetNumber(kSettingLineWeights, m_view.ShowsLineWeights());
}

void CMainFrame::OnLayers() {
    if (!CanDo(ID_VIEW_LAYERS)) return;
    LayerStates before(m_document->Drawing());
    CLayersDialog(this, m_document->Drawing(), [this] { m_view.Redraw(); }).DoModal();
    m_document->Record(LayerStates::ChangeSince(std::move(before)));
    ShowTitle();
    DeselectUnselectable();
}

// ---- Properties pane

void CMainFrame::OnPropertiesPane() {
    if (m_pane.IsOpen()) {
        if (m_pane.HasFocus()) m_view.SetFocus();
        m_pane.Close();
    } else {
        m_pane.Open();
    }
    ArrangeClient();
}

void CMainFrame::OnSwitchPane() {
    if (m_pane.HasFocus()) {
        m_view.SetFocus();
        return;
    }
    if (!m_pane.IsOpen()) OnPropertiesPane();
    m_pane.TakeFocus();
}

LRESULT CMainFrame::OnTyped(WPARAM, LPARAM) {
    m_hints.ShowFocused(m_document.get());
    return 0;
}

bool CMainFrame::OnDialogMessage(MSG& message) {
    m_hints.Watch(message, m_document.get());
    if (message.message == WM_CHAR || message.message == WM_KEYDOWN) PostMessage(kTyped);
    if (message.message == WM_KEYDOWN && message.wParam == VK_F1) {
        ShowHelp(::GetActiveWindow(), HelpTopicOf(message.hwnd));
        return true;
    }
    if (!::IsChild(m_pane.m_hWnd, message.hwnd)) return false;
    m_pane.RevealFocus();
    if (OpenMenuByKey(message)) return true;
    return !IsKeyOfFocus(message) && ::TranslateAcceleratorA(m_hWnd, m_paneKeys, &message);
}

// Mnemonics of the menu bar take precedence over those of labels in the pane.
bool CMainFrame::OpenMenuByKey(const MSG& message) {
    if (message.message != WM_SYSCHAR) return false;
    const HMENU menu = ::GetMenu(m_hWnd);
    for (int i = 0; i < ::GetMenuItemCount(menu); ++i) {
        char text[64] = "";
        ::GetMenuStringA(menu, static_cast<UINT>(i), text, sizeof text, MF_BYPOSITION);
        const char* mark = std::strchr(text, '&');
        if (!mark || std::toupper(mark[1]) != std::toupper(static_cast<int>(message.wParam & 0xFF))) continue;
        PostMessage(WM_SYSCOMMAND, SC_KEYMENU, static_cast<LPARAM>(message.wParam));
        return true;
    }
    return false;
}

// A field undoes its own typing first; then Ctrl+Z undoes changes of the drawing.
bool CMainFrame::IsKeyOfFocus(const MSG& message) const {
    const bool isUndo = message.message == WM_KEYDOWN && message.wParam == 'Z' && ::GetKeyState(VK_SHIFT) >= 0;
    return isUndo && ::SendMessageA(message.hwnd, EM_CANUNDO, 0, 0);
}

void CMainFrame::OnHelpKeys() {
    CKeysDialog(this).DoModal();
}

void CMainFrame::OnHelpGuide() {
    ShowHelp(m_hWnd, HelpTopicOf(m_hWnd));
}

// Called for the Help button of a sheet through its page.
LRESULT CMainFrame::OnCommandHelp(WPARAM, LPARAM) {
    ShowHelp(::GetActiveWindow(), HelpTopicOf(::GetFocus()));
    return TRUE;
}

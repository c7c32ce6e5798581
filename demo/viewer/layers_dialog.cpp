// The dialog of layers.

#include "demo/viewer/layers_dialog.h"

#include <commctrl.h>

#include <algorithm>
#include <cctype>
#include <string>
#include <utility>

#include "demo/viewer/resource.h"
#include "demo/viewer/value_counts.h"
#include "drawcore/drawing.h"
#include "drawcore/layer.h"

namespace {

// A state of a layer: a column of the list, and a check box for the selected rows.
struct State {
    const char* title;
    UINT box;
    uint32_t flag;
    bool whenSet; // whether the state means that the flag is set or clear
};
constexpr State kStates[] = {{"On", IDC_LAYER_ON, kLayerOff, false},
                             {"Frozen", IDC_LAYER_FROZEN, kLayerFrozen, true},
                             {"Locked", IDC_LAYER_LOCKED, kLayerLocked, true}};
constexpr size_t kStateCount = std::size(kStates);
constexpr int kFirstState = 1; // column after the name
constexpr int kCountColumn = kFirstState + static_cast<int>(kStateCount);
constexpr int kColorColumn = kCountColumn + 1;

constexpr UINT kShowStates = WM_APP;

// In dialog units.
constexpr int kStateWidth = 38;
constexpr int kCountWidth = 44;
constexpr int kColorWidth = 50;

void SetFlags(DrawingStruct* drawing, uint16_t layer, uint32_t flags) {
    ::LayerSet(drawing, layer, ::LayerGetColor(drawing, layer), flags, ::LayerGetLineStyle(drawing, layer));
}

void AddColumn(HWND list, int place, const char* title, int width, int format) {
    LVCOLUMNA column = {};
    column.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_FMT | LVCF_SUBITEM;
    column.fmt = format;
    column.pszText = const_cast<char*>(title);
    column.cx = width;
    column.iSubItem = place;
    ::SendMessageA(list, LVM_INSERTCOLUMNA, static_cast<WPARAM>(place), reinterpret_cast<LPARAM>(&column));
}

int ContrastTo(uint32_t color) {
    const int light = 2 * GetRValue(color) + 5 * GetGValue(color) + GetBValue(color);
    return light > 8 * 127 ? RGB(0, 0, 0) : RGB(255, 255, 255);
}

bool ContainsText(const std::string& text, const std::string& part) {
    const auto isSame = [](char a, char b) {
        return std::tolower(static_cast<unsigned char>(a)) == std::tolower(static_cast<unsigned char>(b));
    };
    return std::search(text.begin(), text.end(), part.begin(), part.end(), isSame) != text.end();
}

} // namespace

BEGIN_MESSAGE_MAP(CLayersDialog, CDialog)
ON_COMMAND_RANGE(IDC_LAYER_ON, IDC_LAYER_LOCKED, &CLayersDialog::OnState)
ON_EN_CHANGE(IDC_LAYER_FIND, &CLayersDialog::OnFind)
ON_MESSAGE(kShowStates, &CLayersDialog::OnShowStates)
END_MESSAGE_MAP()

CLayersDialog::CLayersDialog(CWnd* owner, DrawingStruct* drawing, std::function<void()> changed)
    : CDialog(IDD_LAYERS, owner), m_drawing(drawing), m_changed(std::move(changed)), m_before(drawing),
      m_layers(AllLayers(drawing)) {}

BOOL CLayersDialog::OnInitDialog() {
    CDialog::OnInitDialog();
    m_list = ::GetDlgItem(m_hWnd, IDC_LAYER_LIST);
    ListView_SetExtendedListViewStyle(m_list, LVS_EX_FULLROWSELECT);
    AddColumns();
    ShowRows();
    ShowStates();
    ::SetFocus(m_list);
    return FALSE;
}

void CLayersDialog::AddColumns() {
    CRect widths(kStateWidth, 0, kCountWidth, 0), color(kColorWidth, 0, 0, 0), client;
    ::MapDialogRect(m_hWnd, widths);
    ::MapDialogRect(m_hWnd, color);
    ::GetClientRect(m_list, client);
    const int others = static_cast<int>(kStateCount) * widths.left + widths.right + color.left;
    const int bar = ::GetSystemMetrics(SM_CXVSCROLL);
    AddColumn(m_list, 0, "Name", std::max<int>(widths.left, client.Width() - others - bar), LVCFMT_LEFT);
    int place = kFirstState;
    for (const State& state : kStates)
        AddColumn(m_list, place++, state.title, widths.left, LVCFMT_CENTER);
    AddColumn(m_list, kCountColumn, "Graphics", widths.right, LVCFMT_RIGHT);
    AddColumn(m_list, kColorColumn, "Color", color.left, LVCFMT_LEFT);
}

// ---- Rows

uint32_t CLayersDialog::ColorOf(size_t layer) const {
    return ::LayerGetColor(m_drawing, m_layers[layer].layer);
}

std::string CLayersDialog::CellText(size_t layer, int column) const {
    if (column == 0) return m_layers[layer].name;
    if (column == kCountColumn) return std::to_string(m_layers[layer].count);
    if (column == kColorColumn) return ValueText(m_drawing, kPropPenColor, ColorOf(layer));
    return Is(layer, static_cast<size_t>(column - kFirstState)) ? "yes" : "-";
}

bool CLayersDialog::IsBefore(size_t a, size_t b) const {
    if (m_sortColumn == kCountColumn && m_layers[a].count != m_layers[b].count)
        return m_layers[a].count < m_layers[b].count;
    if (m_sortColumn == kColorColumn && ColorOf(a) != ColorOf(b)) return ColorOf(a) < ColorOf(b);
    if (m_sortColumn >= kFirstState && m_sortColumn < kCountColumn) {
        const size_t state = static_cast<size_t>(m_sortColumn - kFirstState);
        if (Is(a, state) != Is(b, state)) return Is(a, state);
    }
    return a < b; // by name
}

void CLayersDialog::ShowRows() {
    const std::vector<size_t> selected = SelectedLayers();
    CString part;
    CWnd::FromHandle(::GetDlgItem(m_hWnd, IDC_LAYER_FIND))->GetWindowText(part);
    m_rows.clear();
    for (size_t layer = 0; layer < m_layers.size(); ++layer)
        if (ContainsText(m_layers[layer].name, static_cast<LPCSTR>(part))) m_rows.push_back(layer);
    std::stable_sort(m_rows.begin(), m_rows.end(),
                     [this](size_t a, size_t b) { return m_sortsDown ? IsBefore(b, a) : IsBefore(a, b); });
    ListView_SetItemState(m_list, -1, 0, LVIS_SELECTED | LVIS_FOCUSED);
    ListView_SetItemCountEx(m_list, static_cast<int>(m_rows.size()), 0);
    bool any = false;
    for (size_t row = 0; row < m_rows.size(); ++row)
        if (std::binary_search(selected.begin(), selected.end(), m_rows[row])) {
            const UINT state = any ? LVIS_SELECTED : LVIS_SELECTED | LVIS_FOCUSED;
            ListView_SetItemState(m_list, static_cast<int>(row), state, state);
            any = true;
        }
    if (!any) ListView_SetItemState(m_list, 0, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    ::InvalidateRect(m_list, nullptr, TRUE);
}

void CLayersDialog::OnFind() {
    ShowRows();
}

LRESULT CLayersDialog::DrawCell(const NMHDR& header) const {
    // The control reads the system's record again afterward.
    auto& draw = *reinterpret_cast<NMLVCUSTOMDRAW*>(const_cast<NMHDR*>(&header));
    if (draw.nmcd.dwDrawStage == CDDS_PREPAINT) return CDRF_NOTIFYITEMDRAW;
    if (draw.nmcd.dwDrawStage == CDDS_ITEMPREPAINT) return CDRF_NOTIFYSUBITEMDRAW;
    if (draw.nmcd.dwDrawStage != (CDDS_ITEMPREPAINT | CDDS_SUBITEM)) return CDRF_DODEFAULT;
    const bool isColor = draw.iSubItem == kColorColumn && draw.nmcd.dwItemSpec < m_rows.size();
    const uint32_t color = isColor ? ColorOf(m_rows[draw.nmcd.dwItemSpec]) : 0;
    draw.clrTextBk = isColor ? color : CLR_DEFAULT;
    draw.clrText = isColor ? static_cast<COLORREF>(ContrastTo(color)) : CLR_DEFAULT;
    return CDRF_DODEFAULT;
}

// ---- States

bool CLayersDialog::Is(size_t layer, size_t state) const {
    const uint32_t flags = ::LayerGetFlags(m_drawing, m_layers[layer].layer);
    return ((flags & kStates[state].flag) != 0) == kStates[state].whenSet;
}

void CLayersDialog::Set(size_t layer, size_t state, bool on) {
    const uint16_t id = m_layers[layer].layer;
    const uint32_t flags = ::LayerGetFlags(m_drawing, id), flag = kStates[state].flag;
    SetFlags(m_drawing, id, on == kStates[state].whenSet ? flags | flag : flags & ~flag);
}

// Sets the state for all layers, or clears it if all have it.
void CLayersDialog::Toggle(size_t state, const std::vector<size_t>& layers) {
    const bool all = std::all_of(layers.begin(), layers.end(), [&](size_t layer) { return Is(layer, state); });
    for (const size_t layer : layers)
        Set(layer, state, !all);
    ::InvalidateRect(m_list, nullptr, FALSE);
    ShowStates();
    m_changed();
}

std::vector<size_t> CLayersDialog::SelectedLayers() const {
    std::vector<size_t> layers;
    for (int i = -1; (i = ListView_GetNextItem(m_list, i, LVNI_SELECTED)) >= 0;)
        layers.push_back(m_rows[static_cast<size_t>(i)]);
    std::sort(layers.begin(), layers.end());
    return layers;
}

// A check box is indeterminate if the selected layers differ.
void CLayersDialog::ShowStates() {
    const std::vector<size_t> layers = SelectedLayers();
    for (size_t state = 0; state < kStateCount; ++state) {
        const auto count = std::count_if(layers.begin(), layers.end(), [&](size_t layer) { return Is(layer, state); });
        const bool all = count == static_cast<std::ptrdiff_t>(layers.size());
        const HWND box = ::GetDlgItem(m_hWnd, static_cast<int>(kStates[state].box));
        ::SendMessageA(box, BM_SETCHECK, !count ? BST_UNCHECKED : all ? BST_CHECKED : BST_INDETERMINATE, 0);
        ::EnableWindow(box, !layers.empty());
    }
}

void CLayersDialog::OnState(UINT command) {
    Toggle(command - IDC_LAYER_ON, SelectedLayers());
}

// Selecting many rows sends a notification for each, and the list would draw each.
void CLayersDialog::OnRowChanged() {
    if (std::exchange(m_isShowing, true)) return;
    ::SendMessageA(m_list, WM_SETREDRAW, FALSE, 0);
    PostMessage(kShowStates);
}

LRESULT CLayersDialog::OnShowStates(WPARAM, LPARAM) {
    m_isShowing = false;
    ::SendMessageA(m_list, WM_SETREDRAW, TRUE, 0);
    ::InvalidateRect(m_list, nullptr, FALSE);
    ShowStates();
    return 0;
}

BOOL CLayersDialog::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) {
    const auto& header = *reinterpret_cast<const NMHDR*>(lParam);
    if (header.idFrom != IDC_LAYER_LIST) return CDialog::OnNotify(wParam, lParam, result);
    switch (header.code) {
    case LVN_GETDISPINFOA: {
        LVITEMA& item = reinterpret_cast<NMLVDISPINFOA*>(lParam)->item;
        if ((item.mask & LVIF_TEXT) && static_cast<size_t>(item.iItem) < m_rows.size())
            ::lstrcpynA(item.pszText, CellText(m_rows[static_cast<size_t>(item.iItem)], item.iSubItem).c_str(),
                        item.cchTextMax);
        return TRUE;
    }
    case LVN_ITEMCHANGED:
    case LVN_ODSTATECHANGED:
        OnRowChanged();
        return TRUE;
    case LVN_KEYDOWN:
        if (reinterpret_cast<const NMLVKEYDOWN*>(lParam)->wVKey == 'A' && ::GetKeyState(VK_CONTROL) < 0)
            ListView_SetItemState(m_list, -1, LVIS_SELECTED, LVIS_SELECTED);
        return TRUE;
    case LVN_COLUMNCLICK: {
        const int column = reinterpret_cast<const NMLISTVIEW*>(lParam)->iSubItem;
        m_sortsDown = column == m_sortColumn && !m_sortsDown;
        m_sortColumn = column;
        ShowRows();
        return TRUE;
    }
    case NM_CUSTOMDRAW:
        *result = DrawCell(header);
        return TRUE;
    case NM_CLICK:
        OnClick(reinterpret_cast<const NMITEMACTIVATE*>(lParam)->ptAction);
        return TRUE;
    default:
        return CDialog::OnNotify(wParam, lParam, result);
    }
}

// A click in a column of states changes only that row.
void CLayersDialog::OnClick(POINT point) {
    LVHITTESTINFO hit = {};
    hit.pt = point;
    const int row = ListView_SubItemHitTest(m_list, &hit);
    if (row >= 0 && hit.iSubItem >= kFirstState && hit.iSubItem < kCountColumn)
        Toggle(static_cast<size_t>(hit.iSubItem - kFirstState), {m_rows[static_cast<size_t>(row)]});
}

void CLayersDialog::OnCancel() {
    m_before.Restore();
    m_changed();
    CDialog::OnCancel();
}

// The dialog of layers.

#include "demo/viewer/layers_dialog.h"

#include <commctrl.h>

#include <algorithm>
#include <string>

#include "demo/viewer/resource.h"
#include "drawcore/drawing.h"
#include "drawcore/layer.h"

namespace {

// What a layer can be: a column of the list, and a box that shows it for the selected rows.
struct State {
    const char* title;
    UINT box;
    uint32_t flag;
    bool whenSet; // the state is there if the flag is set, or if it is not
};
constexpr State kStates[] = {{"On", IDC_LAYER_ON, kLayerOff, false},
                             {"Frozen", IDC_LAYER_FROZEN, kLayerFrozen, true},
                             {"Locked", IDC_LAYER_LOCKED, kLayerLocked, true}};
constexpr size_t kStateCount = std::size(kStates);
constexpr int kFirstState = 1; // column, after the name
constexpr int kCountColumn = kFirstState + static_cast<int>(kStateCount);

// Dialog units.
constexpr int kStateWidth = 38;
constexpr int kCountWidth = 44;

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

void SetCell(HWND list, size_t row, int column, const std::string& text) {
    LVITEMA item = {};
    item.iSubItem = column;
    item.pszText = const_cast<char*>(text.c_str());
    ::SendMessageA(list, LVM_SETITEMTEXTA, row, reinterpret_cast<LPARAM>(&item));
}

} // namespace

BEGIN_MESSAGE_MAP(CLayersDialog, CDialog)
ON_COMMAND_RANGE(IDC_LAYER_ON, IDC_LAYER_LOCKED, &CLayersDialog::OnState)
END_MESSAGE_MAP()

CLayersDialog::CLayersDialog(CWnd* owner, DrawingStruct* drawing, std::function<void()> changed)
    : CDialog(IDD_LAYERS, owner), m_drawing(drawing), m_changed(std::move(changed)) {
    for (const LayerCount& layer : AllLayers(drawing))
        m_layers.push_back({layer, ::LayerGetFlags(drawing, layer.layer)});
}

BOOL CLayersDialog::OnInitDialog() {
    CDialog::OnInitDialog();
    m_list = ::GetDlgItem(m_hWnd, IDC_LAYER_LIST);
    ListView_SetExtendedListViewStyle(m_list, LVS_EX_FULLROWSELECT);
    CRect widths(kStateWidth, 0, kCountWidth, 0), client;
    ::MapDialogRect(m_hWnd, widths);
    ::GetClientRect(m_list, client);
    const int others = static_cast<int>(kStateCount) * widths.left + widths.right;
    const int bar = ::GetSystemMetrics(SM_CXVSCROLL);
    AddColumn(m_list, 0, "Name", std::max<int>(widths.left, client.Width() - others - bar), LVCFMT_LEFT);
    int place = kFirstState;
    for (const State& state : kStates)
        AddColumn(m_list, place++, state.title, widths.left, LVCFMT_CENTER);
    AddColumn(m_list, kCountColumn, "Graphics", widths.right, LVCFMT_RIGHT);
    for (size_t i = 0; i < m_layers.size(); ++i) {
        LVITEMA item = {};
        item.mask = LVIF_TEXT;
        item.iItem = static_cast<int>(i);
        item.pszText = const_cast<char*>(m_layers[i].layer.name.c_str());
        ::SendMessageA(m_list, LVM_INSERTITEMA, 0, reinterpret_cast<LPARAM>(&item));
        ShowRow(i);
    }
    ListView_SetItemState(m_list, 0, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    ShowStates();
    return TRUE;
}

bool CLayersDialog::Is(size_t layer, size_t state) const {
    const uint32_t flags = ::LayerGetFlags(m_drawing, m_layers[layer].layer.layer);
    return ((flags & kStates[state].flag) != 0) == kStates[state].whenSet;
}

void CLayersDialog::Set(size_t layer, size_t state, bool on) {
    const uint16_t id = m_layers[layer].layer.layer;
    const uint32_t flags = ::LayerGetFlags(m_drawing, id), flag = kStates[state].flag;
    SetFlags(m_drawing, id, on == kStates[state].whenSet ? flags | flag : flags & ~flag);
}

// All of them are so afterwards, unless all have been before.
void CLayersDialog::Toggle(size_t state, const std::vector<size_t>& layers) {
    const bool all =
        std::all_of(layers.begin(), layers.end(), [&](size_t layer) { return Is(layer, state); });
    for (const size_t layer : layers) {
        Set(layer, state, !all);
        ShowRow(layer);
    }
    ShowStates();
    m_changed();
}

std::vector<size_t> CLayersDialog::SelectedLayers() const {
    std::vector<size_t> layers;
    for (int i = -1; (i = ListView_GetNextItem(m_list, i, LVNI_SELECTED)) >= 0;)
        layers.push_back(static_cast<size_t>(i));
    return layers;
}

void CLayersDialog::ShowRow(size_t layer) {
    for (size_t state = 0; state < kStateCount; ++state)
        SetCell(m_list, layer, kFirstState + static_cast<int>(state), Is(layer, state) ? "yes" : "-");
    SetCell(m_list, layer, kCountColumn, std::to_string(m_layers[layer].layer.count));
}

// A box is grey where the selected layers differ.
void CLayersDialog::ShowStates() {
    const std::vector<size_t> layers = SelectedLayers();
    for (size_t state = 0; state < kStateCount; ++state) {
        const auto count =
            std::count_if(layers.begin(), layers.end(), [&](size_t layer) { return Is(layer, state); });
        const bool all = count == static_cast<std::ptrdiff_t>(layers.size());
        const HWND box = ::GetDlgItem(m_hWnd, static_cast<int>(kStates[state].box));
        ::SendMessageA(box, BM_SETCHECK, !count ? BST_UNCHECKED : all ? BST_CHECKED : BST_INDETERMINATE, 0);
        ::EnableWindow(box, !layers.empty());
    }
}

void CLayersDialog::OnState(UINT command) {
    Toggle(command - IDC_LAYER_ON, SelectedLayers());
}

BOOL CLayersDialog::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) {
    const auto& header = *reinterpret_cast<const NMHDR*>(lParam);
    if (header.idFrom == IDC_LAYER_LIST && header.code == static_cast<UINT>(LVN_ITEMCHANGED)) {
        ShowStates();
    } else if (header.idFrom == IDC_LAYER_LIST && header.code == static_cast<UINT>(NM_CLICK)) {
        // In a column of states: of that row alone.
        LVHITTESTINFO hit = {};
        hit.pt = reinterpret_cast<const NMITEMACTIVATE*>(lParam)->ptAction;
        const int row = ListView_SubItemHitTest(m_list, &hit);
        if (row >= 0 && hit.iSubItem >= kFirstState && hit.iSubItem < kCountColumn)
            Toggle(static_cast<size_t>(hit.iSubItem - kFirstState), {static_cast<size_t>(row)});
    }
    return CDialog::OnNotify(wParam, lParam, result);
}

void CLayersDialog::OnCancel() {
    for (const Layer& layer : m_layers)
        SetFlags(m_drawing, layer.layer.layer, layer.flagsBefore);
    m_changed();
    CDialog::OnCancel();
}

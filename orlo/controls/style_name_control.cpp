// CStyleNameControl: a combo box of the blocks of one style tree.

#include "orlo/controls/style_name_control.h"

#include <cstring>

#include "orlo/controls/control_items.h"
#include "orlo/controls/fill_scope.h"
#include "orlo/controls/item_drawing.h"
#include "orlo/controls/paint.h"
#include "orlo/host/block.h"
#include "orlo/host/walk.h"

namespace {

constexpr unsigned int kKind = kControlStyleNames;
constexpr int kNameSize = 256;

const char* StyleTreeOf(const GraphicStruct* graphic) {
    return graphic && graphic->pszStyleName ? graphic->pszStyleName : "";
}

// Adds the blocks of the graphic's style tree. Returns the name under which the graphic itself was added, or empty.
CString AddStyleTree(const ControlItems& items, TableStruct* table, const GraphicStruct* selected) {
    CString selectedName;
    char name[kNameSize];
    for (const uint16_t id : orlo::host::Entries(table)) {
        const GraphicStruct* const graphic = ::BlockGetGraphic(table, id);
        if (std::strcmp(StyleTreeOf(graphic), selected->pszStyleName) != 0) continue;
        if (!::TableEntryGetName(table, id, name, sizeof name)) continue;
        if (items.Add(name) == CB_ERR) break;
        if (graphic == selected) selectedName = name;
    }
    return selectedName;
}

// Items may move while a sorting combo box is filled, so the selected item is searched once at the end.
void FillStyleNames(HWND window, TableStruct* table, unsigned int id) {
    const ControlItems items = ControlItems::OfCombo(window);
    items.Clear();
    if (!table || !IsTableIdentifier(id)) return;
    const GraphicStruct* const selected = ::BlockGetGraphic(table, static_cast<uint16_t>(id));
    if (!*StyleTreeOf(selected)) return;
    const CString name = AddStyleTree(items, table, selected);
    if (!name.IsEmpty()) items.Select(items.FindExact(name));
}

} // namespace

IMPLEMENT_DYNCREATE(CStyleNameControl, CComboControl)

CStyleNameControl::CStyleNameControl() : CComboControl(kKind) {}

CStyleNameControl::CStyleNameControl(HWND hWnd) : CComboControl(kKind, hWnd) {}

CStyleNameControl::~CStyleNameControl() = default;

void CStyleNameControl::FillControl(WPARAM, LPARAM lParam) {
    const FillScope scope(m_hWnd);
    const auto* const record = reinterpret_cast<const ControlFillRecord*>(lParam);
    m_pTable = record ? record->pTable : nullptr;
    FillStyleNames(m_hWnd, m_pTable, record ? record->nSelected : 0);
}

void CStyleNameControl::MeasureItem(MEASUREITEMSTRUCT* pMIS) {
    pMIS->itemHeight = static_cast<UINT>(RowTextHeight(m_hWnd));
}

int CStyleNameControl::MeasureNameWidth(HDC dc, const char* name) {
    return PlainRowWidth(dc, name);
}

void CStyleNameControl::DrawItem(DRAWITEMSTRUCT* pDIS) {
    const PlainItem item = RequestedItem(*this, *pDIS);
    if (!*item.text) return;
    const bool inField = IsClosedField(*pDIS);
    const RECT frame = inField ? Inflated(pDIS->rcItem, 1) : pDIS->rcItem;
    const RowColors colors = SampleColorsOf(*pDIS);
    FillSolid(pDIS->hDC, frame, colors.background);
    FrameRectangle(pDIS->hDC, frame, colors.text, 1);
    DrawClippedText(pDIS->hDC, pDIS->rcItem.left + kPlainTextAt.x,
                    CenteredTextTop(pDIS->hDC, pDIS->rcItem, kPlainTextAt.y), pDIS->rcItem, item.text, colors.text);
    if (!inField && (pDIS->itemState & ODS_SELECTED)) MarkCurrentRow(*pDIS);
    DrawItemFocus(*pDIS);
}

// CColorControl: a combo box of the host's colors.

#include "orlo/controls/color_control.h"

#include <algorithm>
#include <cstdio>
#include <vector>

#include "orlo/controls/color_order.h"
#include "orlo/controls/color_swatch.h"
#include "orlo/controls/control_font.h"
#include "orlo/controls/fill_scope.h"
#include "orlo/controls/item_drawing.h"
#include "orlo/controls/paint.h"
#include "orlo/controls/table_control.h"
#include "orlo/host/strings.h"
#include "orlo/host/walk.h"

namespace {

constexpr unsigned int kKind = kControlColors;

unsigned int HostStringOf(DWORD marker) {
    switch (marker) {
    case kColorByLayer:
        return kStringByLayer;
    case kColorByBlock:
        return kStringByBlock;
    case kColorOfPen:
        return kStringLastColor;
    default:
        return 0;
    }
}

bool IsPlainColor(DWORD color) {
    return (color & 0xFF000000u) == 0;
}

// A table entry while the list is being filled.
struct Entry {
    Entry(uint16_t entryID, DWORD color, unsigned entryPlace) : key(color), id(entryID), place(entryPlace) {}

    ColorKey key;
    uint16_t id;
    unsigned place; // position in the table
};

// Of equal colors the later entry comes first, as if each were inserted before its equals.
bool ComesBefore(const Entry& a, const Entry& b) {
    const int order = CompareColorKeys(a.key, b.key);
    return order ? order < 0 : a.place > b.place;
}

std::vector<Entry> SortedColors(TableStruct* table) {
    std::vector<Entry> entries;
    unsigned place = 0;
    for (const uint16_t id : orlo::host::Entries(table)) {
        const void* const color = ::TableEntryGetData(table, id);
        if (!color) continue;
        const DWORD value = *static_cast<const DWORD*>(color);
        if (IsPlainColor(value)) entries.emplace_back(id, value, place++);
    }
    std::sort(entries.begin(), entries.end(), ComesBefore);
    return entries;
}

void AppendMarker(const ControlItems& items, DWORD marker) {
    items.Add(HostTextItem(marker, HostStringOf(marker)).c_str());
}

// Retrieves the name shown for a marker or for a color that has no item.
void NameWithoutItem(DWORD color, char* name) {
    name[0] = '\0';
    if (const unsigned int id = HostStringOf(color))
        ::DrawCoreLoadString(id, name, kHostTextSize);
    else if (IsPlainColor(color))
        std::snprintf(name, kHostTextSize, "(%d,%d,%d)", GetRValue(color), GetGValue(color), GetBValue(color));
}

} // namespace

IMPLEMENT_DYNCREATE(CColorControl, CComboControl)

CColorControl::CColorControl(int bExtraEntries) : CComboControl(kKind), m_bExtraEntries(bExtraEntries) {
    m_nSelected = kColorNone;
}

CColorControl::CColorControl(HWND hWnd, int bExtraEntries)
    : CComboControl(kKind, hWnd), m_bExtraEntries(bExtraEntries) {
    m_nSelected = kColorNone;
}

CColorControl::~CColorControl() = default;

void CColorControl::EnableLastEntry(int bEnable) {
    m_bLastEntry = bEnable;
}

int CColorControl::FindColor(DWORD dwColor) {
    if (dwColor == kColorNone || dwColor == kColorIndeterminate) return -1;
    char key[kKeySize];
    DWord_to_Hex(dwColor, key);
    return FindString(-1, key);
}

int CColorControl::AddControlItem(const char* pszItem) {
    const FillScope* const scope = FillScope::Of(m_hWnd);
    if (scope && scope->ItemsAreSorted()) return InsertString(-1, pszItem);

    char text[kItemTextSize];
    ::lstrcpynA(text, pszItem, sizeof text);
    const ColorKey added(ParseControlItem(text));
    int index = 0;
    const int count = GetCount();
    while (index < count && CompareColorKeys(added, ColorKey(GetControlItem(index, text))) > 0)
        ++index;
    return InsertString(index < count ? index : -1, pszItem);
}

void CColorControl::FillControl(WPARAM, LPARAM pFill) {
    const FillScope scope(m_hWnd, FillScope::Items::Sorted);
    if (!BeginFill(*this, pFill)) return;

    for (const Entry& entry : SortedColors(m_pTable)) {
        ItemText text(entry.key.raw);
        if (::TableEntryGetName(m_pTable, entry.id, text.name(), kEntryNameSize)) AddControlItem(text.c_str());
    }
    if (m_bExtraEntries) {
        const ControlItems items = ControlItems::OfCombo(m_hWnd);
        AppendMarker(items, kColorByLayer);
        if (m_bLastEntry) AppendMarker(items, kColorOfPen);
    }
    SetCurSel(FindColor(m_nSelected));
}

void CColorControl::MeasureItem(MEASUREITEMSTRUCT* pMIS) {
    pMIS->itemHeight = static_cast<UINT>(RowTextHeight(m_hWnd));
}

CString CColorControl::DescribeItem(int index) {
    char name[kItemTextSize];
    NameWithoutItem(m_nSelected, name);
    CString text = name;
    if (index >= 0 || text.IsEmpty()) return CComboControl::DescribeItem(index);
    if (IsPlainColor(m_nSelected))
        text.Format("%d, %d, %d", GetRValue(m_nSelected), GetGValue(m_nSelected), GetBValue(m_nSelected));
    return text;
}

// Names are drawn in bold, which is up to an eighth wider.
int CColorControl::MeasureNameWidth(HDC dc, const char* name) {
    return PlainRowWidth(dc, name) + TextWidth(dc, name) / 8;
}

void CColorControl::DrawItem(DRAWITEMSTRUCT* pDIS) {
    const bool noItem = IsNoItem(*pDIS), inField = IsClosedField(*pDIS);
    if (!noItem && !inField && !(pDIS->itemAction & (ODA_DRAWENTIRE | ODA_SELECT))) {
        if (pDIS->itemAction & ODA_FOCUS) ::DrawFocusRect(pDIS->hDC, &pDIS->rcItem);
        return;
    }
    char name[kItemTextSize];
    const DWORD color = noItem ? m_nSelected : GetControlItem(static_cast<int>(pDIS->itemID), name);
    if (noItem || !IsPlainColor(color)) NameWithoutItem(color, name);

    const RowColors colors = SampleColorsOf(*pDIS);
    const bool disabled = pDIS->itemState & ODS_DISABLED;
    const SwatchPlace place = {pDIS->hDC,
                               pDIS->rcItem,
                               inField,
                               disabled,
                               colors.text,
                               colors.background,
                               reinterpret_cast<HFONT>(SendMessage(WM_GETFONT, 0, 0))};
    DrawSwatch(place, color, name);
    if (!inField && (pDIS->itemState & ODS_SELECTED)) MarkCurrentRow(*pDIS);
    // The focus rectangle would be hard to see on the color itself.
    if (inField && (pDIS->itemState & ODS_FOCUS)) FrameRectangle(pDIS->hDC, pDIS->rcItem, colors.background, 1);
    DrawItemFocus(*pDIS);
}

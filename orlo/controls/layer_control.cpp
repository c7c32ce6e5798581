// CLayerControl: a combo box of layers.

#include "orlo/controls/layer_control.h"

#include <algorithm>

#include "orlo/controls/control_font.h"
#include "orlo/controls/fill_scope.h"
#include "orlo/controls/item_drawing.h"
#include "orlo/controls/paint.h"
#include "orlo/host/layer.h"
#include "orlo/host/table.h"
#include "orlo/resources/library_text.h"
#include "orlo/resources/resource.h"
#include "orlo/win/screen_scale.h"

namespace {

constexpr unsigned int kKind = kControlLayers;

constexpr int kMinPicture = 16;
constexpr int kGap = 3;    // before a square and before the name, in pixels at 96 dpi
constexpr int kSquare = 9; // side of the square that shows a layer's color if the name is not drawn in it

// Returns the width of an icon column: half the system's icon size, 16 pixels at 96 dpi.
int ColumnWidth() {
    return ::GetSystemMetrics(SM_CXICON) / 2;
}

// Draws the icon, whose image fills its top left quarter, scaled down if the field is lower than a row.
void DrawPicture(HDC dc, int x, const RECT& row, HICON icon) {
    const int size = std::max(std::min(ColumnWidth(), static_cast<int>(row.bottom - row.top)), kMinPicture);
    const int top = (row.top + row.bottom - size) / 2;
    ::DrawIconEx(dc, x, top, icon, 2 * size, 2 * size, 0, nullptr, DI_NORMAL);
}

// Returns whether a name in this color is readable on the window's color.
bool IsReadable(HDC dc, COLORREF color) {
    const COLORREF window = ::GetNearestColor(dc, ::GetSysColor(COLOR_WINDOW));
    return Contrast(::GetNearestColor(dc, color), window) >= kReadableContrast;
}

// Draws a vertically centered square and returns its width.
int DrawSquare(HDC dc, int x, const RECT& row, COLORREF color, COLORREF frame) {
    const int size = ScreenPixels(kSquare), top = (row.top + row.bottom - size) / 2;
    const RECT chip = {x, top, x + size, top + size};
    FillSolid(dc, chip, color);
    FrameRectangle(dc, chip, frame, 1);
    return size;
}

HICON LoadLayerIcon(int id) {
    return ::LoadIconA(LibraryModule(), MAKEINTRESOURCEA(id));
}

// A layer, and its drawing; null if the control shows no drawing.
struct ShownLayer {
    DrawingStruct* drawing = nullptr;
    uint16_t id = 0;
    char name[kItemTextSize] = "";

    ShownLayer(const CLayerControl& control, unsigned long number, const char* itemName) {
        if (!control.m_pTable || !IsTableIdentifier(number)) return;
        drawing = ::TableGetOwner(control.m_pTable);
        id = static_cast<uint16_t>(number);
        if (*itemName)
            ::lstrcpynA(name, itemName, sizeof name);
        else
            ::TableEntryGetName(control.m_pTable, id, name, kEntryNameSize);
    }
    bool IsVisible() const { return ::LayerGetVisible(drawing, id) != 0; }
    bool IsReadOnly() const { return ::LayerGetReadOnly(drawing, id) != 0; }
};

// Draws the name after the columns of icons.
void DrawLayerName(const DRAWITEMSTRUCT& request, const ShownLayer& layer) {
    const RECT& rect = request.rcItem;
    const COLORREF color = ::LayerGetColor(layer.drawing, layer.id);
    const bool hasColor = color != kColorNone, readable = hasColor && IsReadable(request.hDC, color);
    const bool plain = !(request.itemState & (ODS_SELECTED | ODS_DISABLED));
    const COLORREF textColor = plain ? TextColorOnWindow() : ColorsOf(request).text;
    int x = rect.left + 2 * ColumnWidth() + ScreenPixels(kGap);
    if (hasColor && !readable) x += DrawSquare(request.hDC, x, rect, color, textColor) + ScreenPixels(kGap);
    DrawClippedText(request.hDC, x, CenteredTextTop(request.hDC, rect, 0), rect, layer.name,
                    plain && readable ? color : textColor);
}

} // namespace

IMPLEMENT_DYNCREATE(CLayerControl, CComboControl)

BEGIN_MESSAGE_MAP(CLayerControl, CComboControl)
ON_WM_CREATE()
END_MESSAGE_MAP()

CLayerControl::CLayerControl() : CComboControl(kKind) {}

CLayerControl::CLayerControl(HWND hWnd) : CComboControl(kKind, hWnd) {}

CLayerControl::~CLayerControl() = default;

int CLayerControl::OnCreate(LPCREATESTRUCT) {
    if (Default() == -1) return -1;
    m_hIconReadOnly = LoadLayerIcon(IDI_READ_ONLY);
    m_hIconVisible = LoadLayerIcon(IDI_VISIBLE);
    return 0;
}

void CLayerControl::MeasureItem(MEASUREITEMSTRUCT* pMIS) {
    pMIS->itemHeight = static_cast<UINT>(std::max(RowTextHeight(m_hWnd), ColumnWidth()));
}

int CLayerControl::MeasureNameWidth(HDC dc, const char* name) {
    return 2 * ColumnWidth() + ScreenPixels(dc, 3 * kGap + kSquare) + TextWidth(dc, name);
}

void CLayerControl::DrawItem(DRAWITEMSTRUCT* pDIS) {
    const bool whole = IsNoItem(*pDIS) || IsClosedField(*pDIS) || (pDIS->itemAction & (ODA_DRAWENTIRE | ODA_SELECT));
    if (whole) {
        FillSolid(pDIS->hDC, pDIS->rcItem, ColorsOf(*pDIS).background);
        char name[kItemTextSize];
        const unsigned int id = RequestedStyle(*this, *pDIS, name);
        const ShownLayer layer(*this, id != 0 ? id : m_nSelected, name);
        if (layer.drawing) {
            if (!m_hIconVisible) m_hIconVisible = LoadLayerIcon(IDI_VISIBLE);
            if (!m_hIconReadOnly) m_hIconReadOnly = LoadLayerIcon(IDI_READ_ONLY);
            const LONG left = pDIS->rcItem.left;
            if (layer.IsVisible()) DrawPicture(pDIS->hDC, left, pDIS->rcItem, m_hIconVisible);
            if (layer.IsReadOnly()) DrawPicture(pDIS->hDC, left + ColumnWidth(), pDIS->rcItem, m_hIconReadOnly);
            DrawLayerName(*pDIS, layer);
        }
    }
    const bool focus = whole ? pDIS->itemState & ODS_FOCUS : pDIS->itemAction & ODA_FOCUS;
    if (focus) ::DrawFocusRect(pDIS->hDC, &pDIS->rcItem);
}

CString CLayerControl::DescribeItem(int index) {
    char name[kItemTextSize] = "";
    const unsigned long id = GetControlItem(index, name);
    const ShownLayer layer(*this, id == 0 && index < 0 ? m_nSelected : id, name);
    if (!layer.drawing) return CComboControl::DescribeItem(index);
    CString text = layer.name;
    if (!layer.IsVisible()) text += ", " + LibraryText(IDS_LAYER_HIDDEN);
    if (layer.IsReadOnly()) text += ", " + LibraryText(IDS_LAYER_LOCKED);
    return text;
}

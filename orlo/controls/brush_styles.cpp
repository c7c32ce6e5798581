// Brush styles as a StyleControl shows them.

#include "orlo/controls/brush_styles.h"

#include <algorithm>

#include "orlo/controls/control_font.h"
#include "orlo/controls/item_drawing.h"
#include "orlo/controls/paint.h"
#include "orlo/host/walk.h"
#include "orlo/samples/hatch_scale.h"
#include "orlo/samples/vertex_list.h"

namespace {

constexpr unsigned int kSpecial = 0xFFFE; // identifiers from here on show nothing
constexpr double kMargin = 0.01;
constexpr double kMinimumHeight = 0.01; // used for a cell of height 0
constexpr POINT kTextAt = {4, 1};       // minimum distance from the corner of the item

// Stretches the sample to the aspect ratio of the cell.
void FitSampleToCell(GraphicStruct* graphic, const RECT& cell) {
    const double height = cell.bottom != cell.top ? cell.bottom - cell.top : kMinimumHeight;
    const double outer = (cell.right - cell.left) / height;
    int index = 0;
    for (VertexStruct* vertex : orlo::host::Vertices(graphic)) {
        if (index >= 4 && index <= 7)
            ::VertexSet(vertex, index == 6 ? outer : (1.0 - kMargin) * outer, vertex->y, vertex->z);
        ++index;
    }
    ::GraphicSetExtentsDirty(graphic, 1);
}

} // namespace

const BrushStyles kComboBrushStyles({1.0, true, 20.0 * 2.0 / 3.0, {1, 2}}),
    kListBrushStyles({4.0, false, 20.0, {0, 0}});

SampleGraphic BrushStyles::MakeSample(int) const {
    const double outer = m_layout.ratio, right = outer - kMargin, top = 1.0 - kMargin;
    SampleGraphic graphic = NewSample({{kMargin, kMargin, 0, true},
                                       {kMargin, top, 0, true},
                                       {0.0, 1.0, 0, false},
                                       {kMargin, top, 0, false},
                                       {right, top, 0, true},
                                       {right, kMargin, 0, true},
                                       {outer, 0.0, 0, false},
                                       {right, kMargin, 0, false},
                                       {kMargin, kMargin, 0, true}});
    if (graphic) graphic->dwOneOutline = 1;
    return graphic;
}

void BrushStyles::ForEachItem(TableStruct* table, const std::function<void(const char*)>& add) const {
    add(HostTextItem(kBrushStyleNone, kStringNoBrush).c_str());
    ForEachTableItem(table, [&](const ItemText& text) { add(text.c_str()); });
}

void BrushStyles::DrawStyledSample(const DRAWITEMSTRUCT& request, const StyleItem& item) const {
    const RECT cell = Inflated(request.rcItem, -2);
    if (m_layout.fitsCell) FitSampleToCell(item.graphic, cell);
    const COLORREF color = SampleColorsOf(request).text;
    ::GraphicSetPenColor(item.graphic, color);
    ::GraphicSetBrushColor(item.graphic, color);
    ::GraphicSetBrushStyle(item.graphic, static_cast<uint16_t>(item.style));
    ::GraphicSetBrushScale(item.graphic, HatchScale(item.table, item.style, SampleWidth(item.graphic), m_layout.lines));
    ::GraphicSetDirty(item.graphic, 1); // the fill cached for the previous item must not be reused
    DrawSample(item.graphic, item.viewport, request.hDC, cell);
}

bool BrushStyles::DrawStyle(const DRAWITEMSTRUCT& request, const StyleItem& item) const {
    ClearItem(request);
    if (item.style >= kSpecial) return true;

    const bool none = item.style == kBrushStyleNone;
    if (!none && !item.table) return false;
    if (!none && item.graphic && item.viewport) {
        DrawStyledSample(request, item);
        return true;
    }
    const ItemText noBrush = HostTextItem(kBrushStyleNone, kStringNoBrush);
    const char* const name = none ? noBrush.name() : item.name;
    // Centered, like the samples.
    const LONG space = request.rcItem.right - request.rcItem.left - TextWidth(request.hDC, name);
    const POINT at = {request.rcItem.left + std::max(space / 2, kTextAt.x), request.rcItem.top + kTextAt.y};
    if (*name) DrawFramedName(request, request.rcItem, at, name);
    return true;
}

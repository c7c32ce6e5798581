// Shared implementation of the combo box and the list box of brush styles: the shape of the sample, the items offered,
// and drawing. Internal to the library.
#pragma once

#include "orlo/controls/item_drawing.h"
#include "orlo/host/strings.h"
#include "orlo/samples/style_sample.h"

constexpr unsigned int kBrushStyleSpecial = 0xFFFE; // identifiers from here on show nothing

// The differences between combo box and list box.
struct BrushStyleLayout {
    double ratio;  // sample width relative to its height of 1.0
    bool fitsCell; // stretch the sample to the aspect ratio of its cell
    double lines;  // number of hatch lines across the sample
};
constexpr BrushStyleLayout kComboBrushLayout = {1.0, true, 20.0 * 2.0 / 3.0};
constexpr BrushStyleLayout kListBrushLayout = {4.0, false, 20.0};

// Creates a box with thin margins: two outer corners with undrawn segments extend it by a hundredth on each side.
SampleGraphic MakeBrushSample(const BrushStyleLayout& layout);

// Stretches the sample to the aspect ratio of the cell.
void FitSampleToCell(GraphicStruct* graphic, const RECT& cell);

// Calls add(text) for the "no brush" item and then for each entry of the table, in table order.
template <class Add>
void ForEachBrushStyle(TableStruct* table, Add add) {
    add(HostTextItem(kBrushStyleNone, kStringNoBrush).c_str());
    ForEachTableItem(table, [&](const ItemText& text) { add(text.c_str()); });
}

// Draws one item. Returns false if the style cannot be shown, in which case neither selection nor focus should be
// drawn.
bool DrawBrushStyleItem(const DRAWITEMSTRUCT& request, const BrushStyleLayout& layout, const StyleItem& item);

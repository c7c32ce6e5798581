// What the combo and the list of brush styles share: the sample's shape, what is offered, how an item is drawn.
// Internal to the library.
#pragma once

#include "orlo/controls/style_item.h"
#include "orlo/host/strings.h"
#include "orlo/samples/style_sample.h"

constexpr unsigned int kBrushStyleSpecial = 0xFFFE; // and above: nothing to show

// Where combo and list differ.
struct BrushStyleLook {
    double ratio;  // width of the sample to its height of 1.0
    bool fitsCell; // the sample is stretched to the ratio of the cell that it is drawn in
    double lines;  // of a hatch across the sample
};
constexpr BrushStyleLook kComboBrushLook = {1.0, true, 20.0 * 2.0 / 3.0};
constexpr BrushStyleLook kListBrushLook = {4.0, false, 20.0};

// A box with thin margins: two outer corners that draw nothing widen the extents by a hundredth.
SampleGraphic MakeBrushSample(const BrushStyleLook& look);

// Stretches the sample to the cell's ratio of width to height.
void FitSampleToCell(GraphicStruct* graphic, const RECT& cell);

// Calls add(text) for the item without a brush and then for each entry of the table, in table order.
template <class Add>
void ForEachBrushStyle(TableStruct* table, Add add) {
    add(HostTextItem(kBrushStyleNone, kStringNoBrush).c_str());
    ForEachTableItem(table, [&](const ItemText& text) { add(text.c_str()); });
}

// False: the style cannot be shown at all, and neither selection nor focus are to be drawn on the bare background.
bool DrawBrushStyleItem(const DRAWITEMSTRUCT& request, const BrushStyleLook& look, const StyleItem& item);

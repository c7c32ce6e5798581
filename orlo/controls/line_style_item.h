// Shared implementation of the combo box and the list box of line styles: the shape of the sample, the styles offered,
// and drawing. Internal to the library.
#pragma once

#include "orlo/controls/item_drawing.h"
#include "orlo/host/strings.h"
#include "orlo/samples/style_sample.h"

// Returns whether a style is offered. Construction styles are not.
bool IsListedStyle(const char* name);

// Create a sample for a control of that width in device pixels. The list's sample has a margin and a height of 1.0.
SampleGraphic MakeComboLineSample(int controlWidth);
SampleGraphic MakeListLineSample(int controlWidth);

// Calls add(text) for each offered style, in table order, and then, if requested, for the default item "by layer". "By
// block" is never offered.
template <class Add>
void ForEachLineStyle(TableStruct* table, bool withDefault, Add add) {
    ForEachTableItem(table, [&](ItemText& text) {
        if (IsListedStyle(text.name())) add(text.c_str());
    });
    if (withDefault) add(HostTextItem(kLineStyleByLayer, kStringByLayer).c_str());
}

// Where a name is drawn: the combo box frames the whole item, the list box the cell inside it.
struct LineStyleLayout {
    bool framesCell;
    POINT textAt; // offset from the corner of the item
};
constexpr LineStyleLayout kComboLineLayout = {false, {4, 1}};
constexpr LineStyleLayout kListLineLayout = {true, {6, 4}};

// Draws one item. Returns false if the style cannot be shown, in which case neither selection nor focus should be
// drawn.
bool DrawLineStyleItem(const DRAWITEMSTRUCT& request, const LineStyleLayout& layout, const StyleItem& item);

// Returns the dash scale at which the first gap of the style is a fifteenth of the sample's width, or 1.0 for a solid
// style.
double LineSampleScale(TableStruct* table, unsigned int style, double sampleWidth);

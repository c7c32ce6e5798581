// What the combo and the list of line styles share: the sample's shape, which styles are offered, how an item
// is drawn. Internal to the library.
#pragma once

#include "orlo/controls/style_item.h"
#include "orlo/host/strings.h"
#include "orlo/samples/style_sample.h"

// Styles that are for construction only are never offered.
bool IsListedStyle(const char* name);

// A sample for a control of that width (device pixels). The list's has a margin and a height of 1.0.
SampleGraphic MakeComboLineSample(int controlWidth);
SampleGraphic MakeListLineSample(int controlWidth);

// Calls add(text) for each style that is offered, in table order, and then for the default item, which is "by layer",
// if that is wanted. No list offers "by block".
template <class Add>
void ForEachLineStyle(TableStruct* table, bool withDefault, Add add) {
    ForEachTableItem(table, [&](ItemText& text) {
        if (IsListedStyle(text.name())) add(text.c_str());
    });
    if (withDefault) add(HostTextItem(kLineStyleByLayer, kStringByLayer).c_str());
}

// Where a name is drawn: the combo frames the whole item, the list the cell inside.
struct LineStyleLook {
    bool framesCell;
    POINT textAt; // from the corner of the item
};
constexpr LineStyleLook kComboLineLook = {false, {4, 1}};
constexpr LineStyleLook kListLineLook = {true, {6, 4}};

// False: the style cannot be shown at all, and neither selection nor focus are to be drawn on the bare
// background.
bool DrawLineStyleItem(const DRAWITEMSTRUCT& request, const LineStyleLook& look, const StyleItem& item);

// Dash scale at which the first gap of the style is a fifteenth of the sample's width. 1.0 for a solid style.
double LineSampleScale(TableStruct* table, unsigned int style, double sampleWidth);

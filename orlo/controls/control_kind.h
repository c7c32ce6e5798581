// Maps each kind of control (orlo/host/words.h) to the table that it shows.
#pragma once

#include "orlo/host/words.h"

struct ControlTable {
    ControlKind kind;
    const char* table; // name for DrawingGetTable
};

constexpr ControlTable kControlTables[] = {
    {kControlFontFaces, kTableUnits}, // lists the fonts of the drawing that owns the table
    {kControlFontSizes, kTableUnits},
    {kControlLineStyleCombo, kTableLineStyles},
    {kControlColors, kTableColors},
    {kControlBrushStyleCombo, kTableBrushStyles},
    {kControlLayers, kTableLayers},
    {kControlStyleNames, kTableBlocks},
    {kControlLineStyleList, kTableLineStyles},
    {kControlBrushStyleList, kTableBrushStyles},
};

// Returns the name of the table that controls of this kind are filled from, or null if `kind` is not a kind of control.
constexpr const char* TableOfControl(unsigned kind) {
    for (const ControlTable& row : kControlTables) {
        if (row.kind == kind) return row.table;
    }
    return nullptr;
}

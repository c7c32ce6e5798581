// The kinds of the library's controls, by which they announce themselves, and the table that each kind shows. A kind is not
// the identifier of a control in its dialog (control_ids.h): all combos of line styles have the same kind.
#pragma once

#include "orlo/host/words.h"

enum ControlKind : unsigned {
    kControlFontFaces = 0x7D00,
    kControlFontSizes = 0x7D01,
    kControlLineStyleCombo = 0x7D04,
    kControlColors = 0x7D05,
    kControlBrushStyleCombo = 0x7D07,
    kControlLayers = 0x7D08,
    kControlStyleNames = 0x7D0F,
    kControlLineStyleList = 0x7D15,
    kControlBrushStyleList = 0x7D18,
};

struct ControlTable {
    ControlKind kind;
    const char* table; // its name, for DrawingGetTable
};

constexpr ControlTable kControlTables[] = {
    {kControlFontFaces, kTableUnits}, // fonts are those of the drawing that owns the table
    {kControlFontSizes, kTableUnits},
    {kControlLineStyleCombo, kTableLineStyles},
    {kControlColors, kTableColors},
    {kControlBrushStyleCombo, kTableBrushStyles},
    {kControlLayers, kTableLayers},
    {kControlStyleNames, kTableBlocks},
    {kControlLineStyleList, kTableLineStyles},
    {kControlBrushStyleList, kTableBrushStyles},
};

// Name of the table that a host fills controls of that kind from; null for a number that is not a kind.
constexpr const char* TableOfControl(unsigned kind) {
    for (const ControlTable& row : kControlTables) {
        if (row.kind == kind) return row.table;
    }
    return nullptr;
}

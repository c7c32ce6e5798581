// The kinds of the library's controls, by which they announce themselves. A kind is not the identifier of a control in its
// dialog: all combos of line styles have the same.
#pragma once

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

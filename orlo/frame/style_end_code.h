// The codes with which the General page ends a sheet over a style, as DoModal's result. What they ask for is the host's
// work; the sheet is closed and the drawing is unchanged but for a style that was added.
//
// Identifiers of 1000 and more overlap with the next kind: the host then asks which reading names a style.
#pragma once

enum StyleEndCode : int {
    kStyleAdded = 1000,      // a style was added to the table, made from a copy of the sheet's graphics
    kStyleChosen = 1000,     // + its identifier: the user chose a style and went on to another control
    kStyleToDelete = 2000,   // + its identifier: the user asked to delete the style
    kStyleChosenByOk = 3000, // + its identifier: the user chose a style and pressed OK
};

// Data exchange of a drawing scale with a combo box of scale texts. See ddx.h for the convention.
#pragma once

#include <afxwin.h>

#include "orlo/export.h"
#include "orlo/host/records.h"

// The items of the combo box are scale texts in descending order of scale. In both directions the scale of `text` is
// selected. A scale that is not in the list is inserted; for a scale equal to that of an item, `text` is replaced by
// the item's text.
//   text     the scale as text in the format of the drawing's units
//   units    the drawing's units table
//   pScale   null, or the scale as a factor: used when loading if text is empty, and set in both directions
// Fails with a message if the text is not a scale (save), and without one if both text and value are missing (load).
ORLO_API int DDX_CBScale(int bReport, CDataExchange* pDX, unsigned int nIDC, CString& text, TableStruct* units,
                         double* pScale);

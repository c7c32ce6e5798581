// Exchange of a drawing scale with a combo box of scale texts. See ddx.h for the convention.
#pragma once

#include <afxwin.h>

#include "orlo/export.h"
#include "orlo/host/records.h"

// The combo's items are scale texts in falling order of scale. In both directions the scale of `text` is
// selected; one that is not in the list is inserted at its place, one that equals an item's takes over the item's
// text.
//   text     the scale as text, in the form of the drawing's units
//   units    the drawing's unit table
//   pScale   null, or the scale as a factor: what a load falls back on while text is empty, and what both
//   directions set
// Fails with a message if the text is not a scale (save), without one if both text and value are missing (load).
ORLO_API int DDX_CBScale(int bReport, CDataExchange* pDX, unsigned int nIDC, CString& text, TableStruct* units,
                         double* pScale);

// The lists of fonts that the Text page offers: faces, sizes, styles.
#pragma once

#include <windows.h>

#include "orlo/export.h"

class CFontSizeControl;

// What a list of sizes is filled for.
struct FontListRequest {
    CFontSizeControl* pControl; // the control to fill; says in which drawing and coordinate space
    const char* pszFace;        // null or empty: no sizes
};

// Empties the combo and fills it by its control identifier (control_ids.h):
//
//   IDC_FONT_FACE, IDC_FONT_FACE_2  TrueType faces of the system, each once; lParam: the CWnd* of the control
//   IDC_FONT_SIZE                   sizes of a face; lParam: const FontListRequest*
//   IDC_FONT_STYLE                  the four font styles, in the order of their numbers; lParam is not used
//   others                          stay empty
//
// The items are in the order of the enumeration or the configuration, unless the combo sorts. 1 for faces and sizes,
// else 0; also 0, with nothing changed, without a device context.
ORLO_API int FillFontDropDown(HWND hWnd, LPARAM lParam);

// The lists of fonts on the Text page: faces, sizes and styles.
#pragma once

#include <windows.h>

#include "orlo/export.h"
#include "orlo/host/records.h"

class CFontSizeControl;

// Parameters for filling a list of sizes.
struct FontListRequest {
    CFontSizeControl* pControl; // the control to fill; determines drawing and coordinate space
    const char* pszFace;        // null or empty for no sizes
};

// Empties the combo box and fills it: a CFontFaceControl with faces, a CFontSizeControl with sizes, another combo box
// according to its control identifier (control_ids.h):
//
//   IDC_FONT_FACE, IDC_FONT_FACE_2  TrueType faces of the system, each once; lParam: the CWnd* of the control
//   IDC_FONT_SIZE                   sizes of a face; lParam: const FontListRequest*
//   IDC_FONT_STYLE                  the four font styles in numerical order; lParam is ignored
//   others                          stay empty
//
// Items keep the order of the enumeration or the configuration unless the combo box sorts. Returns 1 for faces and
// sizes, else 0. Without a device context, returns 0 and changes nothing.
ORLO_API int FillFontDropDown(HWND hWnd, LPARAM lParam);

// Internal to the library: convert font heights to and from text in the units of a drawing.
constexpr int kFontSizeTextSize = 0x100;

// Both return 0 and leave the result unchanged if there is no drawing, the coordinate space is 2, which has no lengths,
// or the text or number cannot be converted. coordSpace is the value returned by DrawingGetCoordSpace.
int TextToFontSize(DrawingStruct* drawing, uint16_t coordSpace, const char* text, double* value);
int FontSizeToText(DrawingStruct* drawing, uint16_t coordSpace, double value, char* buffer, int size);

// Converts pen widths to and from text in one of two unit systems, and fills and exchanges their combo box.
//
// With scale system 0 a width is stored in drawing units, otherwise in inches on paper. Widths on paper are shown in
// the pen width unit of the drawing's units table. The host converts between that unit and millimeters, this module
// between millimeters and inches.
#pragma once

#include <afxwin.h>

#include "orlo/host/records.h"

// Return nonzero on success. On failure, *value or the buffer is undefined.
int TextToPenWidth(DrawingStruct* drawing, unsigned char scaleSystem, const char* text, double* value);
int PenWidthToText(DrawingStruct* drawing, unsigned char scaleSystem, double value, char* buffer, int size);

// Exchanges the width combo box. Loading adds a text that is not in the list. The indeterminate value is displayed as
// "*****". Text that is not a width is rejected with a beep, without a message.
int DDX_CBPenWidth(int bReport, CDataExchange* pDX, int nIDC, double& value, unsigned char scaleSystem,
                   DrawingStruct* drawing);

// Adds the configured widths to the combo box while loading.
void FillPenWidths(CDataExchange* pDX, int nIDC, DrawingStruct* drawing, unsigned char scaleSystem);
// Adds one of them in the format of PenWidthToText. Skips an item that cannot be parsed.
void AddPenWidthItem(const char* item, CDataExchange* pDX, int nIDC, DrawingStruct* drawing, unsigned char scaleSystem);

// Exchanges the combo box of scale systems: item 0 is world, item 1 paper, no selection the indeterminate value. Always
// returns 1.
int DDX_CBScaleSystem(int bReport, CDataExchange* pDX, int nIDC, unsigned char& value);

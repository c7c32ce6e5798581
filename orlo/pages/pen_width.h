// Pen widths as text, in one of two unit systems, and the combo that offers them.
//
// A stored width of scale system 0 is in drawing units. Any other is in inches of paper: shown in the pen width unit of
// the drawing's units table, whose numbers are millimeters for this purpose (a factor of 1/25.4).
#pragma once

#include <afxwin.h>

#include "orlo/host/records.h"

// Non-zero on success; on failure *value, or the buffer, is not to be used.
int TextToPenWidth(DrawingStruct* drawing, unsigned char scaleSystem, const char* text, double* value);
int PenWidthToText(DrawingStruct* drawing, unsigned char scaleSystem, double value, char* buffer, int size);

// Exchanges the width combo: a text that is not in the list is added, "*****" represents the indeterminate value. A
// text that is not a width is refused with a beep and no message.
int DDX_CBPenWidth(int bReport, CDataExchange* pDX, int nIDC, double& value, unsigned char scaleSystem,
                   DrawingStruct* drawing);

// Loading, adds the configured widths to the combo.
void FillPenWidths(CDataExchange* pDX, int nIDC, DrawingStruct* drawing, unsigned char scaleSystem);
// Adds one of them, as PenWidthToText writes it. An item that cannot be read is skipped.
void AddPenWidthItem(const char* item, CDataExchange* pDX, int nIDC, DrawingStruct* drawing, unsigned char scaleSystem);

// Exchanges the combo of scale systems: item 0 is world, item 1 paper, no item the indeterminate one. Always 1.
int DDX_CBScaleSystem(int bReport, CDataExchange* pDX, int nIDC, unsigned char& value);

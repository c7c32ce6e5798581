// Exchange between a control and a variable of a host table, with no variable in between. See ddx.h for the convention.
//
//   DDX_TextVarNumeric(1, pDX, 104, drawing->pUnits, 0x5100, 0.5, 20.0);   // the field is checked, then the table
//   written
//
// A refused text leaves the table alone. A variable that isn't there is shown as 0 or empty. Of an identifier the low
// 16 bits count.
#pragma once

#include <afxwin.h>

#include "orlo/export.h"
#include "orlo/host/records.h"

// Numbers, checked against the limits only if max is above min.
ORLO_API int DDX_TextVarNumeric(int bReport, CDataExchange* pDX, unsigned int nIDC, TableStruct* pTable,
                                unsigned long nID, double min, double max);
ORLO_API int DDX_TextVarInt(int bReport, CDataExchange* pDX, unsigned int nIDC, TableStruct* pTable, unsigned long nID,
                            long min, long max);

// Texts: at most 127 bytes are loaded into an edit control, 255 into a combo box.
ORLO_API int DDX_TextVarString(int bReport, CDataExchange* pDX, unsigned int nIDC, TableStruct* pTable,
                               unsigned long nID);
ORLO_API int DDX_CBVarString(int bReport, CDataExchange* pDX, unsigned int nIDC, TableStruct* pTable,
                             unsigned long nID);

// A length on paper: inches in the variable, 0.025 if it is missing, and the text in the units of pUnits. Limits in
// inches, checked only if min is below max; nIDPrompt is the message with both, which a bad text shows too.
ORLO_API int DDX_TextVarDeviceInches(int bReport, CDataExchange* pDX, unsigned int nIDC, TableStruct* pUnits,
                                     TableStruct* pVariables, unsigned short nID, double min, double max,
                                     unsigned int nIDPrompt);

// State of a check box, and position in a radio group: -1 for no button. A variable that isn't there is an empty box,
// and no button.
ORLO_API int DDX_CheckVarInt(int bReport, CDataExchange* pDX, unsigned int nIDC, TableStruct* pTable,
                             unsigned long nID);
ORLO_API int DDX_RadioVarInt(int bReport, CDataExchange* pDX, unsigned int nIDC, TableStruct* pTable,
                             unsigned long nID);
// A radio group whose buttons map to other numbers: see DDX_RadioMap.
ORLO_API int DDX_RadioVarIntMap(int bReport, CDataExchange* pDX, unsigned int nIDC, TableStruct* pTable,
                                unsigned long nID, long* pMap, int nCount);

// The variable holds nBase plus the index of the combo's item. Saving no item, or one beyond nMax, stores nDefault;
// loading a variable that is not an item clears the selection.
ORLO_API int DDX_CBVarIndex(int bReport, CDataExchange* pDX, unsigned int nIDC, TableStruct* pTable, unsigned long nID,
                            int nBase, int nMax, int nDefault);

// The scale of a drawing in a combo of scales: see DDX_CBScale. A text that is not a scale leaves the drawing's
// unchanged; the result is still 1.
ORLO_API int DDX_CBVarScale(int bReport, CDataExchange* pDX, unsigned int nIDC, DrawingStruct* pDrawing);

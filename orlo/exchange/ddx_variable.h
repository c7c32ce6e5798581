// Data exchange between a control and a variable of a host table. See ddx.h for the convention.
//
//   // Validates the field, then writes the variable.
//   DDX_TextVarNumeric(1, pDX, 104, drawing->pUnits, 0x5100, 0.5, 20.0);
//
// Rejected text leaves the table unchanged. A missing variable is displayed as 0 or empty. Only the low 16 bits of an
// identifier are used.
#pragma once

#include <afxwin.h>

#include "orlo/export.h"
#include "orlo/host/records.h"

// Exchanges a number, validated against the limits only if max is greater than min.
ORLO_API int DDX_TextVarNumeric(int bReport, CDataExchange* pDX, unsigned int nIDC, TableStruct* pTable,
                                unsigned long nID, double min, double max);
ORLO_API int DDX_TextVarInt(int bReport, CDataExchange* pDX, unsigned int nIDC, TableStruct* pTable, unsigned long nID,
                            long min, long max);

// Exchanges a text, loading at most 127 bytes into an edit control and 255 into a combo box.
ORLO_API int DDX_TextVarString(int bReport, CDataExchange* pDX, unsigned int nIDC, TableStruct* pTable,
                               unsigned long nID);
ORLO_API int DDX_CBVarString(int bReport, CDataExchange* pDX, unsigned int nIDC, TableStruct* pTable,
                             unsigned long nID);

// Exchanges a length on paper: in inches in the variable (0.025 if it is missing), in the units of pUnits in the
// control. The limits are in inches and checked only if min is less than max. nIDPrompt is the message with both
// limits, also shown for invalid text.
ORLO_API int DDX_TextVarDeviceInches(int bReport, CDataExchange* pDX, unsigned int nIDC, TableStruct* pUnits,
                                     TableStruct* pVariables, unsigned short nID, double min, double max,
                                     unsigned int nIDPrompt);

// Exchange the state of a check box, and the index in a radio group, -1 without a checked button. If the variable is
// missing, the box is empty and no button is checked.
ORLO_API int DDX_CheckVarInt(int bReport, CDataExchange* pDX, unsigned int nIDC, TableStruct* pTable,
                             unsigned long nID);
ORLO_API int DDX_RadioVarInt(int bReport, CDataExchange* pDX, unsigned int nIDC, TableStruct* pTable,
                             unsigned long nID);
// Exchanges a radio group whose buttons map to arbitrary numbers; see DDX_RadioMap.
ORLO_API int DDX_RadioVarIntMap(int bReport, CDataExchange* pDX, unsigned int nIDC, TableStruct* pTable,
                                unsigned long nID, long* pMap, int nCount);

// Exchanges the index of a combo box's item plus nBase. Saving stores nDefault if no item is selected or its index is
// greater than nMax. Loading clears the selection if no item corresponds to the variable.
ORLO_API int DDX_CBVarIndex(int bReport, CDataExchange* pDX, unsigned int nIDC, TableStruct* pTable, unsigned long nID,
                            int nBase, int nMax, int nDefault);

// Exchanges the scale of a drawing with a combo box of scales; see DDX_CBScale. Text that is not a scale leaves the
// drawing's scale unchanged, and the function still returns 1.
ORLO_API int DDX_CBVarScale(int bReport, CDataExchange* pDX, unsigned int nIDC, DrawingStruct* pDrawing);

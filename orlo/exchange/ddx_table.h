// Data exchange of an entry of a host table: the item of a control that shows the table, and the entry's 16-bit
// identifier. See ddx.h for the convention, controls/control_item.h for the text of an item.
//
//   m_nStyle = 0xFFFFFFFF; // multiple values
//   // Load: no item has this key, so the selection is unchanged. Save: without a selection, m_nStyle is unchanged.
//   DDX_LBTableIndex(1, pDX, IDC_LINE_STYLE_LIST, m_nStyle);
#pragma once

#include <afxwin.h>

#include "orlo/export.h"
#include "orlo/host/records.h"

// Append the table's entries to a plain control, in table order unless the control sorts. Entries without text are
// skipped. Return the number of added items.
//   combo box: the entries' names, or with bUseData their data texts
//   list box:  bit 1 of nFlags: the name; bit 2: the data text; separated by a tab if both are set
ORLO_API int FillComboTable(CComboBox* pCombo, TableStruct* pTable, int bUseData);
ORLO_API int FillListBoxTable(CListBox* pList, TableStruct* pTable, unsigned int nFlags);

// Appends the non-empty ones of the first nCount lines of a string resource. Returns the number of added items.
ORLO_API int FillComboStringTable(CComboBox* pCombo, unsigned int nIDS, int nCount);

// Exchange with controls whose items begin with the identifier in hexadecimal digits. Saving without a selection leaves
// the variable unchanged. Loading an identifier that no item has leaves the selection unchanged and sets the window
// text to the key, which no control draws.
ORLO_API int DDX_LBTableIndex(int bReport, CDataExchange* pDX, int nIDC, unsigned int& value);
ORLO_API int DDX_CBTableIndex(int bReport, CDataExchange* pDX, int nIDC, unsigned int& value);

// Exchanges a 32-bit key such as a color. A key that no item has clears the selection; of equal keys the last is used.
ORLO_API int DDX_CBTableColor(int bReport, CDataExchange* pDX, int nIDC, unsigned long& value);

// Exchanges with a CComboControl whose items are plain names; identifiers are looked up in the control's own table. 0,
// 0xFFFF and identifiers without a name clear the selection. Fails if the control is not a CComboControl or has no
// table.
ORLO_API int DDX_CBTableLookupIndex(int bReport, CDataExchange* pDX, int nIDC, unsigned int& value);

// Exchange of an entry of a host table: the item of a control that shows the table, and the entry's 16-bit
// identifier. See ddx.h for the convention, controls/control_item.h for the text of an item.
//
//   m_nStyle = 0xFFFFFFFF;                       // the selection holds several styles
//   DDX_LBTableIndex(1, pDX, IDC_LINE_STYLE_LIST, m_nStyle);   // load: no item has that key, the selection stays as it
//   is
//                                                // save without a selection: the variable stays as it is
#pragma once

#include <afxwin.h>

#include "orlo/export.h"
#include "orlo/host/records.h"

// Append the table's entries to a plain control, in the table's order unless the control sorts. Entries
// without a text are passed over. The result is the number of items added.
//   combo: the entries' names, or with bUseData their data texts
//   list:  bit 1 of nFlags the name, bit 2 the data text, with a tab between the two
ORLO_API int FillComboTable(CComboBox* pCombo, TableStruct* pTable, int bUseData);
ORLO_API int FillListBoxTable(CListBox* pList, TableStruct* pTable, unsigned int nFlags);

// Appends the first nCount lines of a string resource, without the empty ones. The result is the number
// added.
ORLO_API int FillComboStringTable(CComboBox* pCombo, unsigned int nIDS, int nCount);

// Controls whose items begin with the identifier in hexadecimal digits. Saving an empty selection leaves the
// variable alone. Loading an identifier that no item has leaves the selection alone and makes the key the
// window text, which no control draws.
ORLO_API int DDX_LBTableIndex(int bReport, CDataExchange* pDX, int nIDC, unsigned int& value);
ORLO_API int DDX_CBTableIndex(int bReport, CDataExchange* pDX, int nIDC, unsigned int& value);

// The same with a 32-bit key, such as a color. A key that no item has clears the selection; the last of
// equal ones counts.
ORLO_API int DDX_CBTableColor(int bReport, CDataExchange* pDX, int nIDC, unsigned long& value);

// A CComboControl whose items hold plain names; the identifier comes from the control's own table. 0 and
// 0xFFFF, and identifiers without a name, clear the selection. Fails if the control is not one of the library's
// or has no table.
ORLO_API int DDX_CBTableLookupIndex(int bReport, CDataExchange* pDX, int nIDC, unsigned int& value);

// Deferred property exchange: binds a member of a page to a named property of the selection.
//
// When loading, a DDP_ call immediately merges the property into the member. When saving, it writes nothing: if the
// control nID is dirty, the call adds a pending write, and DDP_PostProcessing, the last call of DoDataExchange, carries
// out all pending writes. If a DDX_ or DDV_ function rejects a value, the exchange ends before any property is changed.
//
//   DDP_Text(pDX, IDC_WIDTH, m_dWidth, "PenWidth");      // first the property
//   DDX_Text(1, pDX, IDC_WIDTH, m_dWidth);               // then the control
//   if (IsEdited(IDC_WIDTH)) DDV_MinMaxDouble(1, pDX, m_dWidth, 0.0, 1e38); // then the limits
//   DDP_PostProcessing(pDX);
//
// A dirty control that shows the same as when it was loaded or written writes nothing; see
// CGraphicPropertyPage::IsEdited. Its member has the loaded value at the start and at the end of the exchange; a DDX_
// function may set it from the text in between. If an edited control shows "*****" for a number, the member becomes the
// marker.
//
// pDX->m_pDlgWnd must be a CGraphicPropertyPage. Member and name are stored by address and must stay valid until
// DDP_PostProcessing has run; the member may be a local variable of DoDataExchange. A member that contains the
// indeterminate marker at that point is not written. The order of writes is undefined, so no property may depend on
// another being written first.
#pragma once

#include <afxwin.h>

#include "orlo/export.h"

ORLO_API void DDP_Text(CDataExchange* pDX, int nID, unsigned char& member, const char* pszPropName);
ORLO_API void DDP_Text(CDataExchange* pDX, int nID, unsigned short& member, const char* pszPropName);
ORLO_API void DDP_Text(CDataExchange* pDX, int nID, int& member, const char* pszPropName);
ORLO_API void DDP_Text(CDataExchange* pDX, int nID, unsigned int& member, const char* pszPropName);
ORLO_API void DDP_Text(CDataExchange* pDX, int nID, long& member, const char* pszPropName);
ORLO_API void DDP_Text(CDataExchange* pDX, int nID, unsigned long& member, const char* pszPropName);
ORLO_API void DDP_Text(CDataExchange* pDX, int nID, float& member, const char* pszPropName);
ORLO_API void DDP_Text(CDataExchange* pDX, int nID, double& member, const char* pszPropName);
ORLO_API void DDP_Text(CDataExchange* pDX, int nID, CString& member, const char* pszPropName);
ORLO_API void DDP_Check(CDataExchange* pDX, int nID, int& member, const char* pszPropName);
ORLO_API void DDP_Check(CDataExchange* pDX, int nID, unsigned short& member, const char* pszPropName);
ORLO_API void DDP_Radio(CDataExchange* pDX, int nID, int& member, const char* pszPropName);
ORLO_API void DDP_Radio(CDataExchange* pDX, int nID, unsigned short& member, const char* pszPropName);

// pMember points to a pair: the mask of bits in which the graphics differ, and the bits. DDP_TextSetAt binds another
// control to a pair that DDP_Bits has loaded.
ORLO_API void DDP_Bits(CDataExchange* pDX, int nID, unsigned short* pMember, const char* pszPropName);
ORLO_API void DDP_TextSetAt(CDataExchange* pDX, int nID, unsigned short* pMember, const char* pszPropName);

// Carry out a pending write: when saving, write the member to the property of the selection.
ORLO_API void DDP_EndText(CDataExchange* pDX, int nID, unsigned char* pMember, const char* pszPropName);
ORLO_API void DDP_EndText(CDataExchange* pDX, int nID, int* pMember, const char* pszPropName);
ORLO_API void DDP_EndText(CDataExchange* pDX, int nID, unsigned int* pMember, const char* pszPropName);
ORLO_API void DDP_EndText(CDataExchange* pDX, int nID, long* pMember, const char* pszPropName);
ORLO_API void DDP_EndText(CDataExchange* pDX, int nID, unsigned long* pMember, const char* pszPropName);
ORLO_API void DDP_EndText(CDataExchange* pDX, int nID, float* pMember, const char* pszPropName);
ORLO_API void DDP_EndText(CDataExchange* pDX, int nID, double* pMember, const char* pszPropName);
ORLO_API void DDP_EndText(CDataExchange* pDX, int nID, CString* pMember, const char* pszPropName);
ORLO_API void DDP_EndCheck(CDataExchange* pDX, int nID, int* pMember, const char* pszPropName);
ORLO_API void DDP_EndCheck(CDataExchange* pDX, int nID, unsigned short* pMember, const char* pszPropName);
ORLO_API void DDP_EndRadio(CDataExchange* pDX, int nID, int* pMember, const char* pszPropName);
ORLO_API void DDP_EndRadio(CDataExchange* pDX, int nID, unsigned short* pMember, const char* pszPropName);
ORLO_API void DDP_EndBits(CDataExchange* pDX, int nID, unsigned short* pMember, const char* pszPropName);

// When saving, carries out the pending writes and sets the page's number on every selected graphic. An exception during
// a write ends that write only; a CException is ignored. Finally, one message box reports how many graphics rejected a
// value (PropSet returned 0 or threw an exception), and the text of any other exception.
ORLO_API void DDP_PostProcessing(CDataExchange* pDX);

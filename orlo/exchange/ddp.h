// Deferred property exchange: binds a member of a page to a named property of the selection, all or nothing.
//
// Loading, a DDP_ call merges the property into the member at once. Saving, it writes nothing: if the control nID is
// dirty it leaves a record, and DDP_PostProcessing, the last call of DoDataExchange, carries the records out. A DDX_ or
// DDV_ that refuses a value ends the exchange before that, and then no property has been touched.
//
//   DDP_Text(pDX, IDC_WIDTH, m_dWidth, "PenWidth");      // first the property
//   DDX_Text(1, pDX, IDC_WIDTH, m_dWidth);               // then the control
//   if (IsEdited(IDC_WIDTH)) DDV_MinMaxDouble(1, pDX, m_dWidth, 0.0, 1e38); // then the limits
//   DDP_PostProcessing(pDX);
//
// A dirty control that shows what it showed when it was loaded, or written, leaves no write pending: see
// CGraphicPropertyPage::IsEdited. Its member has the value that was loaded when the exchange begins and when it ends;
// in between a DDX_ may have read the text. A number of which an edited control shows "*****" becomes the marker.
//
// pDX->m_pDlgWnd is a CGraphicPropertyPage. Member and name are kept by address and must live until DDP_PostProcessing
// has run; the member may be a local variable of DoDataExchange. A member that then holds the indeterminate marker
// writes nothing. The order of the writes is not defined: no property may depend on another being written first.
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

// pMember is a pair: the mask of bits in which the graphics differ, and the bits. DDP_TextSetAt binds a further control
// to a pair that DDP_Bits has loaded.
ORLO_API void DDP_Bits(CDataExchange* pDX, int nID, unsigned short* pMember, const char* pszPropName);
ORLO_API void DDP_TextSetAt(CDataExchange* pDX, int nID, unsigned short* pMember, const char* pszPropName);

// What carries a record out: saving, writes the member to the property of the selection.
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

// Saving: carries out the records and stamps every selected graphic with the page's number. What a write throws ends
// that property, not the others; a CException is dropped. Afterwards one message box says how many of the graphics did
// not accept a value (PropSet gave 0, or threw), and what else was thrown.
ORLO_API void DDP_PostProcessing(CDataExchange* pDX);

// Messages of exceptions, from the string table.

#include <afxapp.h>
#include <afxres.h>

BOOL CException::GetErrorMessage(LPSTR lpszError, UINT nMaxError, UINT*) {
    if (nMaxError > 0) *lpszError = '\0';
    return FALSE;
}

int CException::ReportError(UINT nType, UINT nMessageID) {
    char text[512];
    if (GetErrorMessage(text, sizeof text)) return AfxMessageBox(text, nType);
    return AfxMessageBox(nMessageID != 0 ? nMessageID : AFX_IDP_INTERNAL_FAILURE, nType);
}

BOOL CNotSupportedException::GetErrorMessage(LPSTR lpszError, UINT nMaxError, UINT*) {
    return AfxLoadString(AFX_IDS_NOT_SUPPORTED_EXCEPTION, lpszError, nMaxError) > 0;
}

BOOL CResourceException::GetErrorMessage(LPSTR lpszError, UINT nMaxError, UINT*) {
    return AfxLoadString(AFX_IDS_RESOURCE_EXCEPTION, lpszError, nMaxError) > 0;
}

BOOL CFileException::GetErrorMessage(LPSTR lpszError, UINT nMaxError, UINT*) {
    CString text;
    AfxFormatString1(text, static_cast<UINT>(AFX_IDP_FILE_FIRST + m_cause), m_strFileName);
    ::lstrcpynA(lpszError, text, static_cast<int>(nMaxError));
    return !text.IsEmpty();
}

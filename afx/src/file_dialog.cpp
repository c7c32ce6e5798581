// CFileDialog, implemented with the system's common dialogs.

#include <afxdlgs.h>

CFileDialog::CFileDialog(BOOL bOpenFileDialog, LPCSTR lpszDefExt, LPCSTR lpszFileName, DWORD dwFlags, LPCSTR lpszFilter,
                         CWnd* pParentWnd)
    : m_bOpen(bOpenFileDialog), m_strDefExt(lpszDefExt), m_strFilter(lpszFilter), m_dwFlags(dwFlags),
      m_pParentWnd(pParentWnd), m_szPath{} {
    for (int i = 0; i < m_strFilter.GetLength(); ++i) {
        if (m_strFilter[i] == '|') m_strFilter.SetAt(i, '\0');
    }
    if (lpszFileName != nullptr) ::lstrcpynA(m_szPath, lpszFileName, MAX_PATH);
}

int CFileDialog::DoModal() {
    OPENFILENAMEA open = {};
    open.lStructSize = sizeof open;
    open.hwndOwner = m_pParentWnd != nullptr ? m_pParentWnd->m_hWnd : nullptr;
    open.lpstrFilter = m_strFilter.IsEmpty() ? nullptr : static_cast<LPCSTR>(m_strFilter);
    open.lpstrFile = m_szPath;
    open.nMaxFile = MAX_PATH;
    open.lpstrDefExt = m_strDefExt;
    open.Flags = m_dwFlags;
    return (m_bOpen ? ::GetOpenFileNameA(&open) : ::GetSaveFileNameA(&open)) ? IDOK : IDCANCEL;
}

// Message boxes and formatted strings.

#include <afxapp.h>

#include <cstring>

namespace {

// Returns the owner for a message box.
HWND BoxOwner() {
    HWND active = ::GetActiveWindow();
    if (active != nullptr) return active;
    CWnd* main = AfxGetMainWnd();
    return main != nullptr && main->m_hWnd != nullptr ? ::GetLastActivePopup(main->m_hWnd) : nullptr;
}

void FormatInserts(CString& result, LPCSTR format, std::initializer_list<LPCSTR> inserts) {
    CString text;
    for (LPCSTR p = format; *p != '\0'; ++p) {
        const int which = *p == '%' ? p[1] - '1' : -1;
        if (which >= 0 && which < static_cast<int>(inserts.size())) {
            text += inserts.begin()[which];
            ++p;
        } else {
            text += *p;
        }
    }
    result = std::move(text);
}

} // namespace

int AfxMessageBox(LPCSTR lpszText, UINT nType, UINT) {
    if ((nType & MB_ICONMASK) == 0) nType |= MB_ICONEXCLAMATION;
    return ::MessageBoxA(BoxOwner(), lpszText, AfxGetAppName(), nType);
}

int AfxMessageBox(UINT nIDPrompt, UINT nType, UINT nIDHelp) {
    CString text;
    text.LoadString(nIDPrompt);
    return AfxMessageBox(text, nType, nIDHelp);
}

void AfxFormatString1(CString& rString, UINT nIDS, LPCSTR lpsz1) {
    CString format;
    format.LoadString(nIDS);
    FormatInserts(rString, format, {lpsz1});
}

void AfxFormatString2(CString& rString, UINT nIDS, LPCSTR lpsz1, LPCSTR lpsz2) {
    CString format;
    format.LoadString(nIDS);
    FormatInserts(rString, format, {lpsz1, lpsz2});
}

BOOL AfxExtractSubString(CString& rString, LPCSTR lpszFullString, int iSubString, char chSep) {
    rString.Empty();
    LPCSTR part = lpszFullString;
    for (int i = 0; part != nullptr && i < iSubString; ++i) {
        part = std::strchr(part, chSep);
        if (part != nullptr) ++part;
    }
    if (part == nullptr) return FALSE;
    LPCSTR end = std::strchr(part, chSep);
    rString = CString(part, static_cast<int>(end != nullptr ? end - part : std::strlen(part)));
    return TRUE;
}

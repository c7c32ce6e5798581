// The dialog of warnings: a read-only field, so that they can be copied.

#include "demo/viewer/warnings_dialog.h"

#include "demo/viewer/resource.h"

CWarningsDialog::CWarningsDialog(CWnd* owner, const std::vector<std::string>& warnings) : CDialog(IDD_WARNINGS, owner) {
    for (const std::string& warning : warnings)
        m_text += warning + "\r\n";
}

BOOL CWarningsDialog::OnInitDialog() {
    const HWND field = ::GetDlgItem(m_hWnd, IDC_WARNINGS);
    ::SendMessageA(field, EM_SETLIMITTEXT, 0, 0); // sets the maximum limit
    ::SetWindowTextA(field, m_text.c_str());
    return CDialog::OnInitDialog();
}

// A wizard with two pages.

#include <orlo.h>

class CNamePage : public CPropertyPage {
public:
    CNamePage() : CPropertyPage(200, 0) {} // the number of a dialog template of the host

    // Called by Next and Finish. If the name is empty, the page stays.
    BOOL OnKillActive() override {
        if (!CPropertyPage::OnKillActive()) return FALSE;
        GetDlgItem(101)->GetWindowText(m_name);
        return !m_name.IsEmpty();
    }

    CString m_name;
};

bool AskForName(CWnd* owner, CString& name) {
    CNamePage first;
    CPropertyPage last(201, 0);
    CWizardSheet wizard("New layer", owner, 0);
    wizard.AddPage(&first);
    wizard.AddPage(&last);
    if (wizard.DoModal() != IDOK) return false;
    name = first.m_name;
    return true;
}

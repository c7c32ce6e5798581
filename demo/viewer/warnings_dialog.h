// The dialog that lists the parts of a drawing that were omitted when it was opened.
#pragma once

#include <afxwin.h>

#include <string>
#include <vector>

class CWarningsDialog : public CDialog {
public:
    CWarningsDialog(CWnd* owner, const std::vector<std::string>& warnings);

protected:
    BOOL OnInitDialog() override;

private:
    std::string m_text; // one line each
};

// The list of the main window's keys and what the mouse does in it.
#pragma once

#include <afxwin.h>

class CKeysDialog : public CDialog {
public:
    explicit CKeysDialog(CWnd* owner);

protected:
    BOOL OnInitDialog() override;
};

// The dialog with the main window's keys and mouse actions.
#pragma once

#include <afxwin.h>

class CKeysDialog : public CDialog {
public:
    explicit CKeysDialog(CWnd* owner);

protected:
    BOOL OnInitDialog() override;
};

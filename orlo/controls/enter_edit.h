// CEnterEdit: the edit field of a combo box of the library. Notifies the application when Return is pressed.
//
// The thread's main window gets WM_COMMAND as if an item had been selected: CBN_SELENDOK with the kind of the combo box
// (its m_nControlID) and its window. Then the main window gets the focus.
#pragma once

#include <afxwin.h>

#include "orlo/export.h"

class ORLO_API CEnterEdit : public CWnd {
    DECLARE_DYNAMIC(CEnterEdit)
public:
    CEnterEdit();
    ~CEnterEdit() override;

protected:
    WNDPROC* GetSuperWndProcAddr() override;
    afx_msg void OnKeyUp(UINT nChar, UINT nRepCnt, UINT nFlags);

    static WNDPROC lpfnSuperWndProc; // the system edit control's window procedure

    DECLARE_MESSAGE_MAP()
};

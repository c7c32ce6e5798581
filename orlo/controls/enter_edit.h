// CEnterEdit: the edit field of a combo of the library, which notifies the application when Return is pressed.
//
// The thread's main window gets WM_COMMAND as if an item had been chosen, CBN_SELENDOK with the kind of the combo (its
// m_nControlID) and the combo's window, and then the focus.
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

    static WNDPROC lpfnSuperWndProc; // window procedure of the system's edit control

    DECLARE_MESSAGE_MAP()
};

// Data exchange with control objects and scroll bars.

#include "orlo/exchange/ddx_control.h"

int DDX_Control(int, CDataExchange* pDX, int nIDC, CWnd& control) {
    if (control.m_hWnd) return 1;
    if (!control.SubclassWindow(pDX->PrepareCtrl(nIDC))) AfxThrowNotSupportedException();
    return 1;
}

int DDX_Scroll(int, CDataExchange* pDX, int nIDC, int& value) {
    const HWND control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = ::GetScrollPos(control, SB_CTL);
    else
        ::SetScrollPos(control, SB_CTL, value, TRUE);
    return 1;
}

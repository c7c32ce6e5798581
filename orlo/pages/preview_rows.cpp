// CheckForPreview.

#include "orlo/pages/preview_rows.h"

#include "orlo/binding/indeterminate.h"
#include "orlo/exchange/ddx.h"

int CheckForPreview(CDataExchange* pDX, int nID, int bAll, int& last) {
    int value = 0;
    DDX_Check(0, pDX, nID, value);
    if (value != kIndeterminateCheck) {
        last = value;
    } else if (!bAll) {
        value = last = 1 - last;
        ::SendDlgItemMessageA(pDX->m_pDlgWnd->m_hWnd, nID, BM_SETCHECK, value, 0);
    }
    return value;
}

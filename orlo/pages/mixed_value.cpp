#include "orlo/pages/mixed_value.h"

#include "orlo/binding/fuzzy.h"
#include "orlo/binding/indeterminate.h"
#include "orlo/exchange/ddx.h"

bool IsMixed(double value) {
    const double marker = Indeterminate<double>::Value();
    return CompareDoubles(&value, &marker) == 0;
}

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

// Preview rows shared by several pages.

#include "orlo/pages/preview_rows.h"

#include "orlo/binding/indeterminate.h"
#include "orlo/exchange/ddx.h"

void TransferColor(CGraphicPropertyPage& page, CDataExchange* pDX, int nID, const char* pszPropName) {
    unsigned long color = kIndeterminateId;
    if (DDX_CBTableColor(0, pDX, nID, color)) page.SetPropText(pszPropName, color, 1);
}

void TransferCheck(CGraphicPropertyPage& page, CDataExchange* pDX, int nID, int bAll, int& last,
                   const char* pszPropName) {
    int value = 0;
    DDX_Check(0, pDX, nID, value);
    if (value != kIndeterminateCheck) {
        last = value;
    } else if (!bAll) {
        value = last = 1 - last;
        ::SendDlgItemMessageA(page.m_hWnd, nID, BM_SETCHECK, value, 0);
    }
    page.SetPropCheck(pszPropName, value, 1);
}

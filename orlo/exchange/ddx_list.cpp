// Data exchange with the selection of plain list boxes and combo boxes.

#include "orlo/exchange/ddx_list.h"

#include "orlo/controls/control_items.h"
#include "orlo/exchange/window_text.h"

namespace {

void ExchangeIndex(CDataExchange* pDX, const ControlItems& items, int& value) {
    if (pDX->m_bSaveAndValidate)
        value = items.Selected();
    else
        items.Select(value < items.Count() ? value : -1); // an index beyond the list clears the selection only on some
                                                          // systems
}

bool SelectExact(const ControlItems& items, const char* text) {
    const int index = items.FindExact(text);
    if (index >= 0) items.Select(index);
    return index >= 0;
}

} // namespace

int DDX_LBString(int, CDataExchange* pDX, int nIDC, CString& value) {
    const ControlItems items = ControlItems::OfList(pDX->PrepareCtrl(nIDC));
    if (pDX->m_bSaveAndValidate)
        items.GetText(items.Selected(), value);
    else
        items.SelectPrefix(-1, value);
    return 1;
}

int DDX_CBString(int, CDataExchange* pDX, int nIDC, CString& value) {
    const HWND control = pDX->PrepareCtrl(nIDC);
    const ControlItems items = ControlItems::OfCombo(control);
    if (pDX->m_bSaveAndValidate) {
        value = WindowText(control);
    } else if (!SelectExact(items, value)) {
        items.Select(-1); // a drop-down list has no field for other text and keeps its selection
        AfxSetWindowText(control, value);
    }
    return 1;
}

int DDX_LBStringExact(int, CDataExchange* pDX, int nIDC, CString& value) {
    if (pDX->m_bSaveAndValidate)
        DDX_LBString(pDX, nIDC, value);
    else
        SelectExact(ControlItems::OfList(pDX->PrepareCtrl(nIDC)), value);
    return 1;
}

int DDX_CBStringExact(int, CDataExchange* pDX, int nIDC, CString& value) {
    if (pDX->m_bSaveAndValidate)
        DDX_CBString(pDX, nIDC, value);
    else
        SelectExact(ControlItems::OfCombo(pDX->PrepareCtrl(nIDC)), value);
    return 1;
}

int DDX_LBIndex(int, CDataExchange* pDX, int nIDC, int& value) {
    ExchangeIndex(pDX, ControlItems::OfList(pDX->PrepareCtrl(nIDC)), value);
    return 1;
}

int DDX_CBIndex(int, CDataExchange* pDX, int nIDC, int& value) {
    ExchangeIndex(pDX, ControlItems::OfCombo(pDX->PrepareCtrl(nIDC)), value);
    return 1;
}

// CLineStyleControlC: a combo box of line styles, each shown by a sample that the host draws. Its counterpart
// CLineStyleControlL shows the same table with a margin around the samples.
//
// Line styles are identifiers of table entries. kLineStyleNone and kLineStyleIndeterminate show nothing; the default
// item, kLineStyleByLayer, follows the entries.
#pragma once

#include "orlo/controls/style_control.h"

class ORLO_API CLineStyleControlC : public StyleControl<CComboControl> {
    DECLARE_DYNCREATE(CLineStyleControlC)
    friend CWnd* CreateComboObject(HWND hWnd, int nID);

public:
    explicit CLineStyleControlC(int bAddDefaultItem = 1);
    ~CLineStyleControlC() override;

    void MeasureItem(MEASUREITEMSTRUCT* pMIS) override;
    void FillControl(WPARAM wParam, LPARAM lParam) override;

protected:
    CLineStyleControlC(HWND hWnd, int bAddDefaultItem);

    int m_bAddDefaultItem;

    DECLARE_MESSAGE_MAP()
};

// CLineStyleControlL: a list box of line styles, each shown by a sample that the host draws; the counterpart of
// CLineStyleControlC. The default item is always last.
#pragma once

#include "orlo/controls/style_control.h"

class ORLO_API CLineStyleControlL : public StyleControl<CListControl> {
    DECLARE_DYNCREATE(CLineStyleControlL)
    friend CWnd* CreateListObject(HWND hWnd, int nID);

public:
    CLineStyleControlL();
    ~CLineStyleControlL() override;

    void MeasureItem(MEASUREITEMSTRUCT* pMIS) override;

protected:
    CLineStyleControlL(HWND hWnd);

    DECLARE_MESSAGE_MAP()
};

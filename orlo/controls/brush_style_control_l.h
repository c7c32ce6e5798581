// CBrushStyleControlL: a list box of brush styles, each shown by a sample that the host fills; the counterpart of
// CBrushStyleControlC, with the same items.
#pragma once

#include "orlo/controls/style_control.h"

class ORLO_API CBrushStyleControlL : public StyleControl<CListControl> {
    DECLARE_DYNCREATE(CBrushStyleControlL)
    friend CWnd* CreateListObject(HWND hWnd, int nID);

public:
    CBrushStyleControlL();
    ~CBrushStyleControlL() override;

    void MeasureItem(MEASUREITEMSTRUCT* pMIS) override;

protected:
    CBrushStyleControlL(HWND hWnd);

    DECLARE_MESSAGE_MAP()
};

// CBrushStyleControlC: a combo box of brush styles, each shown by a sample that the host fills; the counterpart of
// CBrushStyleControlL.
//
// Brush styles are identifiers of table entries. The first item is kBrushStyleNone, no brush; filling the control never
// selects it. kBrushStyleIndeterminate means multiple values.
#pragma once

#include "orlo/controls/style_control.h"

class ORLO_API CBrushStyleControlC : public StyleControl<CComboControl> {
    DECLARE_DYNCREATE(CBrushStyleControlC)
    friend CWnd* CreateComboObject(HWND hWnd, int nID);

public:
    CBrushStyleControlC();
    ~CBrushStyleControlC() override;

    void MeasureItem(MEASUREITEMSTRUCT* pMIS) override;

protected:
    CBrushStyleControlC(HWND hWnd);

    DECLARE_MESSAGE_MAP()
};

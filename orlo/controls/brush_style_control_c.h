// CBrushStyleControlC: a combo box of brush styles, each shown by a sample that the host fills; the twin of
// CBrushStyleControlL.
//
// Brush styles are identifiers of the table's entries; kBrushStyleNone means without a brush; it is the first item, and
// a filling never selects it. kBrushStyleIndeterminate means several. There is a single sample graphic and a single
// viewport, whatever the number of styles.
#pragma once

#include "orlo/controls/combo_control.h"
#include "orlo/samples/style_sample.h"

class ORLO_API CBrushStyleControlC : public CComboControl {
    DECLARE_DYNCREATE(CBrushStyleControlC)
    friend CWnd* CreateComboObject(HWND hWnd, int nID);
    friend struct StyleControl;

public:
    CBrushStyleControlC();
    ~CBrushStyleControlC() override;

    void DrawItem(DRAWITEMSTRUCT* pDIS) override;
    void MeasureItem(MEASUREITEMSTRUCT* pMIS) override;
    void FillControl(WPARAM wParam, LPARAM lParam) override;
    CString DescribeItem(int index) override;

protected:
    CBrushStyleControlC(HWND hWnd);
    afx_msg int OnCreate(LPCREATESTRUCTA lpCreateStruct);

    // Made with the window; a control that subclasses a window makes them when it is filled.
    SampleGraphic m_pGraphic;
    SampleViewport m_pViewport;

    DECLARE_MESSAGE_MAP()
};

// CBrushStyleControlL: a list box of brush styles, each shown by a sample that the host fills; the twin of
// CBrushStyleControlC.
//
// Brush styles are identifiers of the table's entries; kBrushStyleNone means without a brush; it is the first item, and
// a filling never selects it. kBrushStyleIndeterminate means several. There is a single sample graphic and a single
// viewport, whatever the number of styles.
#pragma once

#include "orlo/controls/list_control.h"
#include "orlo/samples/style_sample.h"

class ORLO_API CBrushStyleControlL : public CListControl {
    DECLARE_DYNCREATE(CBrushStyleControlL)
    friend CWnd* CreateListObject(HWND hWnd, int nID);
    friend struct StyleControl;

public:
    CBrushStyleControlL();
    ~CBrushStyleControlL() override;

    void DrawItem(DRAWITEMSTRUCT* pDIS) override;
    void MeasureItem(MEASUREITEMSTRUCT* pMIS) override;
    void FillControl(WPARAM wParam, LPARAM lParam) override;
    CString DescribeItem(int index) override;

protected:
    CBrushStyleControlL(HWND hWnd);
    afx_msg int OnCreate(LPCREATESTRUCTA lpCreateStruct);

    // Made with the window; a control that subclasses a window makes them when it is filled.
    SampleGraphic m_pGraphic;
    SampleViewport m_pViewport;

    DECLARE_MESSAGE_MAP()
};

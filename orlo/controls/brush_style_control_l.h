// CBrushStyleControlL: a list box of brush styles, each shown by a sample that the host fills; the counterpart of
// CBrushStyleControlC.
//
// Brush styles are identifiers of table entries. The first item is kBrushStyleNone, no brush; filling the control never
// selects it. kBrushStyleIndeterminate stands for multiple values. All items are drawn with one sample graphic and one
// viewport.
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

    // Created with the window, or when first filled if the control subclasses an existing window.
    SampleGraphic m_pGraphic;
    SampleViewport m_pViewport;

    DECLARE_MESSAGE_MAP()
};

// CLineStyleControlL: a list box of line styles, each shown by a sample that the host draws; the twin of
// CLineStyleControlC. The default item is always the last.
#pragma once

#include "orlo/controls/list_control.h"
#include "orlo/samples/style_sample.h"

class ORLO_API CLineStyleControlL : public CListControl {
    DECLARE_DYNCREATE(CLineStyleControlL)
    friend CWnd* CreateListObject(HWND hWnd, int nID);
    friend struct StyleControl;

public:
    CLineStyleControlL();
    ~CLineStyleControlL() override;

    void DrawItem(DRAWITEMSTRUCT* pDIS) override;
    void MeasureItem(MEASUREITEMSTRUCT* pMIS) override;
    void FillControl(WPARAM wParam, LPARAM lParam) override;
    CString DescribeItem(int index) override;

protected:
    CLineStyleControlL(HWND hWnd);
    afx_msg int OnCreate(LPCREATESTRUCTA lpCreateStruct);

    // Made with the window; a control that subclasses a window makes them when it is filled.
    SampleGraphic m_pGraphic;
    SampleViewport m_pViewport;

    DECLARE_MESSAGE_MAP()
};

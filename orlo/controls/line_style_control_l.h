// CLineStyleControlL: a list box of line styles, each shown by a sample that the host draws; the counterpart of
// CLineStyleControlC. The default item is always last.
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

    // Created with the window, or when first filled if the control subclasses an existing window.
    SampleGraphic m_pGraphic;
    SampleViewport m_pViewport;

    DECLARE_MESSAGE_MAP()
};

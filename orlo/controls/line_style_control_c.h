// CLineStyleControlC: a combo box of line styles, each shown by a sample that the host draws. Its twin is
// CLineStyleControlL; both show the same table, the list with a margin around the sample.
//
// Line styles are identifiers of the table's entries; kLineStyleNone and kLineStyleIndeterminate show nothing,
// kLineStyleByLayer is the default item after them.
#pragma once

#include "orlo/controls/combo_control.h"
#include "orlo/samples/style_sample.h"

class ORLO_API CLineStyleControlC : public CComboControl {
    DECLARE_DYNCREATE(CLineStyleControlC)
    friend CWnd* CreateComboObject(HWND hWnd, int nID);
    friend struct StyleControl;

public:
    explicit CLineStyleControlC(int bAddDefaultItem = 1);
    ~CLineStyleControlC() override;

    void DrawItem(DRAWITEMSTRUCT* pDIS) override;
    void MeasureItem(MEASUREITEMSTRUCT* pMIS) override;
    void FillControl(WPARAM wParam, LPARAM lParam) override;
    CString DescribeItem(int index) override;

protected:
    CLineStyleControlC(HWND hWnd, int bAddDefaultItem);
    afx_msg int OnCreate(LPCREATESTRUCTA lpCreateStruct);

    // Made with the window; a control that subclasses a window makes them when it is filled.
    SampleGraphic m_pGraphic;
    SampleViewport m_pViewport;
    int m_bAddDefaultItem;

    DECLARE_MESSAGE_MAP()
};

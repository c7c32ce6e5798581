// CLineStyleControlC: a combo box of line styles, each shown by a sample that the host draws. Its counterpart
// CLineStyleControlL shows the same table with a margin around the samples.
//
// Line styles are identifiers of table entries. kLineStyleNone and kLineStyleIndeterminate show nothing; the default
// item, kLineStyleByLayer, follows the entries.
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

    // Created with the window, or when first filled if the control subclasses an existing window.
    SampleGraphic m_pGraphic;
    SampleViewport m_pViewport;
    int m_bAddDefaultItem;

    DECLARE_MESSAGE_MAP()
};

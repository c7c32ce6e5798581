// CLayerControl: a combo box of layers. An eye marks visible layers and a book read-only ones. A name is drawn in its
// layer's color, or, if that would be unreadable, in the color of window text after a square in the layer's color.
#pragma once

#include "orlo/controls/combo_control.h"

class ORLO_API CLayerControl : public CComboControl {
    DECLARE_DYNCREATE(CLayerControl)
    friend CWnd* CreateComboObject(HWND hWnd, int nID);

public:
    CLayerControl();
    ~CLayerControl() override;

    void DrawItem(DRAWITEMSTRUCT* pDIS) override;
    void MeasureItem(MEASUREITEMSTRUCT* pMIS) override;
    // Includes the states that the icons show: "Walls, hidden, locked".
    CString DescribeItem(int index) override;

protected:
    CLayerControl(HWND hWnd);
    int MeasureNameWidth(HDC dc, const char* name) override;
    afx_msg int OnCreate(LPCREATESTRUCTA lpCreateStruct);

    // Shared icons, owned by the system. Loaded with the window, or when first drawn if the control subclasses a
    // window.
    HICON m_hIconReadOnly = nullptr;
    HICON m_hIconVisible = nullptr;

    DECLARE_MESSAGE_MAP()
};

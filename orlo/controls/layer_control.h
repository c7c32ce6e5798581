// CLayerControl: a combo box of layers, each with an eye if it is visible, a book if it is read-only, and its name in
// its color. A name that could not be read in that color has the color of the window's text, after a square in the
// layer's color.
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
    // With the states that the icons show, in words: "Walls, hidden, locked".
    CString DescribeItem(int index) override;

protected:
    CLayerControl(HWND hWnd);
    int MeasureNameWidth(HDC dc, const char* name) override;
    afx_msg int OnCreate(LPCREATESTRUCTA lpCreateStruct);

    // Shared icons, which the system keeps. Loaded with the window; a control that subclasses a window loads them when
    // it draws.
    HICON m_hIconReadOnly = nullptr;
    HICON m_hIconVisible = nullptr;

    DECLARE_MESSAGE_MAP()

private:
    void LoadIcons();
    void DrawLayer(const DRAWITEMSTRUCT& request);
    DrawingStruct* Drawing() const;
};

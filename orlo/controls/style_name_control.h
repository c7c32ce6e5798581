// CStyleNameControl: a combo box of the blocks of a table that belong to the style tree of the selected block,
// as plain names.
//
// The host fills it with a table of blocks and the identifier of one of them. Blocks belong to the same tree if the
// pszStyleName of their graphics is equal. For a block without a style name, the list is empty. If the control is
// owner-drawn, a frame marks the current row of the open list.
#pragma once

#include "orlo/controls/combo_control.h"

class ORLO_API CStyleNameControl : public CComboControl {
    DECLARE_DYNCREATE(CStyleNameControl)
    friend CWnd* CreateComboObject(HWND hWnd, int nID);

public:
    CStyleNameControl();
    ~CStyleNameControl() override;

    void DrawItem(DRAWITEMSTRUCT* pDIS) override;
    void MeasureItem(MEASUREITEMSTRUCT* pMIS) override;
    // Leaves m_nSelected unchanged.
    void FillControl(WPARAM wParam, LPARAM lParam) override;

protected:
    CStyleNameControl(HWND hWnd);
    int MeasureNameWidth(HDC dc, const char* name) override;
};

// CStyleNameControl: a combo box of the blocks of a table that belong to the style tree of the selected one, by plain
// names.
//
// The host fills it with a table of blocks and the identifier of one of them. Blocks are of one tree if the
// pszStyleName of their graphics is the same text; a block without one has no tree and lists nothing. If the control is
// owner-drawn, the current row of the open list is marked by a frame.
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
    // Leaves m_nSelected alone.
    void FillControl(WPARAM wParam, LPARAM lParam) override;

protected:
    CStyleNameControl(HWND hWnd);
    int MeasureNameWidth(HDC dc, const char* name) override;
};

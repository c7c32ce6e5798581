// CColorControl: a combo box of the host's colors in the order of color_order.h, as swatches with their
// names.
//
// Its table's entries hold a COLORREF as data; m_nSelected and the items' numbers are colors, not
// identifiers. A color that no item has is still shown in the closed field, by its numbers. These
// values are markers:
//
//   kColorNone, kColorIndeterminate  no value yet, several values: both show nothing
//   kColorByLayer            first extra entry, by the host's text
//   kColorOfPen              second extra entry, by the host's text
//   kColorByBlock            shown if it occurs; no list offers it
//
// The current row of the open list is marked by two frames, of which one can be seen on any color. A disabled field is
// a gray name in a frame of its color.
#pragma once

#include "orlo/controls/combo_control.h"

class ORLO_API CColorControl : public CComboControl {
    DECLARE_DYNCREATE(CColorControl)
    friend CWnd* CreateComboObject(HWND hWnd, int nID);

public:
    // bExtraEntries: the list ends with the first extra entry.
    explicit CColorControl(int bExtraEntries = 1);
    ~CColorControl() override;

    // Whether the second extra entry follows the first, from the next filling on.
    void EnableLastEntry(int bEnable);

    // Index of the item of that color; -1 for kColorNone and kColorIndeterminate, or if not found.
    int FindColor(DWORD dwColor);

    void DrawItem(DRAWITEMSTRUCT* pDIS) override;
    void MeasureItem(MEASUREITEMSTRUCT* pMIS) override;
    // Sorts the table's colors once: n items cost n log n comparisons, and each is appended.
    void FillControl(WPARAM wParam, LPARAM pFill) override;
    // Inserts at its place in the order, ahead of equal colors. While FillControl runs the items come in
    // order.
    int AddControlItem(const char* pszItem) override;

    // A color without an item by its numbers: "86, 52, 18".
    CString DescribeItem(int index) override;

    int m_bExtraEntries;
    int m_bLastEntry = 0;

protected:
    CColorControl(HWND hWnd, int bExtraEntries);
    int MeasureNameWidth(HDC dc, const char* name) override;
};

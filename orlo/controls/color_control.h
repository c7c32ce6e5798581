// CColorControl: a combo box of the host's colors, drawn as swatches with their names in the order of color_order.h.
//
// The data of a table entry is a COLORREF; m_nSelected and the numbers of items are colors, not identifiers. The closed
// field also shows a color that has no item, as its three components. These values are markers:
//
//   kColorNone, kColorIndeterminate  no value yet, multiple values; both show nothing
//   kColorByLayer                    first extra entry, named by the host
//   kColorOfPen                      second extra entry, named by the host
//   kColorByBlock                    shown if a graphic has it; never listed
//
// Two nested frames mark the current row of the open list, so that at least one of them is visible on any color. A
// disabled field shows the name in gray, with a frame in the color.
#pragma once

#include "orlo/controls/combo_control.h"

class ORLO_API CColorControl : public CComboControl {
    DECLARE_DYNCREATE(CColorControl)
    friend CWnd* CreateComboObject(HWND hWnd, int nID);

public:
    // bExtraEntries: nonzero ends the list with the first extra entry.
    explicit CColorControl(int bExtraEntries = 1);
    ~CColorControl() override;

    // Sets whether the second extra entry follows the first. Takes effect when the control is next filled.
    void EnableLastEntry(int bEnable);

    // Returns the index of the item with that color, or -1 if there is none or dwColor is kColorNone or
    // kColorIndeterminate.
    int FindColor(DWORD dwColor);

    void DrawItem(DRAWITEMSTRUCT* pDIS) override;
    void MeasureItem(MEASUREITEMSTRUCT* pMIS) override;
    // Sorts the table's colors once, in O(n log n), and appends them in that order.
    void FillControl(WPARAM wParam, LPARAM pFill) override;
    // Inserts the item at its place in the sort order, before equal colors. During FillControl, items arrive sorted.
    int AddControlItem(const char* pszItem) override;

    // Describes a color without an item by its components: "86, 52, 18".
    CString DescribeItem(int index) override;

    int m_bExtraEntries;
    int m_bLastEntry = 0;

protected:
    CColorControl(HWND hWnd, int bExtraEntries);
    int MeasureNameWidth(HDC dc, const char* name) override;
};

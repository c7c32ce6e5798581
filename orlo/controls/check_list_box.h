// CCheckListBox: a list box with a check box in front of each item, for host programs. A click anywhere on an item
// toggles it, the second of two quick ones too, and so does the space bar for the current item. An unchecked box is
// drawn sunken, as the mark's picture is, so that it can be seen on the list's background.
//
//   CCheckListBox list;
//   list.Create(WS_CHILD | WS_VISIBLE | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS | LBS_NOTIFY, rect, this, IDC_LAYERS);
//   list.AddString("Walls", 1);
//   if (list.IsItemChecked(0)) ...
//
// A screen reader finds a check button in each item.
//
// The flag is the item's data, which is the class's own: 0 is unchecked, anything else checked.
#pragma once

#include <afxwin.h>

#include "orlo/export.h"

class ORLO_API CCheckListBox : public CListBox {
public:
    CCheckListBox();
    ~CCheckListBox() override;

    // Index of the new item, or LB_ERR or LB_ERRSPACE.
    int AddString(const char* pszItem, int bChecked);
    int InsertString(int nIndex, const char* pszItem, int bChecked);

    virtual int IsItemChecked(int nIndex) const;
    virtual void CheckItem(int nIndex, int bChecked);
    void ToggleItem(int nIndex);

protected:
    void DrawItem(DRAWITEMSTRUCT* pDIS) override;
    void MeasureItem(MEASUREITEMSTRUCT* pMIS) override;

    // Device pixels: that of the font that a device context of the window has by default, and room for the box.
    int ItemHeight();
    int InvalidateItem(int nIndex, int bErase);
    // The sunken box in the window's color, and the mark in it; dwColor is not used.
    void DrawCheck(CDC* pDC, int x, int y, int cx, int cy, DWORD dwColor, int bChecked);
    // The row at a point of the client area; -1 outside. Below the last row -1, or the count with bPastEnd.
    int ItemFromPoint(CPoint point, int bPastEnd);
    // Rectangle of an item's check box. 0, or -1 without such an item.
    int GetCheckRect(int nIndex, CRect& rect);

    void PreSubclassWindow() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);

    DECLARE_MESSAGE_MAP()
};

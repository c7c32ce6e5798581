// CCheckListBox: a list box with a check box in front of each item, for host programs. A click anywhere on an item
// toggles the item; a double click toggles it twice. The space bar toggles the current item. An unchecked box is drawn
// sunken, like the bitmap of the check mark, so that it can be seen on the list's background.
//
//   CCheckListBox list;
//   list.Create(WS_CHILD | WS_VISIBLE | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS | LBS_NOTIFY, rect, this, IDC_LAYERS);
//   list.AddString("Walls", 1);
//   if (list.IsItemChecked(0)) ...
//
// Screen readers find a check button for each item.
//
// The class uses the item data for the check state: 0 is unchecked, any other value is checked.
#pragma once

#include <afxwin.h>

#include "orlo/export.h"

class ORLO_API CCheckListBox : public CListBox {
public:
    CCheckListBox();
    ~CCheckListBox() override;

    // Returns the index of the new item, or LB_ERR or LB_ERRSPACE.
    int AddString(const char* pszItem, int bChecked);
    int InsertString(int nIndex, const char* pszItem, int bChecked);

    virtual int IsItemChecked(int nIndex) const;
    virtual void CheckItem(int nIndex, int bChecked);
    void ToggleItem(int nIndex);

protected:
    void DrawItem(DRAWITEMSTRUCT* pDIS) override;
    void MeasureItem(MEASUREITEMSTRUCT* pMIS) override;

    // Returns the height of an item in device pixels: that of the window's default font, enough for the box.
    int ItemHeight();
    int InvalidateItem(int nIndex, int bErase);
    // Draws the sunken box in the window's color and the check mark in it. dwColor is not used.
    void DrawCheck(CDC* pDC, int x, int y, int cx, int cy, DWORD dwColor, int bChecked);
    // Returns the index of the row at a point of the client area, or -1 outside it. Below the last row it returns the
    // item count if bPastEnd is set, else -1.
    int ItemFromPoint(CPoint point, int bPastEnd);
    // Retrieves the rectangle of an item's check box. Returns 0, or -1 if the item does not exist.
    int GetCheckRect(int nIndex, CRect& rect);

    void PreSubclassWindow() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);

    DECLARE_MESSAGE_MAP()
};

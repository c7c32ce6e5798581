// CListControl: a list box that shows the entries of a host table; base of the library's lists, and the twin
// of CComboControl, whose header describes how both are created and get their table. It draws nothing.
#pragma once

#include <afxwin.h>

#include <memory>

#include "orlo/binding/fuzzy.h"
#include "orlo/controls/control_fill.h"
#include "orlo/controls/control_item.h"
#include "orlo/controls/control_kind.h"
#include "orlo/export.h"

class ItemNames;

class ORLO_API CListControl : public CListBox {
    DECLARE_DYNAMIC(CListControl)
public:
    // nControlID: the kind of the control, not its identifier in a dialog.
    explicit CListControl(unsigned int nControlID);
    ~CListControl() override;

    int Create(unsigned long dwStyle, const RECT& rect, CWnd* pParent, unsigned int nID) override;

    // As in CComboControl.
    virtual unsigned long GetControlItem(int index, char* text);
    virtual void FillControl(WPARAM wParam, LPARAM lParam);
    virtual CString DescribeItem(int index);

    unsigned int m_nControlID;
    // Given to the window at WM_INITIALUPDATE less what shows a part of a row, in pixels at 96 dpi; at a higher
    // resolution it is the template's room, between these pixels and the same size scaled.
    int m_nHeight = 320;
    unsigned long m_dwStyle = 0;     // window style at the creation
    int m_bAutoDelete = 0;           // the object goes with its window
    TableStruct* m_pTable = nullptr; // the host's
    unsigned int m_nSelected = 0;    // identifier last given to select

    static WNDPROC lpfnSuperWndProc; // window procedure of the system's list box

protected:
    // For the factory: takes a window that has no object, and deletes itself after it.
    CListControl(unsigned int nControlID, HWND hWnd);

    WNDPROC* GetSuperWndProcAddr() override;
    BOOL PreCreateWindow(CREATESTRUCTA& cs) override;
    void PreSubclassWindow() override;
    void PostNcDestroy() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    // Index of the item of that identifier; -1 for kEntryNone and kEntryIndeterminate, or if not found.
    int FindItem(unsigned int nID) const {
        char key[kKeySize];
        DWord_to_Hex(nID, key);
        return IsNoEntry(nID) ? -1 : FindString(-1, key);
    }

    afx_msg void OnDestroy();
    afx_msg int OnNcCreate(LPCREATESTRUCTA lpCreateStruct);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg LRESULT OnFillMessage(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnInitialUpdate(WPARAM wParam, LPARAM lParam);

    DECLARE_MESSAGE_MAP()

private:
    bool m_beingMade = false; // the window; false too where one is taken over
    std::unique_ptr<ItemNames> m_names;
};

// CListControl: the base class of the library's list boxes, which show the entries of a host table. It draws nothing
// itself. Its counterpart, CComboControl, describes how controls are created and filled.
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
    // nControlID: the kind of the control, not its dialog identifier.
    explicit CListControl(unsigned int nControlID);
    ~CListControl() override;

    int Create(unsigned long dwStyle, const RECT& rect, CWnd* pParent, unsigned int nID) override;

    // Same as CComboControl::GetControlItem.
    virtual unsigned long GetControlItem(int index, char* text);
    virtual void FillControl(WPARAM wParam, LPARAM lParam);
    virtual CString DescribeItem(int index);

    unsigned int m_nControlID;
    // Height in pixels at 96 dpi, reduced to whole rows at WM_INITIALUPDATE. At higher resolutions the height is that
    // of the template, at least this value and at most this value scaled.
    int m_nHeight = 320;
    unsigned long m_dwStyle = 0;     // window style at creation
    int m_bAutoDelete = 0;           // delete the object with its window
    TableStruct* m_pTable = nullptr; // owned by the host
    unsigned int m_nSelected = 0;    // identifier last requested to be selected

    static WNDPROC lpfnSuperWndProc; // the system list box's window procedure

protected:
    // For the factory: attaches to a window that has no object, and deletes itself with the window.
    CListControl(unsigned int nControlID, HWND hWnd);

    WNDPROC* GetSuperWndProcAddr() override;
    BOOL PreCreateWindow(CREATESTRUCTA& cs) override;
    void PreSubclassWindow() override;
    void PostNcDestroy() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    // Returns the index of the item with that identifier, or -1 if there is none or nID is kEntryNone or
    // kEntryIndeterminate.
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
    bool m_beingCreated = false; // the window; stays false if a window is subclassed
    std::unique_ptr<ItemNames> m_names;
};

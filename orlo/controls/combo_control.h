// CComboControl: the base class of the library's combo boxes, which show the entries of a host table. It draws nothing
// itself.
//
// In a dialog template, the window class and the identifier create the control (control_classes.h), and the object is
// deleted with its window. If the program creates the object, it also owns it:
//
//   CColorControl colors;                                        // or DDX_Control(1, pDX, IDC_COLOR, colors)
//   colors.Create(WS_CHILD | CBS_DROPDOWNLIST | CBS_OWNERDRAWVARIABLE | CBS_HASSTRINGS, rect, this, IDC_COLOR);
//   colors.SendMessage(kFillMessage, 0, reinterpret_cast<LPARAM>(&fill));
//
// The controls use the system's colors. A closed field shows the focus with the system's focus rectangle, and the
// disabled state with gray text on the dialog's color.
//
// The control does not look up its table. On WM_INITIALUPDATE, it notifies the application with kControlReady and its
// window handle. The host can send kFillMessage (control_fill.h) then and at any later time.
//
// An edit field scrolls horizontally even without CBS_AUTOHSCROLL in the style. A subclassed combo box keeps the edit
// field that it was created with, which without CBS_AUTOHSCROLL accepts only as much text as fits.
//
// Screen readers receive the names of items without their keys, and "varied" for a field that shows none of its items.
//
// Escape in the open list restores the selection from before it was opened and notifies the parent of the change.
#pragma once

#include <afxwin.h>

#include <memory>

#include "orlo/binding/fuzzy.h"
#include "orlo/controls/control_fill.h"
#include "orlo/controls/control_item.h"
#include "orlo/controls/control_kind.h"
#include "orlo/export.h"

// Codes of the WM_COMMAND that is sent to the top-level frame or, if there is none, to the thread's main window. If
// neither exists, it is not sent. The low word of wParam is the kind of the control (m_nControlID), the high word one
// of these codes, lParam the control's window.
enum ControlNotification : unsigned { kControlReady = 0x21, kControlGone = 0x22 };

class ComboState;

class ORLO_API CComboControl : public CComboBox {
    DECLARE_DYNAMIC(CComboControl)
public:
    // nControlID: the kind of the control, not its dialog identifier.
    explicit CComboControl(unsigned int nControlID);
    ~CComboControl() override;

    int Create(unsigned long dwStyle, const RECT& rect, CWnd* pParent, unsigned int nID) override;

    // Sets whether the control is in a dialog rather than a control bar. Create determines it from the parent.
    void DialogCtrl(int bDialogCtrl);
    int IsDialogCtrl();

    // Sizes the drop-down list to the items: whole rows, up to 320 pixels at 96 dpi including the closed field, and as
    // wide as the widest name if the control draws names. Called by the control before its list opens.
    virtual void SizeDropDown();
    // Returns the identifier of an item and copies its name to text, a buffer of kItemTextSize bytes. If the item does
    // not exist, returns 0 and empties text.
    virtual unsigned long GetControlItem(int index, char* text);
    // Fills the control. lParam: const ControlFillRecord*; null is treated as a record without a table.
    virtual void FillControl(WPARAM wParam, LPARAM lParam);
    // Adds an item with exactly the given text. Returns its index, or a negative number on failure.
    virtual int AddControlItem(const char* text);
    // Returns the text of an item for screen readers or, for the index -1, that of the closed field without a
    // selection. By default, this is the item's name, or "varied" if there is no item.
    virtual CString DescribeItem(int index);

    unsigned int m_nControlID;
    unsigned long m_dwStyle = 0;     // window style at creation
    int m_nDropHeight = 0;           // height with the list open, in device pixels
    int m_bAutoDelete = 0;           // delete the object with its window
    TableStruct* m_pTable = nullptr; // owned by the host
    unsigned int m_nSelected = 0;    // identifier last requested to be selected
    int m_bDialogCtrl = 0;

    static WNDPROC lpfnSuperWndProc; // the system combo box's window procedure

protected:
    // For the factory: attaches to a window that has no object, and deletes itself with the window.
    CComboControl(unsigned int nControlID, HWND hWnd);

    WNDPROC* GetSuperWndProcAddr() override;
    BOOL PreCreateWindow(CREATESTRUCTA& cs) override;
    void PreSubclassWindow() override;
    void PostNcDestroy() override;
    // Handles typing ahead by the names of the items (type_ahead.h) and sizes the list before it opens.
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

    // Returns the width in device pixels of a row with that name, or 0 (the default) if the list need not be wider than
    // the field. The control's font is selected in dc.
    virtual int MeasureNameWidth(HDC dc, const char* name);

private:
    friend class ComboState;
    bool m_beingCreated = false; // the window; stays false if a window is subclassed
    std::unique_ptr<ComboState> m_state;
};

// Returns the object of that window, or null if it is not a CComboControl.
CComboControl* ComboControlOf(HWND window);

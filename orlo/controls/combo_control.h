// CComboControl: a combo box that shows the entries of a host table; base of the library's combos. It draws
// nothing.
//
// From a dialog template the control is made by its window class and identifier (control_classes.h) and owns
// itself. From code the program owns it:
//
//   CColorControl colors;                                        // or DDX_Control(1, pDX, IDC_COLOR, colors)
//   colors.Create(WS_CHILD | CBS_DROPDOWNLIST | CBS_OWNERDRAWVARIABLE | CBS_HASSTRINGS, rect, this, IDC_COLOR);
//   colors.SendMessage(kFillMessage, 0, reinterpret_cast<LPARAM>(&fill));
//
// The controls draw in the system's colors. A closed field shows the focus by the system's rectangle, and that it is
// disabled by gray text on the color of the dialog.
//
// The control announces itself to the application and never asks for its table: the host sends
// WM_INITIALUPDATE, gets the notification kControlReady with the window, and answers with kFillMessage
// (control_fill.h) at any time.
//
// An edit field in it scrolls, with or without CBS_AUTOHSCROLL in the style. A combo box that is taken over keeps the
// edit field that it was made with: without CBS_AUTOHSCROLL in its style that takes no more text than it has room for.
//
// A screen reader gets the names of the items, never their keys. "varied" is said of a field that shows none of its
// items.
//
// Escape in the open list restores the choice that was made before it opened, and notifies the parent of the change.
#pragma once

#include <afxwin.h>

#include <memory>

#include "orlo/binding/fuzzy.h"
#include "orlo/controls/control_fill.h"
#include "orlo/controls/control_item.h"
#include "orlo/controls/control_kind.h"
#include "orlo/export.h"

// WM_COMMAND to the top-level frame, else to the thread's main window; without either the notification is dropped. The
// low word of wParam is the kind of the control (m_nControlID), the high word one of these, lParam the control's
// window.
enum ControlNotification : unsigned { kControlReady = 0x21, kControlGone = 0x22 };

class ItemNames;

class ORLO_API CComboControl : public CComboBox {
    DECLARE_DYNAMIC(CComboControl)
public:
    // nControlID: the kind of the control, not its identifier in a dialog.
    explicit CComboControl(unsigned int nControlID);
    ~CComboControl() override;

    int Create(unsigned long dwStyle, const RECT& rect, CWnd* pParent, unsigned int nID) override;

    // Whether the control is in a dialog, not in a control bar; Create determines it.
    void DialogCtrl(int bDialogCtrl);
    int IsDialogCtrl();

    // Fits the drop-down list to the items: whole rows, up to 320 pixels at 96 dpi with the closed field, and as wide
    // as the widest name if the control draws names. The control does so itself before the list opens, whatever its
    // parent.
    virtual void SizeDropDown();
    // The identifier of an item; its name goes to text, a buffer of kItemTextSize bytes. 0 and no text
    // without such an item.
    virtual unsigned long GetControlItem(int index, char* text);
    // lParam: const ControlFillRecord*; null counts as a record without a table.
    virtual void FillControl(WPARAM wParam, LPARAM lParam);
    // Adds an item with exactly that text; its index, negative on failure.
    virtual int AddControlItem(const char* text);
    // Returns an item as a screen reader says it; with -1 what the closed field shows without a selected item. Here:
    // its name, "varied" without one.
    virtual CString DescribeItem(int index);

    unsigned int m_nControlID;
    unsigned long m_dwStyle = 0;     // window style at the creation
    int m_nDropHeight = 0;           // with the list open, in device pixels
    int m_bAutoDelete = 0;           // the object goes with its window
    TableStruct* m_pTable = nullptr; // the host's
    unsigned int m_nSelected = 0;    // identifier last given to select
    int m_bDialogCtrl = 0;

    static WNDPROC lpfnSuperWndProc; // window procedure of the system's combo box

protected:
    // For the factory: takes a window that has no object, and deletes itself after it.
    CComboControl(unsigned int nControlID, HWND hWnd);

    WNDPROC* GetSuperWndProcAddr() override;
    BOOL PreCreateWindow(CREATESTRUCTA& cs) override;
    void PreSubclassWindow() override;
    void PostNcDestroy() override;
    // Typing ahead goes by the names of the items (type_ahead.h), and a list that opens is sized.
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

    // Returns the width of a row with that name in device pixels; 0 (here): the field is wide enough. dc has the
    // control's font.
    virtual int MeasureNameWidth(HDC dc, const char* name);

private:
    struct Choice {
        int index = -1;
        CString text; // of an edit field
    };
    void WatchDropList();
    Choice GetChoice() const;
    void RestoreChoice();
    void FitDropWidth();

    bool m_beingMade = false; // the window; false too where one is taken over
    std::unique_ptr<ItemNames> m_names;
    Choice m_choice;                  // when the list was opened
    std::unique_ptr<CWnd> m_dropList; // the window of the list
};

// The object of that window, or null if it is not of this class.
CComboControl* ComboControlOf(HWND window);

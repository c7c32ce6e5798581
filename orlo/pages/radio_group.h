// Keyboard support for a group of radio buttons: arrow keys stay within the group, and Tab reaches it even if no button
// is checked.
#pragma once

#include <afxwin.h>

// The first button of a group. Windows, unlike Wine, treats focus on an unchecked button as a click. This class
// prevents it while no button of the group is checked, so that an indeterminate value is not lost when the user tabs
// through.
class CRadioGroup : public CButton {
public:
    // Must be called after the exchange of the group that begins with nIDC. Loading attaches the button; saving does
    // nothing.
    void Exchange(CDataExchange* pDX, int nIDC);

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    HWND WindowAfter() const;
    bool IsAnyChecked() const;
};

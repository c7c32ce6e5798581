// A group of radio buttons for users of the keyboard: the arrow keys stay in it, and without a checked button the Tab
// key reaches it like any other control.
#pragma once

#include <afxwin.h>

// The first button of the group. Windows, unlike Wine, treats focus on an unchecked button as a click; here it does not
// while no button of the group is checked, so that an indeterminate value survives a user who tabs through.
class CRadioGroup : public CButton {
public:
    // To be called after the exchange of the group that begins with nIDC. Loading attaches the button; saving does
    // nothing.
    void Exchange(CDataExchange* pDX, int nIDC);

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    HWND WindowAfter() const;
    bool IsAnyChecked() const;
};

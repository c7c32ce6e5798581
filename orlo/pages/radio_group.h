// A group of radio buttons for users of the keyboard: the arrow keys stay in it, and without a checked button it is reached by
// Tab like any other control.
#pragma once

#include <afxwin.h>

// The first button of the group. Windows, unlike Wine, takes the focus of an unchecked button for a choice; with none in the
// group checked it is no choice here, so that indeterminate values survive a user who passes by.
class CRadioGroup : public CButton {
public:
    // Behind the exchange of the group that begins with nIDC. Loading attaches the button; saving does nothing.
    void Exchange(CDataExchange* pDX, int nIDC);

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    HWND WindowBehind() const;
    bool IsAnyChecked() const;
};

// Classifies notifications: those that change a control's value, and those that end an edit.
#pragma once

#include <windows.h>

// The window class and code of a notification.
struct PageNotification {
    char className[100];
    unsigned int code;

    PageNotification(HWND control, unsigned int notificationCode);

    bool IsOfCombo() const;
    bool IsChange() const;
    bool IsEditEnd() const;
};

// Returns the identifier under which a change of the control is recorded: that of the first button in its group for a
// radio button, its own for other controls.
unsigned int ChangedControlId(HWND control, unsigned int nID, const char* className);

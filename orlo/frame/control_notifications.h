// Which notifications of a control change its value, and which end an edit of it.
#pragma once

#include <windows.h>

// Class and code of a notification.
struct PageNotification {
    char className[100];
    unsigned int code;

    PageNotification(HWND control, unsigned int notificationCode);

    bool IsOfCombo() const;
    bool IsChange() const;
    bool IsEditEnd() const;
};

// The identifier under which a change of this control counts: of a radio button that of the first button of its group,
// of anything else its own.
unsigned int ChangedControlId(HWND control, unsigned int nID, const char* className);

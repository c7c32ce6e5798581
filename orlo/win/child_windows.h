// The windows inside a window.
#pragma once

#include <windows.h>

// Calls visit(HWND) for each child and their children.
template <class Visit>
void ForEachChild(HWND window, Visit visit) {
    const WNDENUMPROC call = [](HWND child, LPARAM parameter) -> BOOL {
        (*reinterpret_cast<Visit*>(parameter))(child);
        return TRUE;
    };
    ::EnumChildWindows(window, call, reinterpret_cast<LPARAM>(&visit));
}

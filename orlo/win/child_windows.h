// The windows inside a window.
#pragma once

#include <windows.h>

// A callback of the system has its calling convention, which a lambda does not have in 32 bits.
template <class Visit>
BOOL CALLBACK VisitChild(HWND child, LPARAM visit) {
    (*reinterpret_cast<Visit*>(visit))(child);
    return TRUE;
}

// Calls visit(HWND) for each child and their children.
template <class Visit>
void ForEachChild(HWND window, Visit visit) {
    ::EnumChildWindows(window, VisitChild<Visit>, reinterpret_cast<LPARAM>(&visit));
}

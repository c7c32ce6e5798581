// Iteration over child windows.
#pragma once

#include <windows.h>

// A system callback, not a lambda because of the calling convention in 32-bit programs.
template <class Visit>
BOOL CALLBACK VisitChild(HWND child, LPARAM visit) {
    (*reinterpret_cast<Visit*>(visit))(child);
    return TRUE;
}

// Calls visit(HWND) for each child window, recursively.
template <class Visit>
void ForEachChild(HWND window, Visit visit) {
    ::EnumChildWindows(window, VisitChild<Visit>, reinterpret_cast<LPARAM>(&visit));
}

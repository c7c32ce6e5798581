// The window classes "QXComboBox" and "QXListBox", which dialog templates of every module may name.
//
// A window of these classes turns into a control object by its control identifier when it gets its first
// message; the object belongs to the window. With an identifier that control_factory.h does not know it is a
// plain combo or list box.
#pragma once

#include <windows.h>

// Registers both classes for the module, global to the process. A global class of another module (a second copy of the
// library) stays, and this one is the module's own: only its dialogs get it. The result is 1 if both exist, else 0.
int RegisterControlClasses(HINSTANCE module);
// Before the module is unloaded; no window of the classes may be left.
void UnregisterControlClasses(HINSTANCE module);

// The window classes "QXComboBox" and "QXListBox", which dialog templates of every module may name.
//
// A window of these classes turns into a control object by its control identifier when it gets its first
// message; the object belongs to the window. With an identifier that control_factory.h does not know it is a
// plain combo or list box.
#pragma once

#include <windows.h>

// Registers both classes for the module, global to the process. A class that is there already stays as it is.
// The result is 1 if both are this library's, else 0.
int RegisterControlClasses(HINSTANCE module);

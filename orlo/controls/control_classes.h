// The window classes "QXComboBox" and "QXListBox", which dialog templates of every module can use.
//
// When a window of these classes gets its first message, it is attached to a control object chosen by the control
// identifier, and owns that object. With an identifier that control_factory.h does not know, it remains a plain combo
// box or list box.
#pragma once

#include <windows.h>

// Registers both classes for the module, global to the process. If another module (a second copy of the library) has
// already registered a global class of the name, that one stays, and this module's class applies to its own dialogs
// only. Returns 1 if both classes exist, else 0.
int RegisterControlClasses(HINSTANCE module);
// Unregisters the classes before the module is unloaded. No window of the classes may exist.
void UnregisterControlClasses(HINSTANCE module);

// The window classes "QXComboBox" and "QXListBox".

#include "orlo/controls/control_classes.h"

#include "orlo/controls/combo_control.h"
#include "orlo/controls/control_factory.h"
#include "orlo/controls/list_control.h"

namespace {

constexpr char kComboClass[] = "QXComboBox", kListClass[] = "QXListBox";

// Attaches a framework object to the window at its first message. Without an object, the framework continues with the
// procedure registered for the class, which is the system's.
LRESULT AttachToFramework(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const WNDPROC next = AfxGetAfxWndProc();
    ::SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(next));
    return ::CallWindowProcA(next, window, message, wParam, lParam);
}

LRESULT CALLBACK ComboFirstMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    CreateComboObject(window, ::GetDlgCtrlID(window));
    return AttachToFramework(window, message, wParam, lParam);
}

LRESULT CALLBACK ListFirstMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    CreateListObject(window, ::GetDlgCtrlID(window));
    return AttachToFramework(window, message, wParam, lParam);
}

int RegisterControlClass(HINSTANCE module, const char* systemName, const char* name, WNDPROC first,
                         WNDPROC& systemProc) {
    WNDCLASSA windowClass = {};
    if (!::GetClassInfoA(nullptr, systemName, &windowClass)) return 0;
    systemProc = windowClass.lpfnWndProc;

    WNDCLASSA present = {};
    const bool isRegistered = ::GetClassInfoA(module, name, &present);
    if (isRegistered && present.lpfnWndProc == first) return 1;

    windowClass.lpszClassName = name;
    windowClass.hInstance = module;
    if (!isRegistered) windowClass.style |= CS_GLOBALCLASS;
    windowClass.lpfnWndProc = first;
    const ATOM atom = ::RegisterClassA(&windowClass);
    if (atom) AfxRegisterSuperWndProc(atom, systemProc);
    return atom != 0;
}

} // namespace

int RegisterControlClasses(HINSTANCE module) {
    const int combo =
        RegisterControlClass(module, "ComboBox", kComboClass, ComboFirstMessage, CComboControl::lpfnSuperWndProc);
    const int list =
        RegisterControlClass(module, "ListBox", kListClass, ListFirstMessage, CListControl::lpfnSuperWndProc);
    return combo && list;
}

// The original procedure that the framework has stored for the classes stays: it is the system's, and another copy of
// the library may need it.
void UnregisterControlClasses(HINSTANCE module) {
    ::UnregisterClassA(kComboClass, module);
    ::UnregisterClassA(kListClass, module);
}

// Provides the parts of the framework that a sheet needs to a program that does not use it: an application object for
// the thread, a main window that receives the notifications of controls, and an object for the owner's window.
#pragma once

#include <afxwin.h>

#include <functional>
#include <optional>

#include "orlo/controls/control_fill.h"

namespace orlo {

// Called when a control of that kind has been created and can be filled.
using ControlReady = std::function<void(unsigned kind, HWND control)>;

class MainWindow final : public CWnd {
public:
    explicit MainWindow(ControlReady onReady) : m_onReady(std::move(onReady)) {}

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    ControlReady m_onReady;
};

// Scopes of one thread can be nested.
class FrameworkScope {
public:
    // owner is null or a window of this thread. Throws Refusal if it is neither, if the framework runs on another
    // thread, or if the main window cannot be created.
    FrameworkScope(HWND owner, ControlReady onReady);
    ~FrameworkScope();
    FrameworkScope(const FrameworkScope&) = delete;
    FrameworkScope& operator=(const FrameworkScope&) = delete;

    // Returns the owner's window object, or null if there is no owner.
    CWnd* Owner() { return m_owner; }

private:
    std::optional<CWinApp> m_application; // created only if the program has none
    CWnd* m_previousMain;
    MainWindow m_main;
    CWnd m_ownerObject; // for an owner window without a framework object
    CWnd* m_owner;
};

} // namespace orlo

// Provides the parts of the framework that a sheet needs to a program that does not use it: an application object for
// the thread, a main window that receives the notifications of controls, and an object for the owner's window.
#pragma once

#include <afxwin.h>

#include <functional>
#include <memory>
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

// The framework of a thread for as long as a sheet is open on it. All sheets of a thread share it, so the order in
// which they are closed does not matter.
class FrameworkScope {
public:
    // Returns the scope of this thread. A new one passes the controls to onReady. Throws CallError if the framework
    // runs on another thread, or if the main window cannot be created.
    static std::shared_ptr<FrameworkScope> OfThread(const ControlReady& onReady);

    explicit FrameworkScope(ControlReady onReady);
    ~FrameworkScope();
    FrameworkScope(const FrameworkScope&) = delete;
    FrameworkScope& operator=(const FrameworkScope&) = delete;

private:
    std::optional<CWinApp> m_application; // created only if the program has none
    CWnd* m_previousMain;
    MainWindow m_main;
};

// The framework's object of a window that owns a sheet.
class OwnerObject {
public:
    // owner is null or a window of this thread. Throws CallError if it is neither.
    explicit OwnerObject(HWND owner);
    ~OwnerObject();
    OwnerObject(const OwnerObject&) = delete;
    OwnerObject& operator=(const OwnerObject&) = delete;

    // Returns null if there is no owner.
    CWnd* Get() { return m_owner; }

private:
    CWnd m_object; // for a window without a framework object
    CWnd* m_owner = nullptr;
};

} // namespace orlo

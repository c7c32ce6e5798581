// What a sheet needs of the framework in a program that has none of it: an application object for the thread, a main window
// that the controls announce themselves to, and an object for the owner's window.
#pragma once

#include <afxwin.h>

#include <functional>
#include <optional>

#include "orlo/controls/control_fill.h"

namespace orlo {

// Answers a control of that kind that has come to life.
using Announced = std::function<void(unsigned kind, HWND control)>;

class MainWindow final : public CWnd {
public:
    explicit MainWindow(Announced announced) : m_announced(std::move(announced)) {}

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    Announced m_announced;
};

// One at a time on a thread, or one inside the other. Throws Refusal.
class Stage {
public:
    // owner may be null; else it is a window of this thread.
    Stage(HWND owner, Announced announced);
    ~Stage();
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;

    CWnd* Owner() { return m_owner; }

private:
    std::optional<CWinApp> m_application; // if the program has none
    CWnd* m_mainBefore;
    MainWindow m_main;
    CWnd m_ownerObject; // for a window that the framework does not know
    CWnd* m_owner;
};

} // namespace orlo

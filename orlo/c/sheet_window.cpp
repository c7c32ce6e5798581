// The modeless sheet of C programs, in its own window.

#include <map>
#include <memory>
#include <utility>

#include "orlo/c/busy_scope.h"
#include "orlo/c/guarded_call.h"
#include "orlo/c/sheet_record.h"
#include "orlo/frame/sheet_pane.h"

namespace {

using orlo::ThrowError;

class WindowRecord final : public orlo::SheetRecord {
public:
    WindowRecord(const CWnd& window, const OrloSheet* record) : SheetRecord(record), m_window(window) {}
    bool Contains(HWND control) const override { return ::IsChild(m_window.m_hWnd, control) != FALSE; }

private:
    const CWnd& m_window;
};

class SheetWindow final : public CSheetPane {
public:
    explicit SheetWindow(const OrloSheet* record) : m_record(*this, record), m_next(m_record.NewSheet()) {
        if (!CreatePane(WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_THICKFRAME, m_record.Owner(), 0))
            orlo::ThrowSystemError(static_cast<long>(::GetLastError()), "cannot create the window of the sheet");
        Open();
        Fit();
    }
    ~SheetWindow() override {
        Close();
        DestroyWindow();
    }

    // Throws CallError if a field is not valid.
    void RequireApplied() {
        if (!Apply()) ThrowError(kOrloInvalidInput, "a field of the sheet is not valid");
    }

    void Show(GraphicStruct* selection) {
        RequireApplied();
        m_record.Select(selection);
        if (IsOpen())
            Renew();
        else
            Open();
    }

protected:
    // The pages were validated when the sheet was opened, so this can only fail if memory runs out; no sheet is shown
    // then.
    CGraphicPropertySheet* NewSheet() override try {
        m_sheet = m_next ? std::move(m_next) : m_record.NewSheet();
        return m_sheet.get();
    } catch (const orlo::CallError&) {
        return nullptr;
    }
    void DeleteSheet() override { m_sheet.reset(); }
    bool HasGraphics() const override { return m_record.HasGraphics(); }
    void OnReset() override { Call(m_record.Get().reset); }
    void OnCloseButton() override {
        Close();
        Call(m_record.Get().closed);
    }

    // A window that is activated returns the focus to the field that had it.
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if ((message == WM_COMMAND || message == WM_CLOSE) && orlo::BusyScope::IsBusy()) return 0;
        if (message == WM_ACTIVATE && LOWORD(wParam) == WA_INACTIVE) m_focus = HasFocus() ? ::GetFocus() : nullptr;
        if (message != WM_SETFOCUS) return CSheetPane::WindowProc(message, wParam, lParam);
        if (m_focus != nullptr && ::IsChild(m_hWnd, m_focus))
            ::SetFocus(m_focus);
        else
            TakeFocus();
        return 0;
    }

private:
    void Call(OrloSheetCallback callback) {
        if (callback != nullptr) orlo::CallHost(callback, m_record.Get().context);
    }

    // Fits the window to the sheet and centers it over the owner.
    void Fit() {
        const CSize sheet = SheetSize();
        CRect frame(0, 0, sheet.cx, sheet.cy);
        ::AdjustWindowRectEx(&frame, GetStyle(), FALSE, GetExStyle());
        SetWindowPos(nullptr, 0, 0, frame.Width(), frame.Height(), SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
        CenterWindow();
    }

    WindowRecord m_record;
    std::unique_ptr<CGraphicPropertySheet> m_next;  // created in advance to validate its pages; replaced by m_sheet
    std::unique_ptr<CGraphicPropertySheet> m_sheet; // the sheet that is shown
    HWND m_focus = nullptr;                         // the control that had the focus when the window was deactivated
};

// Handles are numbers that are never reused, and valid on the thread of their sheet.
using Windows = std::map<uintptr_t, std::unique_ptr<SheetWindow>>;

Windows& WindowsOfThread() {
    thread_local Windows windows;
    return windows;
}

Windows::iterator Find(OrloSheetHandle handle) {
    const auto found = WindowsOfThread().find(reinterpret_cast<uintptr_t>(handle));
    if (found == WindowsOfThread().end())
        ThrowError(kOrloBadHandle, "the handle does not belong to a sheet of this thread");
    return found;
}

// Throws CallError during a callback or a message box.
Windows::iterator FindIdle(OrloSheetHandle handle) {
    const auto found = Find(handle);
    if (orlo::BusyScope::IsBusy() || found->second->IsBusy())
        ThrowError(kOrloBusy, "a callback or a message box of a sheet has not returned yet");
    return found;
}

template <class Work>
OrloResult CallWindow(OrloSheetHandle handle, Work work) {
    return orlo::GuardedCall([&] { work(*FindIdle(handle)->second); });
}

} // namespace

OrloResult ORLO_CALL OrloOpenSheet(const OrloSheet* sheet, OrloSheetHandle* handle) {
    return orlo::GuardedResult(handle, "handle", [&] {
        thread_local uintptr_t last = 0;
        auto window = std::make_unique<SheetWindow>(sheet);
        WindowsOfThread()[++last] = std::move(window);
        return reinterpret_cast<OrloSheetHandle>(last);
    });
}

int32_t ORLO_CALL OrloSheetTakesMessage(MSG* message) {
    if (message == nullptr) return 0;
    for (const auto& [handle, window] : WindowsOfThread()) {
        if (message->hwnd != window->m_hWnd && !::IsChild(window->m_hWnd, message->hwnd)) continue;
        int32_t isHandled = 0;
        SheetWindow& receiver = *window;
        orlo::GuardedCall([&] {
            receiver.RevealFocus();
            isHandled = CWnd::WalkPreTranslateTree(receiver.m_hWnd, message);
        });
        return isHandled;
    }
    return 0;
}

OrloResult ORLO_CALL OrloSheetGetWindow(OrloSheetHandle handle, HWND* window) {
    return orlo::GuardedResult(window, "window", [=] { return Find(handle)->second->m_hWnd; });
}

OrloResult ORLO_CALL OrloSheetFollow(OrloSheetHandle handle, GraphicStruct* selection) {
    return CallWindow(handle, [=](SheetWindow& window) { window.Show(selection); });
}

OrloResult ORLO_CALL OrloSheetApply(OrloSheetHandle handle) {
    return CallWindow(handle, [](SheetWindow& window) { window.RequireApplied(); });
}

OrloResult ORLO_CALL OrloSheetReset(OrloSheetHandle handle) {
    return CallWindow(handle, [](SheetWindow& window) { window.Reset(); });
}

OrloResult ORLO_CALL OrloSheetClose(OrloSheetHandle handle) {
    return orlo::GuardedCall([=] { WindowsOfThread().erase(FindIdle(handle)); });
}

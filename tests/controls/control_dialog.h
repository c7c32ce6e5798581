// A dialog with controls of the library, in an application whose main window is the host.
#pragma once

#include <afxwin.h>
#include <gtest/gtest.h>

#include <vector>

#include "controls.h"
#include "orlo/controls/combo_control.h"
#include "orlo/controls/list_control.h"
#include "orlo/entry/entry.h"
#include "orlo/win/gdi.h"
#include "support/object_counts.h"
#include "support/pixels.h"
#include "support/scheme_colors.h"
#include "support/test_drawing.h"

// Converts pixels at 96 dpi to device pixels.
inline int Scaled(int at96) {
    const orlo::WindowDC screen(nullptr);
    return ::MulDiv(at96, ::GetDeviceCaps(screen.get(), LOGPIXELSY), 96);
}

// Receives the notifications that controls send to the application.
class HostWindow : public CWnd {
public:
    struct Notification {
        unsigned kind, code;
        HWND control;
    };

    HostWindow() {
        PropPageInit();
        CWnd::CreateEx(0, AfxRegisterWndClass(0), "Host", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr);
        AfxGetThread()->m_pMainWnd = this;
    }
    ~HostWindow() override {
        AfxGetThread()->m_pMainWnd = nullptr;
        DestroyWindow();
    }
    int Count(unsigned code) const {
        int count = 0;
        for (const Notification& n : notifications)
            count += n.code == code;
        return count;
    }

    std::vector<Notification> notifications;
    TableStruct* fillTable = nullptr; // the table that controls are filled with when they notify; null to fill none

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override {
        notifications.push_back({LOWORD(wParam), HIWORD(wParam), reinterpret_cast<HWND>(lParam)});
        const ControlFillRecord fill = {fillTable, 0, 0};
        if (fillTable && HIWORD(wParam) == kControlReady)
            ::SendMessageA(reinterpret_cast<HWND>(lParam), kFillMessage, 0, reinterpret_cast<LPARAM>(&fill));
        return TRUE;
    }
};

// Counts requests of the controls to draw and measure.
class CountingDialog : public CDialog {
public:
    int drawn = 0, measured = 0;

protected:
    afx_msg void OnDrawItem(int nIDCtl, LPDRAWITEMSTRUCT item) {
        ++drawn;
        CDialog::OnDrawItem(nIDCtl, item);
    }
    afx_msg void OnMeasureItem(int nIDCtl, LPMEASUREITEMSTRUCT item) {
        ++measured;
        CDialog::OnMeasureItem(nIDCtl, item);
    }
    DECLARE_MESSAGE_MAP()
};

// Renders one request of a control; pixels that are not drawn keep a distinct color.
class DrawnPixels : public Pixels {
public:
    static constexpr COLORREF kUntouched = RGB(1, 2, 3);
    static constexpr int kNoItem = -1;

    using Pixels::Pixels;
    // times: number of times it is drawn over itself.
    template <class Control>
    void Draw(Control& control, int item, const RECT& rect, UINT action = ODA_DRAWENTIRE, UINT state = 0,
              int times = 1) {
        Clear(kUntouched);
        DRAWITEMSTRUCT request = {0, 1, static_cast<UINT>(item), action, state, control.m_hWnd, DC(), rect, 0};
        for (int i = 0; i < times; ++i)
            control.DrawItem(&request);
    }
    // Counts pixels that were drawn in a color other than the background.
    int CountDrawn(const RECT& rect, int background = COLOR_WINDOW) const {
        const COLORREF back = ::GetSysColor(background);
        return CountWhere(rect, [=](COLORREF c) { return c != back && c != kUntouched; });
    }
};

class ControlDialog : public ::testing::Test {
protected:
    explicit ControlDialog(UINT nIDTemplate = IDD_DRAWN) { EXPECT_TRUE(m_dialog.Create(nIDTemplate)); }
    ~ControlDialog() override { m_dialog.DestroyWindow(); }

    HWND Control(int id) const { return ::GetDlgItem(m_dialog.m_hWnd, id); }
    template <class Object>
    Object& Get(int id) const {
        return *static_cast<Object*>(CWnd::FromHandlePermanent(Control(id)));
    }
    void Fill(int id, TableStruct* table, unsigned selected = 0) {
        const ControlFillRecord record = {table, 0, selected};
        ::SendMessageA(Control(id), kFillMessage, 0, reinterpret_cast<LPARAM>(&record));
    }
    static void Pump() {
        MSG message;
        while (::PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE))
            ::DispatchMessageA(&message);
    }

    HostWindow m_host;
    TestDrawing m_drawing;
    CountingDialog m_dialog;
};

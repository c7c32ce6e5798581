// What the combo and the list of a host table have in common.

#include "orlo/controls/table_control.h"

#include "orlo/controls/control_font.h"

unsigned long ItemOf(const ControlItems& items, int index, char* text) {
    return items.GetText(index, text, kItemTextSize) ? ParseControlItem(text) : 0;
}

void UseSharedFont(HWND control) {
    if (const HFONT font = SharedControlFont())
        ::SendMessageA(control, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
}

int WindowWidth(HWND window) {
    RECT rect = {};
    ::GetWindowRect(window, &rect);
    return rect.right - rect.left;
}

void SetControlHeight(HWND control, int height) {
    ::SetWindowPos(control, nullptr, 0, 0, WindowWidth(control), height,
                   SWP_NOMOVE | SWP_NOZORDER | SWP_NOREDRAW | SWP_NOACTIVATE);
}

void NotifyApplication(CWnd& control, unsigned int kind, unsigned int notification) {
    const CWnd* target = control.GetTopLevelFrame();
    if (!target) {
        const CWinThread* const thread = AfxGetThread();
        target = thread ? thread->m_pMainWnd : nullptr;
    }
    if (!target) return;
    ::SendMessageA(target->m_hWnd, WM_COMMAND, MAKEWPARAM(kind, notification),
                   reinterpret_cast<LPARAM>(control.m_hWnd));
}

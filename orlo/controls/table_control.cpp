// Shared implementation of combo boxes and list boxes of host tables.

#include "orlo/controls/table_control.h"

#include <afxwin.h>

#include "orlo/controls/control_font.h"

unsigned long ItemOf(const ControlItems& items, int index, char* text) {
    return items.GetText(index, text, kItemTextSize) ? ParseControlItem(text) : 0;
}

void InitializeSubclassedWindow(HWND control, const ControlItems& items, int rowHeight) {
    ::SetWindowLongPtrA(control, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(AfxGetAfxWndProc()));
    const LONG style = ::GetWindowLongA(control, GWL_STYLE);
    constexpr LONG kVariable = CBS_OWNERDRAWVARIABLE, kDrawn = CBS_OWNERDRAWFIXED | kVariable;
    static_assert(kDrawn == (LBS_OWNERDRAWFIXED | LBS_OWNERDRAWVARIABLE));
    const int rows = style & kVariable ? items.Count() : 1;
    for (int row = -1; (style & kDrawn) != 0 && row < rows; ++row)
        items.SetRowHeight(row, rowHeight);
    ::SendMessageA(control, WM_INITIALUPDATE, 0, 0);
}

void UseSharedFont(HWND control) {
    if (const HFONT font = SharedControlFont())
        ::SendMessageA(control, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
}

void SetControlHeight(HWND control, int height) {
    ::SetWindowPos(control, nullptr, 0, 0, WindowSize(control).cx, height,
                   SWP_NOMOVE | SWP_NOZORDER | SWP_NOREDRAW | SWP_NOACTIVATE | SWP_DEFERERASE);
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

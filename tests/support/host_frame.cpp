// Implements HostFrame.

#include "support/host_frame.h"

#include "orlo/controls/combo_control.h"
#include "orlo/controls/control_fill.h"
#include "orlo/host/drawing.h"

HostFrame::HostFrame(DrawingStruct* drawing) : m_drawing(drawing) {
    CreateEx(0, AfxRegisterWndClass(0), "host", WS_OVERLAPPEDWINDOW, 0, 0, 100, 100, nullptr, nullptr);
    AfxGetThread()->m_pMainWnd = this;
}

HostFrame::~HostFrame() {
    AfxGetThread()->m_pMainWnd = nullptr;
    DestroyWindow();
}

BOOL HostFrame::OnCommand(WPARAM wParam, LPARAM lParam) {
    const unsigned int kind = LOWORD(wParam), code = HIWORD(wParam);
    if (lParam == 0) return CFrameWnd::OnCommand(wParam, lParam);
    notifications.push_back({kind, code});
    const char* name = ::TableOfControl(kind);
    if (code != kControlReady || name == nullptr) return FALSE;
    ControlFillRecord record = {};
    record.pTable = ::DrawingGetTable(m_drawing, name);
    record.nSelected = kind == kControlStyleNames ? currentStyle : kColorNone;
    ::SendMessageA(reinterpret_cast<HWND>(lParam), kFillMessage, 0, reinterpret_cast<LPARAM>(&record));
    return TRUE;
}

void HostFrame::PostNcDestroy() {}

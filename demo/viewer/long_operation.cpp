// User interface of a blocking operation.

#include "demo/viewer/long_operation.h"

namespace {

bool IsEscapePressed() {
    bool escape = false;
    MSG key;
    while (::PeekMessageA(&key, nullptr, WM_KEYFIRST, WM_KEYLAST, PM_REMOVE))
        escape = escape || (key.message == WM_KEYDOWN && key.wParam == VK_ESCAPE);
    return escape;
}

void PaintNext() {
    MSG paint;
    if (::PeekMessageA(&paint, nullptr, WM_PAINT, WM_PAINT, PM_REMOVE)) ::DispatchMessageA(&paint);
}

} // namespace

void ShowWaitCursor(const CWnd& window) {
    ::SetCursor(::LoadCursorA(nullptr, IDC_WAIT));
    window.PostMessage(kWaitCursorEnds);
}

void RestoreCursor() {
    POINT point;
    ::GetCursorPos(&point);
    ::SetCursorPos(point.x, point.y); // causes WM_SETCURSOR
}

LongOperation::LongOperation(const CWnd& window, CStatusBar& line, const std::string& text) : m_line(line) {
    ShowWaitCursor(window);
    m_line.StartProgress(text + " - Esc cancels");
}

LongOperation::~LongOperation() {
    m_line.EndProgress();
}

bool LongOperation::Update(int permille) {
    m_line.ShowProgress(permille);
    PaintNext();
    return !IsEscapePressed();
}

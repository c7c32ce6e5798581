// Detects message boxes with a hook of this thread, which needs neither another thread nor waiting.

#include "support/message_box_watcher.h"

#include "demo/automation/control_text.h"

namespace {

constexpr int kTextID = 0xFFFF;
constexpr int kIconID = 1088;

bool IsMessageBox(HWND window) {
    char name[16] = "";
    ::GetClassNameA(window, name, sizeof name);
    return std::string(name) == "#32770" && ::GetDlgItem(window, kTextID) && ::GetDlgItem(window, kIconID);
}

} // namespace

MessageBoxWatcher* MessageBoxWatcher::s_current = nullptr;

MessageBoxWatcher::MessageBoxWatcher(int reply) : m_reply(reply) {
    s_current = this;
    m_hook = ::SetWindowsHookExA(WH_CBT, OnHook, nullptr, ::GetCurrentThreadId());
}

MessageBoxWatcher::~MessageBoxWatcher() {
    ::UnhookWindowsHookEx(m_hook);
    s_current = nullptr;
}

std::string MessageBoxWatcher::OnlyText() const {
    if (m_boxes.size() != 1) return "(" + std::to_string(m_boxes.size()) + " message boxes)";
    return m_boxes[0].text;
}

LRESULT CALLBACK MessageBoxWatcher::OnHook(int code, WPARAM wParam, LPARAM lParam) {
    if (code == HCBT_ACTIVATE && s_current) s_current->OnActivate(reinterpret_cast<HWND>(wParam));
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

// A box is activated again when it gets the focus back, but must be answered only once.
void MessageBoxWatcher::OnActivate(HWND window) {
    if (window == m_answered || !IsMessageBox(window)) return;
    m_answered = window;
    const HICON icon = reinterpret_cast<HICON>(::SendDlgItemMessageA(window, kIconID, STM_GETICON, 0, 0));
    m_boxes.push_back({WindowText(::GetDlgItem(window, kTextID)), WindowText(window),
                       icon && icon == ::LoadIconA(nullptr, MAKEINTRESOURCEA(32515))});
    ::PostMessageA(window, WM_COMMAND, static_cast<WPARAM>(m_reply), 0);
}

// Filters messages to dialogs.

#include "demo/viewer/dialog_messages.h"

#include <utility>

DialogMessages::DialogMessages(Handler handler)
    : m_handler(std::move(handler)),
      m_hook(::SetWindowsHookExA(WH_MSGFILTER, OnMessage, nullptr, ::GetCurrentThreadId())) {
    s_current = this;
}

DialogMessages::~DialogMessages() {
    s_current = nullptr;
    ::UnhookWindowsHookEx(m_hook);
}

LRESULT CALLBACK DialogMessages::OnMessage(int code, WPARAM wParam, LPARAM lParam) {
    MSG& message = *reinterpret_cast<MSG*>(lParam);
    if (code == MSGF_DIALOGBOX && s_current && s_current->m_handler(message)) return TRUE;
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

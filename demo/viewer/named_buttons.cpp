// Changes the buttons of message boxes when they open.

#include "demo/viewer/named_buttons.h"

namespace {

// Changes the buttons of this thread's next message box.
class ButtonNames {
public:
    explicit ButtonNames(const std::vector<NamedButton>& buttons) : m_buttons(buttons) {
        s_current = this;
        m_hook = ::SetWindowsHookExA(WH_CBT, OnHook, nullptr, ::GetCurrentThreadId());
    }
    ~ButtonNames() {
        ::UnhookWindowsHookEx(m_hook);
        s_current = nullptr;
    }
    ButtonNames(const ButtonNames&) = delete;
    ButtonNames& operator=(const ButtonNames&) = delete;

private:
    static LRESULT CALLBACK OnHook(int code, WPARAM wParam, LPARAM lParam) {
        if (code == HCBT_ACTIVATE && s_current) s_current->Name(reinterpret_cast<HWND>(wParam));
        return ::CallNextHookEx(nullptr, code, wParam, lParam);
    }
    void Name(HWND window) const {
        for (const NamedButton& button : m_buttons)
            if (::GetDlgItem(window, button.id)) ::SetDlgItemTextA(window, button.id, button.text);
    }

    static inline thread_local const ButtonNames* s_current = nullptr;
    const std::vector<NamedButton>& m_buttons;
    HHOOK m_hook;
};

} // namespace

int MessageBoxWithButtons(HWND owner, const char* text, const char* caption, UINT type,
                          const std::vector<NamedButton>& buttons) {
    const ButtonNames names(buttons);
    return ::MessageBoxA(owner, text, caption, type);
}

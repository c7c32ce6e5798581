// Intercepts the messages of this thread before a dialog handles them, so that keys of the main window also work in a
// sheet.
#pragma once

#include <windows.h>

#include <functional>

class DialogMessages {
public:
    // Returns true if the message has been handled.
    using Handler = std::function<bool(MSG& message)>;

    // Intercepts messages during the object's lifetime. Only one object may exist at a time.
    explicit DialogMessages(Handler handler);
    ~DialogMessages();
    DialogMessages(const DialogMessages&) = delete;
    DialogMessages& operator=(const DialogMessages&) = delete;

private:
    static LRESULT CALLBACK OnMessage(int code, WPARAM wParam, LPARAM lParam);

    static inline thread_local DialogMessages* s_current = nullptr;
    Handler m_handler;
    HHOOK m_hook;
};

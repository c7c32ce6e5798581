// Sees the messages of this thread that a dialog is about to take for itself, before it does: the way to keys of the
// main window that are to hold in a sheet too.
#pragma once

#include <windows.h>

#include <functional>

class DialogMessages {
public:
    // True: the message has been dealt with.
    using Handler = std::function<bool(MSG& message)>;

    // Until the end of the object; one at a time.
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

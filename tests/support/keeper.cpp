// Keeps Wine's desktop process alive during a run by having a window. Otherwise the desktop ends with the last windowed
// program, and the next start waits for a new one. Prints "ready" once the desktop exists.

#include <windows.h>

#include <cstdio>

int main() {
    ::CreateWindowA("STATIC", "", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
    std::puts("ready");
    std::fflush(stdout);
    MSG message;
    while (::GetMessageA(&message, nullptr, 0, 0) > 0)
        ::DispatchMessageA(&message);
}

// Plays a user in this process: posts keys and mouse messages to the windows of this thread and lets the program's own
// message loops deal with them. It touches no other program, so it works beside a real user too.
//
//   UserInput user;
//   user.InDialog([&] { user.Key(VK_RETURN, UserInput::kAlt); },
//                 [&](HWND sheet) { user.Click(::GetDlgItem(sheet, IDOK)); });
#pragma once

#include <afxgdi.h>

#include <functional>
#include <string>
#include <vector>

class UserInput {
public:
    enum Modifier : unsigned { kNone = 0, kShift = 1, kControl = 2, kAlt = 4 };

    // pause: milliseconds after each action, in which the program paints.
    explicit UserInput(unsigned pause) : m_pause(pause) {}

    // Lets the program handle what is waiting, for that time at least.
    void Wait(unsigned milliseconds);

    // Sends to the window that has the focus. If another program has taken the focus, it is restored first;
    // std::runtime_error if that can't be done.
    void Key(UINT virtualKey, unsigned modifiers = kNone);
    void Keys(UINT virtualKey, int count);
    void Type(const std::string& text);
    void Mnemonic(char letter); // Alt and the letter

    // Points are pixels of the window's client area.
    void Click(HWND window, CPoint point, unsigned modifiers = kNone);
    void Click(HWND window); // in the middle
    void Press(HWND window, CPoint point, unsigned modifiers = kNone);
    void MoveTo(HWND window, CPoint point); // with the button down
    void Release(HWND window, CPoint point, unsigned modifiers = kNone);
    void PanDrag(HWND window, CPoint from, CPoint to); // by the middle button
    void Wheel(HWND window, CPoint point, int notches);

    // Opens a modal window by `open`, plays `script` in its message loop, and returns when it is closed. Throws
    // std::runtime_error if no window comes up, and what the script throws; the window is cancelled then.
    using Script = std::function<void(HWND)>;
    void InDialog(const std::function<void()>& open, const Script& script);
    // The same for modal windows that come one after the other, with a script for each.
    void InDialogs(const std::function<void()>& open, const std::vector<Script>& scripts);

private:
    struct Dialog;

    void TakeAll();
    HWND Focus();
    static void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD);

    unsigned m_pause;
    HWND m_focus = nullptr; // that had it last
};

// Simulates a user in this process: posts keyboard and mouse messages to the windows of this thread and lets the
// program's own message loops handle them. Does not affect other programs, so it can run beside a real user.
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

    // pause: milliseconds after each action, to let the program paint.
    explicit UserInput(unsigned pause) : m_pause(pause) {}

    // Handles messages for at least the given time.
    void Wait(unsigned milliseconds);

    // Sends a key to the focus window. If another program has the focus, restores it first, or throws
    // std::runtime_error.
    void Key(UINT virtualKey, unsigned modifiers = kNone);
    void Keys(UINT virtualKey, int count);
    void Type(const std::string& text);
    void Mnemonic(char letter); // Alt and the letter

    // Moves the focus and returns the window that then has it, which for a combo box is its edit field. If another
    // program takes the focus before the next key, that key restores it.
    HWND MoveFocus(HWND window);
    // Moves the focus to the field and types over its text.
    void Replace(HWND field, const std::string& text);

    // Points are in pixels of the window's client area.
    void Click(HWND window, CPoint point, unsigned modifiers = kNone);
    void Click(HWND window); // in the center
    void Press(HWND window, CPoint point, unsigned modifiers = kNone);
    void MoveTo(HWND window, CPoint point); // with the button down
    void Release(HWND window, CPoint point, unsigned modifiers = kNone);
    void PanDrag(HWND window, CPoint from, CPoint to); // with the middle button
    void Wheel(HWND window, CPoint point, int notches);

    // Calls `open`, which opens a modal window, runs `script` in its message loop, and returns when the window is
    // closed. Throws std::runtime_error if no window appears. If the script throws, cancels the window and rethrows the
    // exception.
    using Script = std::function<void(HWND)>;
    void InDialog(const std::function<void()>& open, const Script& script);
    // Does the same for several modal windows in succession, with a script for each.
    void InDialogs(const std::function<void()>& open, const std::vector<Script>& scripts);

private:
    struct Dialog;

    void TakeAll();
    HWND Focus();
    static void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD);

    unsigned m_pause;
    HWND m_focus = nullptr; // that last had it
};

// Simulates a user in this process.

#include "demo/automation/user_input.h"

#include <afxwin.h>

#include <exception>
#include <stdexcept>
#include <utility>

namespace {

constexpr unsigned kTimeout = 5000; // milliseconds to wait for a window to open or close
constexpr unsigned kTick = 10;      // milliseconds between checks for new windows

LPARAM At(CPoint point) {
    return MAKELPARAM(point.x, point.y);
}

WPARAM MouseFlags(unsigned modifiers) {
    return (modifiers & UserInput::kShift ? MK_SHIFT : 0) | (modifiers & UserInput::kControl ? MK_CONTROL : 0);
}

// Sets the keyboard state of this thread to exactly these modifier keys.
class ModifierState {
public:
    explicit ModifierState(unsigned modifiers) {
        ::GetKeyboardState(m_before);
        BYTE keys[256];
        std::copy(std::begin(m_before), std::end(m_before), keys);
        keys[VK_SHIFT] = modifiers & UserInput::kShift ? 0x80 : 0;
        keys[VK_CONTROL] = modifiers & UserInput::kControl ? 0x80 : 0;
        keys[VK_MENU] = modifiers & UserInput::kAlt ? 0x80 : 0;
        ::SetKeyboardState(keys);
    }
    ~ModifierState() { ::SetKeyboardState(m_before); }
    ModifierState(const ModifierState&) = delete;
    ModifierState& operator=(const ModifierState&) = delete;

private:
    BYTE m_before[256];
};

} // namespace

// Modal windows that are expected, and the scripts to run in them. A timer of this thread looks for them during the
// object's lifetime, except while the last script runs.
struct UserInput::Dialog {
    explicit Dialog(const std::vector<Script>& toPlay) : scripts(toPlay) { StartTimer(); }
    ~Dialog() {
        StopTimer();
        awaited = outer;
    }
    Dialog(const Dialog&) = delete;
    Dialog& operator=(const Dialog&) = delete;

    bool Awaits() const { return begun < scripts.size() && !::IsWindow(window); }
    void Begin();
    void CancelOnTimeout();
    void StartTimer() { timer = ::SetTimer(nullptr, 0, kTick, OnTimer); }
    void StopTimer() { ::KillTimer(nullptr, timer); }

    static inline thread_local Dialog* awaited = nullptr;
    Dialog* const outer = std::exchange(awaited, this);
    const HWND before = ::GetActiveWindow();
    const std::vector<Script>& scripts;
    size_t begun = 0;      // number of scripts started
    HWND window = nullptr; // the last window that appeared
    ULONGLONG played = 0;  // when the script ended
    std::exception_ptr thrown;
    UINT_PTR timer = 0;
};

void UserInput::TakeAll() {
    MSG message;
    while (::PeekMessageA(&message, nullptr, 0, 0, PM_NOREMOVE) && message.message != WM_QUIT)
        AfxGetThread()->PumpMessage();
}

HWND UserInput::Focus() {
    if (!::GetFocus() && ::IsWindow(m_focus)) {
        ::SetForegroundWindow(::GetAncestor(m_focus, GA_ROOT));
        ::SetFocus(m_focus);
    }
    m_focus = ::GetFocus();
    if (!m_focus) throw std::runtime_error("another program has the keyboard focus");
    return m_focus;
}

void UserInput::Wait(unsigned milliseconds) {
    const ULONGLONG end = ::GetTickCount64() + milliseconds;
    TakeAll();
    for (ULONGLONG now = ::GetTickCount64(); now < end; now = ::GetTickCount64()) {
        ::MsgWaitForMultipleObjects(0, nullptr, FALSE, static_cast<DWORD>(end - now), QS_ALLINPUT);
        TakeAll();
    }
    if (const HWND focus = ::GetFocus()) m_focus = focus;
}

void UserInput::Key(UINT virtualKey, unsigned modifiers) {
    const HWND focus = Focus();
    const bool alt = modifiers & kAlt;
    const ModifierState held(modifiers);
    ::PostMessageA(focus, alt ? WM_SYSKEYDOWN : WM_KEYDOWN, virtualKey, alt ? 0x20000001 : 1);
    ::PostMessageA(focus, alt ? WM_SYSKEYUP : WM_KEYUP, virtualKey, alt ? 0xE0000001 : 0xC0000001);
    TakeAll(); // while the keys are down
    Wait(m_pause);
}

void UserInput::Keys(UINT virtualKey, int count) {
    for (int i = 0; i < count; ++i) {
        const HWND focus = Focus();
        ::PostMessageA(focus, WM_KEYDOWN, virtualKey, 1);
        ::PostMessageA(focus, WM_KEYUP, virtualKey, 0xC0000001);
        TakeAll();
    }
    Wait(m_pause);
}

void UserInput::Mnemonic(char letter) {
    ::PostMessageA(Focus(), WM_SYSCHAR, static_cast<unsigned char>(letter), 0x20000001);
    Wait(m_pause);
}

void UserInput::Type(const std::string& text) {
    for (const char character : text)
        ::PostMessageA(Focus(), WM_CHAR, static_cast<unsigned char>(character), 1);
    Wait(m_pause);
}

HWND UserInput::MoveFocus(HWND window) {
    m_focus = window;
    ::SetFocus(window);
    return Focus();
}

void UserInput::Replace(HWND field, const std::string& text) {
    ::SendMessageA(MoveFocus(field), EM_SETSEL, 0, -1);
    Type(text);
}

void UserInput::Press(HWND window, CPoint point, unsigned modifiers) {
    ::PostMessageA(window, WM_MOUSEMOVE, MouseFlags(modifiers), At(point));
    ::PostMessageA(window, WM_LBUTTONDOWN, MK_LBUTTON | MouseFlags(modifiers), At(point));
    TakeAll();
}

void UserInput::MoveTo(HWND window, CPoint point) {
    ::PostMessageA(window, WM_MOUSEMOVE, MK_LBUTTON, At(point));
    Wait(m_pause);
}

void UserInput::Release(HWND window, CPoint point, unsigned modifiers) {
    ::PostMessageA(window, WM_LBUTTONUP, MouseFlags(modifiers), At(point));
    Wait(m_pause);
}

void UserInput::Click(HWND window, CPoint point, unsigned modifiers) {
    Press(window, point, modifiers);
    Release(window, point, modifiers);
}

void UserInput::Click(HWND window) {
    CRect client;
    ::GetClientRect(window, client);
    Click(window, client.CenterPoint());
}

void UserInput::PanDrag(HWND window, CPoint from, CPoint to) {
    ::PostMessageA(window, WM_MBUTTONDOWN, MK_MBUTTON, At(from));
    ::PostMessageA(window, WM_MOUSEMOVE, MK_MBUTTON, At(to));
    ::PostMessageA(window, WM_MBUTTONUP, 0, At(to));
    Wait(m_pause);
}

void UserInput::Wheel(HWND window, CPoint point, int notches) {
    ::ClientToScreen(window, &point);
    const int delta = notches < 0 ? -WHEEL_DELTA : WHEEL_DELTA;
    for (int i = 0; i != notches; i += notches < 0 ? -1 : 1)
        ::PostMessageA(window, WM_MOUSEWHEEL, MAKEWPARAM(0, delta), At(point));
    Wait(m_pause);
}

void UserInput::InDialog(const std::function<void()>& open, const Script& script) {
    InDialogs(open, {script});
}

void UserInput::InDialogs(const std::function<void()>& open, const std::vector<Script>& scripts) {
    Dialog dialog(scripts);
    open();
    const ULONGLONG end = ::GetTickCount64() + kTimeout;
    while (dialog.begun < scripts.size() && !dialog.thrown && ::GetTickCount64() < end)
        Wait(kTick);
    dialog.StopTimer();
    if (dialog.thrown) std::rethrow_exception(dialog.thrown);
    if (dialog.begun < scripts.size()) throw std::runtime_error("no window appeared");
    Wait(m_pause);
}

// Exceptions must not cross the system's stack frames: they are stored and rethrown after the modal loop.
void CALLBACK UserInput::OnTimer(HWND, UINT, UINT_PTR, DWORD) {
    Dialog* dialog = Dialog::awaited;
    if (dialog && dialog->Awaits())
        dialog->Begin();
    else if (dialog && dialog->played && ::GetTickCount64() > dialog->played + kTimeout)
        dialog->CancelOnTimeout();
}

void UserInput::Dialog::Begin() {
    const HWND active = ::GetActiveWindow();
    if (thrown || !active || active == before || !::IsWindowVisible(active)) return;
    window = active;
    played = 0;
    const ModifierState released(kNone); // the keys that have opened the window
    const Script& script = scripts[begun++];
    const bool isLast = begun == scripts.size();
    if (isLast) StopTimer();
    try {
        script(window);
    } catch (...) {
        thrown = std::current_exception();
        ::PostMessageA(window, WM_COMMAND, IDCANCEL, 0);
    }
    played = ::GetTickCount64();
    if (isLast) StartTimer();
}

void UserInput::Dialog::CancelOnTimeout() {
    if (!thrown) thrown = std::make_exception_ptr(std::runtime_error("the window did not close"));
    ::PostMessageA(window, WM_COMMAND, IDCANCEL, 0);
}

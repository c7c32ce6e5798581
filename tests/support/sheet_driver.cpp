// SheetDriver.

#include "support/sheet_driver.h"

#include <commctrl.h>

#include <stdexcept>

namespace {

thread_local SheetDriver* playing = nullptr;

std::string WindowText(HWND window) {
    std::string text(::GetWindowTextLengthA(window) + 1, '\0');
    text.resize(::GetWindowTextA(window, &text[0], static_cast<int>(text.size())));
    return text;
}

void PressKeyboardState(UINT virtualKey, bool down) {
    BYTE keys[256];
    ::GetKeyboardState(keys);
    keys[virtualKey] = down ? 0x80 : 0;
    ::SetKeyboardState(keys);
}

} // namespace

int SheetDriver::Run(CPropertySheet& sheet, Script script) {
    m_sheet = &sheet;
    m_script = std::move(script);
    m_played = false;
    playing = this;
    const UINT_PTR timer = ::SetTimer(nullptr, 0, 1, OnTimer);
    const int result = static_cast<int>(sheet.DoModal());
    ::KillTimer(nullptr, timer);
    playing = nullptr;
    if (m_thrown) std::rethrow_exception(m_thrown);
    if (!m_played) throw std::runtime_error("the sheet did not open");
    return result;
}

void CALLBACK SheetDriver::OnTimer(HWND, UINT, UINT_PTR timer, DWORD) {
    ::KillTimer(nullptr, timer);
    if (playing != nullptr) playing->Play();
}

// No exception crosses the system's frames: it is kept and thrown again behind the modal loop. The closing Cancel is posted:
// if the script has ended the loop already, nobody takes it.
void SheetDriver::Play() {
    m_played = true;
    try {
        Pump();
        m_script(*this);
        Pump();
    } catch (...) {
        m_thrown = std::current_exception();
    }
    ::PostMessageA(m_sheet->m_hWnd, WM_COMMAND, IDCANCEL, 0);
}

HWND SheetDriver::Sheet() const {
    return m_sheet->m_hWnd;
}
HWND SheetDriver::Page() const {
    return m_sheet->GetActivePage()->m_hWnd;
}
HWND SheetDriver::Control(int id) const {
    return ::GetDlgItem(Page(), id);
}
int SheetDriver::ActivePage() const {
    return m_sheet->GetActiveIndex();
}

void SheetDriver::Pump() {
    MSG message;
    while (::PeekMessageA(&message, nullptr, 0, 0, PM_NOREMOVE) && message.message != WM_QUIT)
        AfxGetThread()->PumpMessage();
}

void SheetDriver::SelectPage(int index) {
    const HWND tabs = m_sheet->GetTabControl()->m_hWnd;
    RECT item;
    ::SendMessageA(tabs, TCM_GETITEMRECT, index, reinterpret_cast<LPARAM>(&item));
    const LPARAM middle = MAKELPARAM((item.left + item.right) / 2, (item.top + item.bottom) / 2);
    ::PostMessageA(tabs, WM_LBUTTONDOWN, MK_LBUTTON, middle);
    ::PostMessageA(tabs, WM_LBUTTONUP, 0, middle);
    Pump();
}

void SheetDriver::Click(int id) {
    ::SendMessageA(Control(id), BM_CLICK, 0, 0);
    Pump();
}

void SheetDriver::ClickSheetButton(int id) {
    ::SendMessageA(::GetDlgItem(Sheet(), id), BM_CLICK, 0, 0);
    Pump();
}

void SheetDriver::Ok() {
    ClickSheetButton(IDOK);
}
void SheetDriver::Cancel() {
    ClickSheetButton(IDCANCEL);
}

void SheetDriver::Focus(int id) {
    ::SetFocus(Control(id));
    Pump();
}

void SheetDriver::Type(int id, const std::string& text) {
    Focus(id);
    const HWND field = ::GetFocus(); // the edit field inside a combo, or the edit itself
    ::SendMessageA(field, EM_SETSEL, 0, -1);
    if (text.empty()) ::SendMessageA(field, WM_CLEAR, 0, 0);
    for (const char character : text)
        ::PostMessageA(field, WM_CHAR, static_cast<unsigned char>(character), 1);
    Pump();
}

void SheetDriver::Choose(int id, int index) {
    Focus(id);
    Key(VK_HOME);
    for (int i = 0; i < index; ++i)
        Key(VK_DOWN);
}

void SheetDriver::Key(UINT virtualKey, bool shift, bool control) {
    if (shift) PressKeyboardState(VK_SHIFT, true);
    if (control) PressKeyboardState(VK_CONTROL, true);
    const HWND focus = ::GetFocus();
    ::PostMessageA(focus, WM_KEYDOWN, virtualKey, 1);
    ::PostMessageA(focus, WM_KEYUP, virtualKey, 0xC0000001);
    Pump();
    if (shift) PressKeyboardState(VK_SHIFT, false);
    if (control) PressKeyboardState(VK_CONTROL, false);
}

void SheetDriver::Mnemonic(char letter) {
    ::PostMessageA(::GetFocus(), WM_SYSCHAR, static_cast<unsigned char>(letter), 0x20000001);
    Pump();
}

std::string SheetDriver::Text(int id) const {
    return WindowText(Control(id));
}

bool SheetDriver::IsCombo(int id) const {
    char name[32] = "";
    ::GetClassNameA(Control(id), name, sizeof name);
    return ::lstrcmpiA(name, "ComboBox") == 0 || ::lstrcmpiA(name, "QXComboBox") == 0;
}

int SheetDriver::Selection(int id) const {
    return static_cast<int>(::SendMessageA(Control(id), IsCombo(id) ? CB_GETCURSEL : LB_GETCURSEL, 0, 0));
}

int SheetDriver::Check(int id) const {
    return static_cast<int>(::SendMessageA(Control(id), BM_GETCHECK, 0, 0));
}

std::string SheetDriver::ItemText(int id, int index) const {
    const LRESULT length = ::SendMessageA(Control(id), CB_GETLBTEXTLEN, index, 0);
    if (length == CB_ERR) return std::string();
    std::string text(length + 1, '\0');
    ::SendMessageA(Control(id), CB_GETLBTEXT, index, reinterpret_cast<LPARAM>(&text[0]));
    text.resize(length);
    return text;
}

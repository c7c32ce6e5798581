// Drives sheets by scripts.

#include "support/sheet_driver.h"

#include "demo/automation/control_text.h"
#include "demo/automation/sheet_pages.h"

int SheetDriver::Run(CPropertySheet& sheet, Script script) {
    m_sheet = &sheet;
    int result = 0;
    m_user.InDialog([&] { result = static_cast<int>(sheet.DoModal()); },
                    [&](HWND) {
                        Pump();
                        script(*this);
                        Pump();
                        if (sheet.m_hWnd != nullptr) sheet.PostMessage(WM_COMMAND, IDCANCEL);
                    });
    return result;
}

void SheetDriver::SelectPage(int index) {
    ClickTab(m_user, Sheet(), index);
}

void SheetDriver::Click(int id) {
    ::SendMessageA(Control(id), BM_CLICK, 0, 0);
    Pump();
}

void SheetDriver::ClickSheetButton(int id) {
    ::SendMessageA(::GetDlgItem(Sheet(), id), BM_CLICK, 0, 0);
    Pump();
}

void SheetDriver::Focus(HWND window) {
    m_user.MoveFocus(window);
    Pump();
}

void SheetDriver::Type(int id, const std::string& text) {
    m_user.Replace(Control(id), text);
    if (text.empty()) ::SendMessageA(::GetFocus(), WM_CLEAR, 0, 0);
}

void SheetDriver::SelectItem(int id, int index) {
    Focus(id);
    m_user.Key(VK_HOME);
    m_user.Keys(VK_DOWN, index);
}

void SheetDriver::Key(UINT virtualKey, bool shift, bool control) {
    m_user.Key(virtualKey, (shift ? UserInput::kShift : 0u) | (control ? UserInput::kControl : 0u));
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
    return ComboItem(Control(id), index);
}

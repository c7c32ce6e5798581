// Opens a real modal sheet and runs a script from inside the sheet's message loop, which drives it by messages and keys
// like a user. Independent of the pages; message boxes are handled by MessageBoxWatcher.
//
//   int code = SheetDriver().Run(*sheet, [](SheetDriver& user) {
//       user.SelectPage(1);
//       user.Type(104, "2.5");
//       user.Ok();
//   });
#pragma once

#include <afxdlgs.h>

#include <functional>
#include <string>

#include "demo/automation/user_input.h"

class SheetDriver {
public:
    using Script = std::function<void(SheetDriver&)>;

    // Returns the result of DoModal. If the sheet is still open at the end of the script, it is canceled. Throws if the
    // sheet does not open.
    int Run(CPropertySheet& sheet, Script script);

    HWND Sheet() const { return m_sheet->m_hWnd; }
    HWND Page() const { return m_sheet->GetActivePage()->m_hWnd; }
    HWND Control(int id) const { return ::GetDlgItem(Page(), id); }
    int ActivePage() const { return m_sheet->GetActiveIndex(); }

    // Handles all waiting messages, including the thread's pretranslation.
    void Pump() { m_user.Wait(0); }

    void SelectPage(int index); // clicks its tab
    void Click(int id);         // clicks a button of the page
    void ClickSheetButton(int id);
    void Ok() { ClickSheetButton(IDOK); }
    void Cancel() { ClickSheetButton(IDCANCEL); }

    void Focus(int id) { Focus(Control(id)); }
    void Focus(HWND window);
    void Type(int id, const std::string& text); // replaces the text
    void SelectItem(int id, int index);         // in a combo box or list, with Home and Down
    void Key(UINT virtualKey, bool shift = false, bool control = false);
    void Mnemonic(char letter) { m_user.Mnemonic(letter); }

    std::string Text(int id) const;
    int Selection(int id) const; // of a combo box or list, or -1
    int Check(int id) const;
    bool IsCombo(int id) const;
    std::string ItemText(int id, int index) const; // of a combo box

private:
    CPropertySheet* m_sheet = nullptr;
    UserInput m_user{0};
};

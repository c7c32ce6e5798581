// Opens a real modal sheet and plays a script over it from inside the sheet's own message loop, by messages and keys,
// as a person would. It knows no page; message boxes are the MessageBoxWatcher's.
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

    // DoModal's result. A sheet that is still open when the script has ended is cancelled. Throws if it does not open.
    int Run(CPropertySheet& sheet, Script script);

    HWND Sheet() const { return m_sheet->m_hWnd; }
    HWND Page() const { return m_sheet->GetActivePage()->m_hWnd; }
    HWND Control(int id) const { return ::GetDlgItem(Page(), id); }
    int ActivePage() const { return m_sheet->GetActiveIndex(); }

    // Takes all waiting messages through the thread's own filters.
    void Pump() { m_user.Wait(0); }

    void SelectPage(int index); // by a click on its tab
    void Click(int id);         // a button of the page
    void ClickSheetButton(int id);
    void Ok() { ClickSheetButton(IDOK); }
    void Cancel() { ClickSheetButton(IDCANCEL); }

    void Focus(int id);
    void Type(int id, const std::string& text); // over the existing text
    void Choose(int id, int index);             // in a combo or list, by Home and Down keys
    void Key(UINT virtualKey, bool shift = false, bool control = false);
    void Mnemonic(char letter) { m_user.Mnemonic(letter); }

    std::string Text(int id) const;
    int Selection(int id) const; // of a combo or list, -1 for none
    int Check(int id) const;
    bool IsCombo(int id) const;
    std::string ItemText(int id, int index) const; // of a combo

private:
    CPropertySheet* m_sheet = nullptr;
    UserInput m_user{0};
};

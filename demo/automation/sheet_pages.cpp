// The pages of a property sheet.

#include "demo/automation/sheet_pages.h"

#include <commctrl.h>

#include <stdexcept>

CPropertySheet& SheetOf(HWND window) {
    auto* sheet = dynamic_cast<CPropertySheet*>(CWnd::FromHandlePermanent(window));
    if (!sheet) throw std::runtime_error("this window is not a property sheet");
    return *sheet;
}

HWND ActivePageOf(HWND sheet) {
    return SheetOf(sheet).GetActivePage()->m_hWnd;
}

std::vector<std::string> PageTitles(HWND sheet) {
    CTabCtrl& tabs = *SheetOf(sheet).GetTabControl();
    std::vector<std::string> titles;
    for (int i = 0; i < tabs.GetItemCount(); ++i) {
        char text[64] = "";
        TCITEMA item = {};
        item.mask = TCIF_TEXT;
        item.pszText = text;
        item.cchTextMax = sizeof text;
        tabs.SendMessage(TCM_GETITEMA, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&item));
        titles.push_back(text);
    }
    return titles;
}

bool ClickTab(UserInput& user, HWND sheet, int page) {
    CTabCtrl& tabs = *SheetOf(sheet).GetTabControl();
    CRect rect;
    tabs.GetItemRect(page, rect);
    user.Click(tabs.m_hWnd, rect.CenterPoint());
    return !::IsWindow(sheet) || SheetOf(sheet).GetActiveIndex() == page;
}

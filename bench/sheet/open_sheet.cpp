// Runs functions in the message loop of a sheet once it is open.
#include "bench/sheet/open_sheet.h"

#include <commctrl.h>
#include <prsht.h>

#include <vector>

#include "orlo/entry/entry.h"
#include "orlo/host/walk.h"

namespace {

constexpr UINT kOpened = WM_APP + 1;
constexpr int kFirstSystemPage = 600; // in system_pages.rc
constexpr int kSystemPages = 5;

INT_PTR CALLBACK PageProc(HWND, UINT message, WPARAM, LPARAM) {
    return message == WM_INITDIALOG;
}

} // namespace

LoopWatch::LoopWatch() {
    CreateEx(0, AfxRegisterWndClass(0), "", WS_POPUP, 0, 0, 0, 0, nullptr, nullptr);
}

void LoopWatch::Await(std::function<void(HWND sheet)> act) {
    m_act = std::move(act);
    PostMessage(kOpened);
}

LRESULT LoopWatch::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != kOpened) return CWnd::WindowProc(message, wParam, lParam);
    m_act(::GetActiveWindow());
    return 0;
}

void PaintSheet(HWND sheet) {
    ::RedrawWindow(sheet, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
}

void RunSystemSheet(LoopWatch& watch, int pages, const std::function<void(HWND)>& act) {
    std::vector<PROPSHEETPAGEA> templates(static_cast<size_t>(pages));
    for (int i = 0; i < pages; ++i) {
        PROPSHEETPAGEA& page = templates[static_cast<size_t>(i)];
        page.dwSize = sizeof page;
        page.hInstance = ::GetModuleHandleA(nullptr);
        page.pszTemplate = MAKEINTRESOURCEA(kFirstSystemPage + i % kSystemPages);
        page.pfnDlgProc = PageProc;
    }
    PROPSHEETHEADERA header = {};
    header.dwSize = sizeof header;
    header.dwFlags = PSH_PROPSHEETPAGE | PSH_NOAPPLYNOW;
    header.hInstance = ::GetModuleHandleA(nullptr);
    header.pszCaption = "Properties";
    header.nPages = static_cast<UINT>(pages);
    header.ppsp = templates.data();
    watch.Await([&](HWND sheet) {
        act(sheet);
        ::SendMessageA(sheet, PSM_PRESSBUTTON, PSBTN_CANCEL, 0);
    });
    ::PropertySheetA(&header);
}

void ShowSystemPage(HWND sheet, int page) {
    ::SendMessageA(sheet, PSM_SETCURSEL, static_cast<WPARAM>(page), 0);
}

std::unique_ptr<CGraphicPropertySheet> NewSheet(CWnd* owner, DrawingStruct* drawing, GraphicStruct* selection) {
    std::unique_ptr<CGraphicPropertySheet> sheet(
        ::InitGraphicPropertySheet(owner, nullptr, drawing, selection, kAllGraphics));
    for (GraphicStruct* graphic : orlo::host::Members(selection))
        ::AddGraphicPropertyPage(nullptr, graphic, sheet.get());
    return sheet;
}

void RunSheet(LoopWatch& watch, CGraphicPropertySheet& sheet, const std::function<void(HWND)>& act) {
    watch.Await([&](HWND window) {
        act(window);
        ::SendMessageA(window, WM_COMMAND, IDCANCEL, 0);
    });
    sheet.DoModal();
}

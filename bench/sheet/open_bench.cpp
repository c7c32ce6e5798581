// Opening the sheet, showing its Pen page and closing it, against the system's own property sheet with as many pages of as
// many controls.

#include "bench/sheet/sheet_bench.h"

#include <afxdlgs.h>
#include <commctrl.h>
#include <prsht.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "bench/paired_timer.h"
#include "orlo/frame/entry.h"
#include "support/host_frame.h"
#include "support/test_sheet.h"

namespace {

constexpr int kRounds = 15;
constexpr UINT kOpened = WM_APP + 1;
constexpr int kSystemPages[] = {600, 601}; // bench/sheet/system_pages.rc

// Gets its posted message as soon as a modal loop runs, and acts on the sheet that is open then.
class LoopWatch : public CWnd {
public:
    LoopWatch() {
        CreateEx(0, AfxRegisterWndClass(0), "", WS_POPUP, 0, 0, 0, 0, nullptr, nullptr);
    }

    void Await(std::function<void(HWND sheet)> act) {
        m_act = std::move(act);
        PostMessage(kOpened);
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message != kOpened) return CWnd::WindowProc(message, wParam, lParam);
        m_act(::GetActiveWindow());
        return 0;
    }

private:
    std::function<void(HWND)> m_act;
};

void Paint(HWND sheet) { ::RedrawWindow(sheet, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN); }

INT_PTR CALLBACK PageProc(HWND, UINT message, WPARAM, LPARAM) { return message == WM_INITDIALOG; }

void OpenSystemSheet(LoopWatch& watch) {
    PROPSHEETPAGEA pages[2] = {};
    for (int i = 0; i < 2; ++i) {
        pages[i].dwSize = sizeof pages[i];
        pages[i].hInstance = ::GetModuleHandleA(nullptr);
        pages[i].pszTemplate = MAKEINTRESOURCEA(kSystemPages[i]);
        pages[i].pfnDlgProc = PageProc;
    }
    PROPSHEETHEADERA header = {};
    header.dwSize = sizeof header;
    header.dwFlags = PSH_PROPSHEETPAGE | PSH_NOAPPLYNOW;
    header.hInstance = pages[0].hInstance;
    header.pszCaption = "Properties";
    header.nPages = 2;
    header.ppsp = pages;
    watch.Await([](HWND sheet) {
        Paint(sheet);
        ::SendMessageA(sheet, PSM_SETCURSEL, 1, 0);
        Paint(sheet);
        ::SendMessageA(sheet, PSM_PRESSBUTTON, PSBTN_CANCEL, 0);
    });
    ::PropertySheetA(&header);
}

void OpenOurSheet(LoopWatch& watch, GraphicKit& kit, HostFrame& frame) {
    const std::unique_ptr<CGraphicPropertySheet> sheet(
        ::InitGraphicPropertySheet(&frame, nullptr, kit.Drawing(), kit.Selection(), 0xFFFFFFFF));
    for (size_t i = 0; i < kit.Size(); ++i) ::AddGraphicPropertyPage(nullptr, kit[i].graphic, sheet.get());
    watch.Await([&](HWND window) {
        Paint(window);
        sheet->SetActivePage(1);
        Paint(window);
        ::SendMessageA(window, WM_COMMAND, IDCANCEL, 0);
    });
    sheet->DoModal();
}

Pair OpenOver(int n) {
    GraphicKit kit;
    HostFrame frame(kit.Drawing());
    for (int i = 0; i < n; ++i)
        kit.Add({{"PenWidth", 0.1}, {"PenColor", 255}, {"PenScale", 1.0}, {"PenStyle", 1}, {"ScaleSystem", 2}});
    LoopWatch watch;
    ::PropPageInit();
    const int rounds = n > 10000 ? 3 : kRounds;
    return Compare(
        rounds, [&] { OpenOurSheet(watch, kit, frame); }, [&] { OpenSystemSheet(watch); });
}

} // namespace

void BenchOpen() {
    double before = 0;
    for (const int n : {1, 1000, 10000, 100000}) {
        const Pair pair = OpenOver(n);
        Print(("open_sheet_" + std::to_string(n)).c_str(), pair.ratio, "x_system_property_sheet");
        if (n > 1000) Print(("open_sheet_growth_to_" + std::to_string(n)).c_str(), pair.seconds / before, "x_for_10n");
        before = pair.seconds;
    }
}

// Filling the lists of colors and layers with the host's tables, against inserting a sorted list without redrawing.

#include "bench/sheet/sheet_bench.h"

#include <afxwin.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "bench/paired_timer.h"
#include "drawcore/table.h"
#include "orlo/controls/control_fill.h"
#include "orlo/host/drawing.h"
#include "orlo/host/table.h"
#include "orlo/resources/control_ids.h"
#include "support/test_drawing.h"

namespace {

constexpr DWORD kComboStyle =
    WS_CHILD | WS_VISIBLE | WS_VSCROLL | CBS_DROPDOWNLIST | CBS_OWNERDRAWVARIABLE | CBS_HASSTRINGS;

// The parent of both lists, which counts their requests.
class Parent : public CWnd {
public:
    Parent() {
        CreateEx(0, AfxRegisterWndClass(0), "", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 300, 600, nullptr, nullptr);
    }

    HWND Add(const char* className, int id) {
        return ::CreateWindowExA(0, className, "", kComboStyle, 10, 10, 200, 320, m_hWnd,
                                 reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr, nullptr);
    }

    int draws = 0, measures = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        draws += message == WM_DRAWITEM;
        measures += message == WM_MEASUREITEM;
        return CWnd::WindowProc(message, wParam, lParam);
    }
};

void MakeColors(TableStruct* table, int n) {
    int cookie;
    while (const uint16_t id = ::TableEntryFirst(table, &cookie))
        ::TableEntryDelete(table, id);
    std::mt19937 random(7);
    for (int i = 0; i < n; ++i) {
        COLORREF color = random() & 0xFFFFFF;
        ::TableEntryAdd(table, ("Color " + std::to_string(i)).c_str(), &color);
    }
}

void MakeLayers(TableStruct* table, int n) {
    for (int i = 1; i < n; ++i)
        ::TableEntryAdd(table, ("Layer " + std::to_string(i * 7919 % n)).c_str(), nullptr);
}

// A list of the library and its table.
struct List {
    const char* name;
    int combo;
    const char* table;
    void (*make)(TableStruct* table, int n);
};

std::vector<std::string> ItemsOf(HWND combo) {
    std::vector<std::string> items(::SendMessageA(combo, CB_GETCOUNT, 0, 0));
    for (size_t i = 0; i < items.size(); ++i) {
        items[i].resize(::SendMessageA(combo, CB_GETLBTEXTLEN, i, 0) + 1);
        ::SendMessageA(combo, CB_GETLBTEXT, i, reinterpret_cast<LPARAM>(&items[i][0]));
    }
    return items;
}

void InsertSorted(HWND combo, const std::vector<std::string>& items) {
    ::SendMessageA(combo, WM_SETREDRAW, FALSE, 0);
    ::SendMessageA(combo, CB_RESETCONTENT, 0, 0);
    for (const std::string& item : items)
        ::SendMessageA(combo, CB_INSERTSTRING, -1, reinterpret_cast<LPARAM>(item.c_str()));
    ::SendMessageA(combo, WM_SETREDRAW, TRUE, 0);
}

struct Fill {
    Pair pair;
    int draws, measures;
};

Fill FillWith(const List& list, int n) {
    const TestDrawing drawing;
    list.make(drawing.Table(list.table), n);
    Parent parent;
    const HWND ours = parent.Add("QXComboBox", list.combo), plain = parent.Add("COMBOBOX", 1);
    const ControlFillRecord record = {drawing.Table(list.table), 0, kColorNone};
    const auto fill = [&] { ::SendMessageA(ours, kFillMessage, 0, reinterpret_cast<LPARAM>(&record)); };
    fill();
    const std::vector<std::string> items = ItemsOf(ours);
    Fill result;
    result.pair = Compare(n > 1000 ? 9 : 31, fill, [&] { InsertSorted(plain, items); });
    parent.measures = 0;
    fill();
    result.measures = parent.measures;
    parent.draws = 0;
    ::SendMessageA(ours, CB_SHOWDROPDOWN, TRUE, 0);
    ::RedrawWindow(parent.m_hWnd, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    MSG message;
    while (::PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE))
        ::DispatchMessageA(&message);
    result.draws = parent.draws;
    ::SendMessageA(ours, CB_SHOWDROPDOWN, FALSE, 0);
    return result;
}

// Types the name of one of the last layers.
void BenchTyping() {
    constexpr int kLayers = 10000;
    const TestDrawing drawing;
    TableStruct* layers = drawing.Table(kTableLayers);
    MakeLayers(layers, kLayers);
    const Parent parent;
    const HWND combo = ::CreateWindowExA(0, "QXComboBox", "", kComboStyle, 10, 10, 200, 320, parent.m_hWnd,
                                         reinterpret_cast<HMENU>(INT_PTR{IDC_LAYER}), nullptr, nullptr);
    const ControlFillRecord record = {layers, 0, 0};
    std::vector<double> slowest;
    for (int round = 0; round < 9; ++round) {
        ::SendMessageA(combo, kFillMessage, 0, reinterpret_cast<LPARAM>(&record));
        const auto type = [&](char letter) {
            return Seconds([&] { ::SendMessageA(combo, WM_CHAR, static_cast<WPARAM>(letter), 1); });
        };
        double seconds = 0;
        for (const char letter : std::string("layer 9998"))
            seconds = std::max(seconds, type(letter));
        slowest.push_back(seconds);
    }
    Print("type_into_layers_10000_slowest_key", 1000 * Median(slowest), "ms");
}

} // namespace

void BenchFill() {
    BenchTyping();
    const List lists[] = {{"fill_colors_", IDC_COLOR, kTableColors, MakeColors},
                          {"fill_layers_", IDC_LAYER, kTableLayers, MakeLayers}};
    for (const List& list : lists) {
        Pair before{};
        for (const int n : {256, 1000, 10000}) {
            const Fill fill = FillWith(list, n);
            const std::string name = list.name + std::to_string(n);
            Print(name.c_str(), fill.pair.ratio, "x_presorted_insertion");
            Print((name + "_draw_requests").c_str(), fill.draws, "when_dropped");
            Print((name + "_measure_requests").c_str(), fill.measures, "in_a_fill");
            if (n == 10000) PrintGrowth(std::string(list.name) + "1000_to_10000", before, fill.pair);
            before = fill.pair;
        }
    }
}

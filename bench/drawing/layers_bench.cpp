// Selecting all of 10,000 layers in the viewer's dialog of layers. The baseline is a virtual list of the system without
// a program that answers its notifications.

#include "bench/drawing/drawing_bench.h"

#include <afxwin.h>

#include <commctrl.h>

#include <string>

#include "bench/paired_timer.h"
#include "demo/automation/user_input.h"
#include "demo/viewer/layers_dialog.h"
#include "demo/viewer/resource.h"
#include "drawcore/drawing.h"
#include "drawcore/table.h"
#include "orlo/host/drawing.h"

namespace {

constexpr int kLayers = 10000;
constexpr int kRounds = 5;

void SelectAll(HWND list) {
    ListView_SetItemState(list, -1, 0, LVIS_SELECTED);
    ListView_SetItemState(list, -1, LVIS_SELECTED, LVIS_SELECTED);
}

HWND CreateBareList(HWND parent) {
    const HWND list = ::CreateWindowExA(0, WC_LISTVIEWA, "", WS_CHILD | LVS_REPORT | LVS_OWNERDATA, 0, 0, 100, 100,
                                        parent, nullptr, nullptr, nullptr);
    ListView_SetItemCountEx(list, kLayers, 0);
    return list;
}

} // namespace

void BenchLayers() {
    DrawingStruct* drawing = ::DrawingNew();
    TableStruct* layers = ::DrawingGetTable(drawing, kTableLayers);
    for (int i = 1; i < kLayers; ++i) // the drawing has one
        ::TableEntryAdd(layers, ("Layer " + std::to_string(i)).c_str(), nullptr);
    CFrameWnd frame;
    frame.Create(nullptr, "bench");
    const HWND bare = CreateBareList(frame.m_hWnd);
    UserInput user(0);
    Pair selecting{};
    user.InDialog([&] { CLayersDialog(&frame, drawing, [] {}).DoModal(); },
                  [&](HWND dialog) {
                      const HWND list = ::GetDlgItem(dialog, IDC_LAYER_LIST);
                      const auto ours = [&] {
                          SelectAll(list);
                          user.Wait(0); // draws the list
                      };
                      selecting = Compare(kRounds, ours, [&] { SelectAll(bare); });
                      user.Key(VK_ESCAPE);
                  });
    Print("select_layers_10000", selecting.ratio, "x_bare_list");
    Print("select_layers_10000_time", 1000 * selecting.seconds, "ms");
    ::DrawingDispose(&drawing);
}

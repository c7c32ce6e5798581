// HostFrame.

#include "support/host_frame.h"

#include "orlo/controls/control_fill.h"
#include "orlo/host/drawing.h"

namespace {

constexpr unsigned int kAnnounced = 0x21;

constexpr unsigned int kStyleNames = 0x7D0F;

const char* TableOfKind(unsigned int kind) {
    switch (kind) {
    case 0x7D00: // faces and sizes, of which only the drawing counts
    case 0x7D01:
        return kTableUnits;
    case 0x7D04:
    case 0x7D15:
        return kTableLineStyles;
    case 0x7D05:
        return kTableColors;
    case 0x7D07:
    case 0x7D18:
        return kTableBrushStyles;
    case 0x7D08:
        return kTableLayers;
    case kStyleNames:
        return kTableBlocks;
    default:
        return nullptr;
    }
}

} // namespace

HostFrame::HostFrame(DrawingStruct* drawing) : m_drawing(drawing) {
    CreateEx(0, AfxRegisterWndClass(0), "host", WS_OVERLAPPEDWINDOW, 0, 0, 100, 100, nullptr, nullptr);
    AfxGetThread()->m_pMainWnd = this;
}

HostFrame::~HostFrame() {
    AfxGetThread()->m_pMainWnd = nullptr;
    DestroyWindow();
}

BOOL HostFrame::OnCommand(WPARAM wParam, LPARAM lParam) {
    const unsigned int kind = LOWORD(wParam), code = HIWORD(wParam);
    if (lParam == 0) return CFrameWnd::OnCommand(wParam, lParam);
    notifications.push_back({kind, code});
    const char* name = TableOfKind(kind);
    if (code != kAnnounced || name == nullptr) return FALSE;
    ControlFillRecord record = {};
    record.pTable = ::DrawingGetTable(m_drawing, name);
    record.nSelected = kind == kStyleNames ? currentStyle : 0xFFFFFFFE;
    ::SendMessageA(reinterpret_cast<HWND>(lParam), kFillMessage, 0, reinterpret_cast<LPARAM>(&record));
    return TRUE;
}

void HostFrame::PostNcDestroy() {}

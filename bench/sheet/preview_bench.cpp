// Updating the preview pane, against the host drawing the same graphic: in a plain window, and into a device context
// without invalidating and painting a window.

#include "bench/sheet/sheet_bench.h"

#include "bench/paired_timer.h"
#include "orlo/entry/entry.h"
#include "orlo/host/owners.h"
#include "orlo/resources/resource.h"
#include "support/host_frame.h"
#include "support/test_sheet.h"

namespace {

constexpr int kRounds = 31;
constexpr int kPaints = 50; // per round

// A window of the pane's size in which only the host draws.
class BarePane : public CWnd {
public:
    BarePane(HWND parent, GraphicStruct* graphic) : m_graphic(graphic), m_viewport(::ViewportNewEx()) {
        CreateEx(0, AfxRegisterWndClass(0), "", WS_CHILD | WS_VISIBLE | WS_BORDER, 0, 0, 100, 100, parent, nullptr);
    }

    void Refresh() {
        ::InvalidateRect(m_hWnd, nullptr, TRUE);
        ::UpdateWindow(m_hWnd);
    }

    void Draw(HDC dc) {
        CRect rect;
        ::GetClientRect(m_hWnd, &rect);
        ::FillRect(dc, &rect, static_cast<HBRUSH>(::GetStockObject(WHITE_BRUSH)));
        rect.InflateRect(-4, -4);
        ::GraphicSetDirty(m_graphic, 1);
        ::GraphicSetExtentsDirty(m_graphic, 1);
        ::ViewportSetRect(m_viewport.get(), &rect);
        ::ViewportSetExtents(m_viewport.get(), ::GraphicGetExtentsSel(m_graphic, 0), kFitWhole);
        ::ViewportSetGDIStuff(m_viewport.get(), nullptr, dc, 1, 1);
        ::ViewportSetDrawing(m_viewport.get(), ::GraphicGetDrawing(m_graphic));
        ::GraphicDrawEx2(m_graphic, nullptr, m_viewport.get(), 1, 1);
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message != WM_PAINT) return CWnd::WindowProc(message, wParam, lParam);
        PAINTSTRUCT paint;
        Draw(::BeginPaint(m_hWnd, &paint));
        ::EndPaint(m_hWnd, &paint);
        return 0;
    }

private:
    GraphicStruct* m_graphic;
    const orlo::host::OwnedViewport m_viewport;
};

} // namespace

void BenchPreview() {
    GraphicKit kit;
    HostFrame frame(kit.Drawing());
    kit.Add(
        {{kPropPenWidth, 0.1}, {kPropPenColor, 255}, {kPropPenScale, 1.0}, {kPropPenStyle, 1}, {kPropScaleSystem, 2}});
    TestSheet sheet(kit);
    ::AddGraphicPropertyPage(nullptr, kit[0].graphic, &sheet.Sheet());
    sheet.Run([&](SheetDriver& user) {
        auto* page = static_cast<CGraphicPropertyPage*>(sheet.Sheet().FindPage(IDD_PEN_PAGE));
        uint32_t position;
        BarePane bare(user.Sheet(), static_cast<GraphicStruct*>(page->GetFirstObject(&position, 1)));
        const auto repeat = [](auto work) {
            return [work] {
                for (int i = 0; i < kPaints; ++i)
                    work();
            };
        };
        const auto refresh = repeat([&] { sheet.Sheet().UpdatePreview(1); });
        const Pair inWindow = Compare(kRounds, refresh, repeat([&] { bare.Refresh(); }));
        Print("preview_refresh", inWindow.ratio, "x_bare_host_drawing_in_a_window");
        CClientDC dc(&bare);
        const Pair inContext = Compare(kRounds, refresh, repeat([&] { bare.Draw(dc.m_hDC); }));
        Print("preview_refresh_and_window", inContext.ratio, "x_bare_host_drawing_without_paint_messages");
    });
}

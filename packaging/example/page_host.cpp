// A host with a custom page, which edits the dash scale of a line. For an unattended test the page types a value by
// itself, and the program returns 0 if the line has that value afterward.
#include <afxwin.h>
#include <drawcore/application.h>
#include <drawcore/drawing.h>
#include <orlo.h>

#include "orlo/host/owners.h"
#include "orlo/host/property.h"

#include "page_host.h"

constexpr char kTyped[] = "2.5";
constexpr double kExpected = 2.5;

class CScalePage : public CGraphicPropertyPage {
public:
    CScalePage() : CGraphicPropertyPage(IDD_SCALE_PAGE, 0) {}

    void DoDataExchange(CDataExchange* pDX) override {
        CGraphicPropertyPage::DoDataExchange(pDX);
        DDP_Text(pDX, IDC_SCALE, m_scale, kPropPenScale);
        DDX_Text(1, pDX, IDC_SCALE, m_scale);
        DDP_PostProcessing(pDX);
    }

    BOOL OnSetActive() override {
        const BOOL result = CGraphicPropertyPage::OnSetActive();
        ::PostMessageA(m_hWnd, kType, 0, 0);
        return result;
    }

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message != kType) return CGraphicPropertyPage::WindowProc(message, wParam, lParam);
        ::SetDlgItemTextA(m_hWnd, IDC_SCALE, kTyped);
        ::PostMessageA(::GetParent(m_hWnd), WM_COMMAND, IDOK, 0);
        return 0;
    }

private:
    static constexpr UINT kType = WM_APP + 1;
    double m_scale = 0;
};

// Adds a line to the drawing, which owns it. Returns null on failure.
static GraphicStruct* AddLine(DrawingStruct* drawing) {
    orlo::host::OwnedGraphic line(GraphicNewEx(kGraphicVertices, 0, 1));
    for (const double x : {0.0, 10.0}) {
        orlo::host::OwnedVertex vertex(VertexNewEx(x, 0, 0));
        if (!line || !vertex || !GraphicVertexAdd(line.get(), vertex.get())) return nullptr;
        vertex.release();
    }
    if (GraphicAdd(DrawingGetRoot(drawing), line.get()) == nullptr) return nullptr;
    return line.release();
}

int main() {
    CWinApp application("Host");
    auto* frame = new CFrameWnd; // deletes itself with its window
    if (!frame->Create(nullptr, "Host")) return 2;
    application.m_pMainWnd = frame;
    PropPageInit();

    DrawingStruct* drawing = DrawingNew();
    GraphicStruct* line = drawing ? AddLine(drawing) : nullptr;
    if (line == nullptr) return 2;
    AppSetCurrentDrawing(drawing);
    CGraphicPropertySheet* sheet =
        InitGraphicPropertySheet(frame, nullptr, drawing, DrawingGetRoot(drawing), kAllGraphics);
    auto* page = new CScalePage; // deleted by the sheet
    sheet->AddPage(page);
    sheet->SetActivePage(page);
    const auto code = sheet->DoModal();
    delete sheet;
    const bool written = orlo::host::ReadProperty<double>(line, kPropPenScale) == kExpected;
    frame->DestroyWindow();
    DrawingDispose(&drawing);
    return code == IDOK && written ? 0 : 1;
}

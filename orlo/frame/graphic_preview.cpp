// CGraphicPreview: paints the preview pane and the frame around the drawing.

#include "orlo/frame/graphic_preview.h"

#include <oleacc.h>

#include "orlo/frame/graphic_property_sheet.h"
#include "orlo/host/application.h"
#include "orlo/host/table.h"
#include "orlo/resources/library_text.h"
#include "orlo/resources/resource.h"
#include "orlo/win/accessible_window.h"
#include "orlo/win/realized_palette.h"

IMPLEMENT_DYNAMIC(CGraphicPreview, CWnd)

BEGIN_MESSAGE_MAP(CGraphicPreview, CWnd)
ON_WM_PAINT()
ON_MESSAGE(WM_GETOBJECT, &CGraphicPreview::OnGetObject)
END_MESSAGE_MAP()

namespace {

constexpr COLORREF kWhite = RGB(255, 255, 255);
constexpr COLORREF kPaletteBackground = PALETTEINDEX(1);
constexpr int kInset = 4; // pixels between the edge of the pane and the drawing

COLORREF PreviewBackground(const AppStruct* application) {
    long color = 0;
    if (application != nullptr) ::TableGetIntVar(application->pVariables, kVarPreviewBackground, &color);
    return static_cast<COLORREF>(color);
}

void FillWith(HDC dc, const CRect& rect, COLORREF color) {
    CBrush brush(color);
    ::FillRect(dc, &rect, static_cast<HBRUSH>(brush.m_hObject));
}

void FillBackground(HDC dc, const CRect& rect) {
    const AppStruct* application = ::AppGetCurrentApp();
    if (application != nullptr && ::IsPaletteSupported(dc)) {
        const RealizedPalette palette(dc, application->hPalette);
        FillWith(dc, rect, kPaletteBackground);
    } else {
        FillWith(dc, rect, PreviewBackground(application));
    }
}

class PreviewKind : public AccessibleKind {
public:
    long Role() const override { return ROLE_SYSTEM_GRAPHIC; }
    std::string Name(HWND) const override { return std::string(LibraryText(IDS_PREVIEW)); }
};
const PreviewKind kPreviewKind;

} // namespace

CGraphicPreview::CGraphicPreview() : m_pViewport(::ViewportNewEx()) {}

CGraphicPreview::~CGraphicPreview() {
    if (m_pViewport != nullptr) ::ViewportDispose(&m_pViewport);
}

int CGraphicPreview::Create(const RECT& rect, CWnd* pParentWnd, unsigned int nID) {
    return CWnd::Create(nullptr, "", WS_CHILD | WS_VISIBLE | WS_BORDER, rect, pParentWnd, nID);
}

LRESULT CGraphicPreview::OnGetObject(WPARAM wParam, LPARAM lParam) {
    const LRESULT object = HandleGetObject(m_hWnd, wParam, lParam, kPreviewKind);
    return object != 0 ? object : Default();
}

void CGraphicPreview::OnPaint() {
    CPaintDC dc(this);
    CRect rect;
    ::GetClientRect(m_hWnd, &rect);
    dc.FillSolidRect(&rect, kWhite);
    if (m_pViewport == nullptr) return;
    FillBackground(dc.m_hDC, rect);
    rect.InflateRect(-kInset, -kInset);
    CWnd* parent = GetParent();
    if (parent != nullptr && parent->IsKindOf(RUNTIME_CLASS(CGraphicPropertySheet)))
        static_cast<CGraphicPropertySheet*>(parent)->DrawPreview(&dc, m_pViewport, rect);
}

// CBrushPage: exchange of brush properties, the arrows beside the angle, and the hatched preview.

#include "orlo/pages/brush_page.h"

#include <commctrl.h>

#include <cmath>

#include "orlo/binding/indeterminate.h"
#include "orlo/controls/color_control.h"
#include "orlo/exchange/ddp.h"
#include "orlo/exchange/ddx.h"
#include "orlo/exchange/indeterminate_text.h"
#include "orlo/frame/graphic_property_sheet.h"
#include "orlo/host/strings.h"
#include "orlo/host/style.h"
#include "orlo/host/table.h"
#include "orlo/host/units.h"
#include "orlo/host/viewport.h"
#include "orlo/pages/angle_and_scale.h"
#include "orlo/pages/current_drawing.h"
#include "orlo/pages/preview_rows.h"
#include "orlo/resources/library_text.h"
#include "orlo/resources/resource.h"
#include "orlo/samples/hatch_scale.h"
#include "orlo/samples/vertex_list.h"

IMPLEMENT_DYNAMIC(CBrushPage, CGraphicPropertyPage)

namespace {

constexpr unsigned int kSolid = 1;

constexpr double kLinesAcrossPreview = 20.0;

// Draw mode per radio button: none, winding, alternate.
int drawModes[] = {-1, 1, 0};
constexpr int kDrawModeCount = 3;

// The step of the arrows beside the angle, and the full turn at which they wrap around.
struct AngularUnit {
    double radians;
    double turn; // in units
    int highest; // highest position of the up-down control
};

AngularUnit AngularUnitOf(DrawingStruct* drawing) {
    constexpr double kTurn = 6.283185307179586;
    switch (drawing != nullptr ? ::UnitsGetAngularSystem(drawing->pUnits) : 0) {
    case 0:
    case 1:
    case 4:
        return {kTurn / 360, 360, 359};
    case 2:
        return {kTurn / 400, 400, 399};
    default:
        return {1.0, kTurn, 6};
    }
}

double SteppedAngle(double radians, int steps, const AngularUnit& unit) {
    const double to = std::fmod(radians / unit.radians + steps, unit.turn);
    return (to < 0 ? to + unit.turn : to) * unit.radians;
}

double WidthOf(GraphicStruct* graphic) {
    const ExtentsStruct* extents = ::GraphicGetExtentsSel(graphic, 0);
    return ::ExtentsGetX2(extents) - ::ExtentsGetX1(extents);
}

bool IsIndeterminateStyle(unsigned int style) {
    return style == kBrushStyleIndeterminate || style == kIndeterminateId;
}

} // namespace

CBrushPage::CBrushPage()
    : CGraphicPropertyPage(kTemplate, 0), m_pBrushStyles(CurrentTable(kTableBrushStyles)), m_dwColor(kColorOfPen),
      m_dAngle(0.0), m_dScale(1.0), m_nStyle(kBrushStyleNone), m_szStyleName(), m_nHatchCross(0), m_nLastCross(0),
      m_nDrawMode(0) {}

BOOL CBrushPage::OnInitDialog() {
    if (m_hWnd != nullptr) {
        ::SendDlgItemMessageA(m_hWnd, IDC_BRUSH_ANGLE_ARROWS, UDM_SETRANGE, 0, AngularUnitOf(CurrentDrawing()).highest);
        CWnd* color = CWnd::FromHandle(::GetDlgItem(m_hWnd, IDC_BRUSH_COLOR));
        if (color != nullptr && color->IsKindOf(RUNTIME_CLASS(CColorControl)))
            static_cast<CColorControl*>(color)->EnableLastEntry(1);
    }
    return CGraphicPropertyPage::OnInitDialog();
}

void CBrushPage::DoDataExchange(CDataExchange* pDX) {
    DDP_Text(pDX, IDC_BRUSH_COLOR, m_dwColor, kPropBrushColor);
    DDX_CBTableColor(1, pDX, IDC_BRUSH_COLOR, m_dwColor);

    ExchangeAngle(pDX);

    DDP_Text(pDX, IDC_BRUSH_SCALE, m_dScale, kPropBrushScale);
    DDX_TextScale(1, pDX, IDC_BRUSH_SCALE, m_dScale);
    if (IsEdited(IDC_BRUSH_SCALE) && !IsNearlyIndeterminate(m_dScale))
        DDV_MinMaxDouble(1, pDX, m_dScale, orlo::kMinScale, orlo::kMaxScale);

    DDP_Text(pDX, IDC_BRUSH_STYLE_LIST, m_nStyle, kPropBrushStyle);
    DDX_ConvertStyle(1, pDX, m_nStyle);

    DDP_Check(pDX, IDC_HATCH_CROSS, m_nHatchCross, kPropHatchCross);
    DDX_Check(1, pDX, IDC_HATCH_CROSS, m_nHatchCross);

    DDP_Radio(pDX, IDC_DRAW_WINDING, m_nDrawMode, kPropBrushDrawMode);
    DDX_RadioMap(1, pDX, IDC_DRAW_WINDING, m_nDrawMode, drawModes, kDrawModeCount);
    m_drawModes.Exchange(pDX, IDC_DRAW_WINDING);

    DDP_PostProcessing(pDX);
}

// Invalid text for the angle does not end the exchange: the angles of the graphics do not change. If the host cannot
// format the angle, the field is blank.
void CBrushPage::ExchangeAngle(CDataExchange* pDX) {
    DDP_Text(pDX, IDC_BRUSH_ANGLE, m_dAngle, kPropBrushAngle);
    const bool exchanged = DDX_TextAngle(pDX, IDC_BRUSH_ANGLE, m_dAngle, CurrentDrawing()) != 0;
    if (!exchanged && !pDX->m_bSaveAndValidate) ::SetDlgItemTextA(m_hWnd, IDC_BRUSH_ANGLE, "");
    if (!IsEdited(IDC_BRUSH_ANGLE)) return;
    if (!exchanged) {
        ::MessageBeep(MB_ICONWARNING);
        m_dAngle = Indeterminate<double>::Value();
    }
    if (!IsNearlyIndeterminate(m_dAngle)) DDV_Radians(1, pDX, m_dAngle);
}

BOOL CBrushPage::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    const auto* header = reinterpret_cast<const NMHDR*>(lParam);
    if (header->idFrom != IDC_BRUSH_ANGLE_ARROWS || header->code != static_cast<UINT>(UDN_DELTAPOS))
        return CGraphicPropertyPage::OnNotify(wParam, lParam, pResult);
    TurnAngle(reinterpret_cast<const NMUPDOWN*>(lParam)->iDelta);
    *pResult = TRUE; // the control would only handle integers
    return TRUE;
}

void CBrushPage::TurnAngle(int steps) {
    DrawingStruct* drawing = CurrentDrawing();
    CDataExchange save(this, TRUE), load(this, FALSE);
    double angle = 0.0;
    if (!DDX_TextAngle(&save, IDC_BRUSH_ANGLE, angle, drawing)) {
        ::MessageBeep(MB_ICONWARNING);
        return;
    }
    angle = SteppedAngle(IsNearlyIndeterminate(angle) ? 0.0 : angle, steps, AngularUnitOf(drawing));
    DDX_TextAngle(&load, IDC_BRUSH_ANGLE, angle, drawing);
}

CString CBrushPage::StyleName(unsigned int style) const {
    if (IsIndeterminateStyle(style)) return kIndeterminateWord;
    char name[kStyleNameSize] = "";
    if (style == kBrushStyleNone)
        ::DrawCoreLoadString(kStringNoBrush, name, sizeof name);
    else
        ::TableEntryGetName(m_pBrushStyles, static_cast<uint16_t>(style), name, sizeof name);
    return name;
}

int CBrushPage::DDX_ConvertStyle(int bReport, CDataExchange* pDX, unsigned int& style) {
    if (!DDX_LBTableIndex(bReport, pDX, IDC_BRUSH_STYLE_LIST, style)) return 0;
    ShowStyleName(m_hWnd, IDC_BRUSH_STYLE_TEXT, StyleName(style), m_szStyleName);
    return 1;
}

// ---- Preview

// Returns black if the selection has multiple colors.
unsigned long CBrushPage::PenColorOfSelection() {
    CDataExchange load(this, FALSE);
    unsigned long color = kIndeterminateId;
    DDP_Text(&load, 0, color, kPropPenColor);
    return color == kIndeterminateId ? 0 : color;
}

void* CBrushPage::CreatePreviewGraphic() {
    // Undrawn segments to two corners keep the extents at the unit square.
    GraphicStruct* shape = NewVertexList({{0.35, 0.35, 0, true},
                                          {0.05, 0.35, 0, true},
                                          {0.05, 0.95, 0, true},
                                          {0.0, 1.0, 0, false},
                                          {0.05, 0.95, 0, false},
                                          {0.65, 0.95, 0, true},
                                          {0.65, 0.35, 0, true},
                                          {0.35, 0.35, 0, true},
                                          {0.35, 0.65, 0, true},
                                          {0.95, 0.65, 0, true},
                                          {0.95, 0.05, 0, true},
                                          {1.0, 0.0, 0, false},
                                          {0.95, 0.05, 0, false},
                                          {0.35, 0.05, 0, true},
                                          {0.35, 0.35, 0, true}});
    if (shape == nullptr) return nullptr;
    ::GraphicSetPenColor(shape, PenColorOfSelection());
    shape->dwOneOutline = 1;
    return shape;
}

struct CBrushPage::Preview {
    static const PreviewRow<CBrushPage> kRows[5];
};

const PreviewRow<CBrushPage> CBrushPage::Preview::kRows[] = {
    {{IDC_BRUSH_COLOR},
     [](CBrushPage& page, CDataExchange* pDX, int) { TransferColor(page, pDX, IDC_BRUSH_COLOR, kPropBrushColor); }},
    {{IDC_BRUSH_ANGLE},
     [](CBrushPage& page, CDataExchange* pDX, int) {
         double angle = 0.0;
         if (DDX_TextAngle(pDX, IDC_BRUSH_ANGLE, angle, CurrentDrawing()) && !IsNearlyIndeterminate(angle) &&
             DDV_Radians(page.IsEdited(IDC_BRUSH_ANGLE), pDX, angle))
             page.SetPropText(kPropBrushAngle, angle, 1);
     }},
    {{IDC_BRUSH_STYLE_LIST}, [](CBrushPage& page, CDataExchange* pDX, int) { page.SetPreviewStyle(pDX); }},
    {{IDC_HATCH_CROSS},
     [](CBrushPage& page, CDataExchange* pDX, int bAll) {
         TransferCheck(page, pDX, IDC_HATCH_CROSS, bAll, page.m_nLastCross, kPropHatchCross);
     }},
    {{IDC_DRAW_WINDING}, [](CBrushPage& page, CDataExchange* pDX, int) {
         int mode = 0;
         if (DDX_RadioMap(0, pDX, IDC_DRAW_WINDING, mode, drawModes, kDrawModeCount))
             page.SetPropText(kPropBrushDrawMode, mode, 1);
     }}};

void CBrushPage::SetPreviewProperties(int bAll) {
    if (m_pPreviewGraphic == nullptr) return;
    TransferToPreview(*this, Preview::kRows, bAll);
    // Preview writes go to the graphics of all pages, including the pen properties of the Pen page. This preview keeps
    // its own pen.
    ::GraphicSetPenStyle(m_pPreviewGraphic, kLineStyleByBlock);
    ::GraphicSetPenWidth(m_pPreviewGraphic, 0.0);
    if (CGraphicPropertySheet* sheet = GetSheet()) sheet->UpdatePreview(1);
}

// The style determines the scale of the preview, chosen so that any hatch is recognizable, and which controls are
// enabled.
void CBrushPage::SetPreviewStyle(CDataExchange* pDX) {
    constexpr unsigned short kLines = kBrushVector | kBrushHasLines;
    unsigned int style = m_nStyle;
    if (DDX_ConvertStyle(0, pDX, style) && !IsIndeterminateStyle(style)) {
        const bool hatched =
            style != kBrushStyleNone && (::BrushStyleGetFlags(m_pBrushStyles, style) & kLines) == kLines;
        if (hatched) {
            double scale = HatchScale(m_pBrushStyles, style, WidthOf(m_pPreviewGraphic), kLinesAcrossPreview);
            SetPropText(kPropBrushScale, scale, 1);
        }
        SetPropText(kPropBrushStyle, style, 1);
    }
    const bool chosen = ::SendDlgItemMessageA(m_hWnd, IDC_BRUSH_STYLE_LIST, LB_GETCURSEL, 0, 0) != LB_ERR;
    if (style == kBrushStyleNone || !chosen) {
        EnableHatchControls(kBrushStyleNone, 0);
        ::SetDlgItemTextA(m_hWnd, IDC_BRUSH_KIND_TEXT, "");
        return;
    }
    const unsigned short flags = ::BrushStyleGetFlags(m_pBrushStyles, static_cast<uint16_t>(style));
    const CString kind = LibraryText(flags & kBrushVector ? IDS_VECTOR_BRUSH : IDS_BITMAP_BRUSH);
    ::SetDlgItemTextA(m_hWnd, IDC_BRUSH_KIND_TEXT, kind);
    EnableHatchControls(style, flags);
}

void CBrushPage::EnableHatchControls(unsigned int style, unsigned short flags) {
    const bool vector = style != kBrushStyleNone && style != kSolid && (flags & kBrushVector) != 0;
    const bool colored = style == kSolid || vector || (style != kBrushStyleNone && (flags & kBrushTakesColor) != 0);
    const auto enable = [this](int nID, bool on) {
        if (CWnd* control = GetDlgItem(nID)) control->EnableWindow(on);
    };
    enable(IDC_BRUSH_COLOR, colored);
    enable(IDC_BRUSH_SCALE, vector);
    enable(IDC_BRUSH_ANGLE, vector);
    enable(IDC_BRUSH_ANGLE_ARROWS, vector);
    enable(IDC_HATCH_CROSS, vector);
    enable(IDC_DRAW_WINDING, style != kBrushStyleNone);
    enable(IDC_DRAW_ALTERNATE, style != kBrushStyleNone);
}

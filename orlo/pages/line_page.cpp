// CLinePage: exchange of pen properties, changes of the scale system, and the preview.

#include "orlo/pages/line_page.h"

#include "orlo/binding/indeterminate.h"
#include "orlo/exchange/ddp.h"
#include "orlo/exchange/ddx.h"
#include "orlo/exchange/indeterminate_text.h"
#include "orlo/exchange/window_text.h"
#include "orlo/frame/graphic_property_sheet.h"
#include "orlo/host/strings.h"
#include "orlo/host/table.h"
#include "orlo/pages/angle_and_scale.h"
#include "orlo/pages/current_drawing.h"
#include "orlo/pages/pen_width.h"
#include "orlo/pages/preview_rows.h"
#include "orlo/resources/resource.h"
#include "orlo/samples/vertex_list.h"

IMPLEMENT_DYNAMIC(CLinePage, CGraphicPropertyPage)

namespace {

constexpr double kWidest = 1e38;

} // namespace

BEGIN_MESSAGE_MAP(CLinePage, CGraphicPropertyPage)
ON_CBN_SELCHANGE(IDC_SCALE_SYSTEM, &ThisClass::OnScaleSystemChange)
END_MESSAGE_MAP()

CLinePage::CLinePage()
    : CGraphicPropertyPage(kTemplate, 0), m_pLineStyles(CurrentTable(kTableLineStyles)), m_dwColor(kColorByLayer),
      m_dWidth(0.0), m_dScale(1.0), m_nStyle(kLineStyleByLayer), m_nScaleSystem(kScalePaper), m_szStyleName(),
      m_nAlignment(1), m_nLastAlignment(0) {
    m_bScrollingCombos = TRUE; // for long widths
}

BOOL CLinePage::OnInitDialog() {
    if (m_hWnd != nullptr) {
        for (unsigned int id : {kStringWorldScale, kStringPaperScale}) {
            char text[64] = "";
            ::DrawCoreLoadString(id, text, sizeof text);
            ::SendDlgItemMessageA(m_hWnd, IDC_SCALE_SYSTEM, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text));
        }
    }
    return CGraphicPropertyPage::OnInitDialog();
}

void CLinePage::DoDataExchange(CDataExchange* pDX) {
    DrawingStruct* drawing = CurrentDrawing();

    // The property has more bits than the member. While saving, the member already contains the combo box's value.
    unsigned short scaleSystem =
        m_nScaleSystem == kScaleIndeterminate ? Indeterminate<unsigned short>::Value() : m_nScaleSystem;
    DDP_Text(pDX, IDC_SCALE_SYSTEM, scaleSystem, kPropScaleSystem);
    m_nScaleSystem = static_cast<unsigned char>(scaleSystem);
    DDX_CBScaleSystem(1, pDX, IDC_SCALE_SYSTEM, m_nScaleSystem);

    DDP_Text(pDX, IDC_COLOR, m_dwColor, kPropPenColor);
    DDX_CBTableColor(1, pDX, IDC_COLOR, m_dwColor);

    FillPenWidths(pDX, IDC_PEN_WIDTH, drawing, m_nScaleSystem);
    DDP_Text(pDX, IDC_PEN_WIDTH, m_dWidth, kPropPenWidth);
    ExchangeWidth(pDX);
    if (IsEdited(IDC_PEN_WIDTH) && !IsNearlyIndeterminate(m_dWidth)) DDV_MinMaxDouble(1, pDX, m_dWidth, 0.0, kWidest);

    DDP_Text(pDX, IDC_PEN_SCALE, m_dScale, kPropPenScale);
    DDX_TextScale(1, pDX, IDC_PEN_SCALE, m_dScale);
    if (IsEdited(IDC_PEN_SCALE) && !IsNearlyIndeterminate(m_dScale))
        DDV_MinMaxDouble(1, pDX, m_dScale, orlo::kMinScale, orlo::kMaxScale);

    DDP_Text(pDX, IDC_LINE_STYLE_LIST, m_nStyle, kPropPenStyle);
    DDX_ConvertLStyle(1, pDX, m_nStyle);

    DDP_Check(pDX, IDC_PEN_ALIGNMENT, m_nAlignment, kPropPenAlignment);
    DDX_Check(1, pDX, IDC_PEN_ALIGNMENT, m_nAlignment);

    DDP_PostProcessing(pDX);
}

// If the host cannot format the width, the field is blank. A blank field is rejected only if the user has cleared it.
void CLinePage::ExchangeWidth(CDataExchange* pDX) {
    const bool save = pDX->m_bSaveAndValidate;
    if (save && !IsEdited(IDC_PEN_WIDTH)) return;
    if (!DDX_CBPenWidth(save, pDX, IDC_PEN_WIDTH, m_dWidth, m_nScaleSystem, CurrentDrawing()))
        ShowBlank(::GetDlgItem(m_hWnd, IDC_PEN_WIDTH));
}

CString CLinePage::StyleName(unsigned int style) const {
    char name[sizeof m_szStyleName] = "";
    switch (style) {
    case kLineStyleNone:
        return "Undefined";
    case kLineStyleIndeterminate:
    case kIndeterminateId:
        return kIndeterminateWord;
    case kLineStyleByLayer:
        ::DrawCoreLoadString(kStringByLayer, name, sizeof name);
        break;
    case kLineStyleByBlock:
        ::DrawCoreLoadString(kStringByBlock, name, sizeof name);
        break;
    default:
        ::TableEntryGetName(m_pLineStyles, static_cast<uint16_t>(style), name, sizeof name);
    }
    return name;
}

int CLinePage::DDX_ConvertLStyle(int bReport, CDataExchange* pDX, unsigned int& style) {
    if (!DDX_LBTableIndex(bReport, pDX, IDC_LINE_STYLE_LIST, style)) return 0;
    ShowStyleName(m_hWnd, IDC_PEN_STYLE_TEXT, StyleName(style), m_szStyleName);
    return 1;
}

// Shows the width in the newly selected system. It is read from the selection again, so an edited width is lost.
void CLinePage::OnScaleSystemChange() {
    CDataExchange save(this, TRUE);
    unsigned char chosen = kScalePaper;
    DDX_CBScaleSystem(1, &save, IDC_SCALE_SYSTEM, chosen);
    if (chosen == m_nScaleSystem) return;
    ::SendDlgItemMessageA(m_hWnd, IDC_PEN_WIDTH, CB_RESETCONTENT, 0, 0);
    m_nScaleSystem = chosen;

    CDataExchange load(this, FALSE);
    DrawingStruct* drawing = CurrentDrawing();
    FillPenWidths(&load, IDC_PEN_WIDTH, drawing, m_nScaleSystem);
    DDP_Text(&load, IDC_PEN_WIDTH, m_dWidth, kPropPenWidth);
    ExchangeWidth(&load);
}

void* CLinePage::CreatePreviewGraphic() {
    return NewPreviewShape(
        {{0.1, 0.2, 0, true}, {0.1, 0.8, 0, true}, {0.9, 0.8, 0, true}, {0.9, 0.2, 0, true}, {0.1, 0.2, 0, true}});
}

struct CLinePage::Preview {
    static const PreviewRow<CLinePage> kRows[6];
};

const PreviewRow<CLinePage> CLinePage::Preview::kRows[] = {
    {{IDC_COLOR}, [](CLinePage& page, CDataExchange* pDX, int) { TransferColor(page, pDX, IDC_COLOR, kPropPenColor); }},
    {{IDC_PEN_WIDTH},
     [](CLinePage& page, CDataExchange* pDX, int) {
         double width = 0.0;
         if (DDX_CBPenWidth(0, pDX, IDC_PEN_WIDTH, width, page.m_nScaleSystem, CurrentDrawing()) &&
             !IsNearlyIndeterminate(width) && DDV_MinMaxDouble(0, pDX, width, 0.0, kWidest))
             page.SetPropText(kPropPenWidth, width, 1);
     }},
    {{IDC_PEN_SCALE},
     [](CLinePage& page, CDataExchange* pDX, int) {
         double scale = 0.0;
         if (DDX_Text(0, pDX, IDC_PEN_SCALE, scale) && !IsNearlyIndeterminate(scale) &&
             DDV_MinMaxDouble(0, pDX, scale, orlo::kMinScale, orlo::kMaxScale))
             page.SetPropText(kPropPenScale, scale, 1);
     }},
    {{IDC_LINE_STYLE_LIST},
     [](CLinePage& page, CDataExchange* pDX, int) {
         unsigned int style = page.m_nStyle;
         if (page.DDX_ConvertLStyle(0, pDX, style)) page.SetPropText(kPropPenStyle, style, 1);
     }},
    {{IDC_SCALE_SYSTEM},
     [](CLinePage& page, CDataExchange* pDX, int) {
         unsigned char system = kScalePaper;
         DDX_CBScaleSystem(0, pDX, IDC_SCALE_SYSTEM, system);
         if (system != kScaleIndeterminate) page.SetPropText(kPropScaleSystem, system, 1);
     }},
    {{IDC_PEN_ALIGNMENT}, [](CLinePage& page, CDataExchange* pDX, int bAll) {
         TransferCheck(page, pDX, IDC_PEN_ALIGNMENT, bAll, page.m_nLastAlignment, kPropPenAlignment);
     }}};

void CLinePage::SetPreviewProperties(int bAll) {
    if (m_pPreviewGraphic == nullptr) return;
    TransferToPreview(*this, Preview::kRows, bAll);
    // Preview writes go to the graphics of all pages, including the brush properties of the Brush page. This preview
    // has no brush.
    ::GraphicSetBrushStyle(m_pPreviewGraphic, 0);
    if (CGraphicPropertySheet* sheet = GetSheet()) sheet->UpdatePreview(1);
}

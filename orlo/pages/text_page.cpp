// CTextPage: exchange of font, height, style and justification, and the preview with its sample text.

#include "orlo/pages/text_page.h"

#include "orlo/controls/control_items.h"
#include "orlo/controls/font_list.h"
#include "orlo/controls/font_size_control.h"
#include "orlo/exchange/ddp.h"
#include "orlo/exchange/ddx.h"
#include "orlo/exchange/indeterminate_text.h"
#include "orlo/exchange/window_text.h"
#include "orlo/frame/graphic_property_sheet.h"
#include "orlo/host/owners.h"
#include "orlo/host/strings.h"
#include "orlo/host/text.h"
#include "orlo/pages/preview_rows.h"
#include "orlo/resources/resource.h"

IMPLEMENT_DYNAMIC(CTextPage, CGraphicPropertyPage)

namespace {

constexpr int kEffectBoxes[] = {IDC_STRIKETHROUGH, IDC_HIDDEN, IDC_ALL_CAPS, IDC_UNDERLINE, IDC_TEXT_BOX};

constexpr double kUsualSize = 8.0;
constexpr int kFaceTextSize = 128;
constexpr double kSampleHeight = 2.0;

} // namespace

BEGIN_MESSAGE_MAP(CTextPage, CGraphicPropertyPage)
ON_CBN_SELCHANGE(IDC_FONT_FACE, &ThisClass::OnFontChange)
END_MESSAGE_MAP()

CTextPage::CTextPage()
    : CGraphicPropertyPage(kTemplate, 0), m_dSize(kUsualSize), m_dwColor(kColorByLayer), m_wStyle{0, 0}, m_wFormat(0),
      m_bFirstExchange(1) {}

void CTextPage::DoDataExchange(CDataExchange* pDX) {
    DDP_Text(pDX, IDC_FONT_FACE, m_strFont, kPropTextFont);
    DDX_CBString(1, pDX, IDC_FONT_FACE, m_strFont);

    ExchangeSize(pDX);

    DDP_Bits(pDX, IDC_FONT_STYLE, m_wStyle, kPropTextStyle);
    DDX_CBFontStyle(1, pDX, IDC_FONT_STYLE, m_wStyle);

    DDP_Text(pDX, IDC_TEXT_COLOR, m_dwColor, kPropPenColor);
    DDX_CBTableColor(1, pDX, IDC_TEXT_COLOR, m_dwColor);

    // Binding requires the status table, which does not exist at the first exchange.
    if (!m_bFirstExchange) {
        for (const int box : kEffectBoxes)
            DDP_TextSetAt(pDX, box, m_wStyle, kPropTextStyle);
    }
    DDX_ChkBoxEffects(1, pDX, m_wStyle);

    DDP_Text(pDX, IDC_JUSTIFY_LEFT, m_wFormat, kPropTextFormat);
    DDX_Radio(1, pDX, IDC_JUSTIFY_LEFT, m_wFormat);
    m_formats.Exchange(pDX, IDC_JUSTIFY_LEFT);

    DDP_PostProcessing(pDX);
    m_bFirstExchange = 0;
}

void CTextPage::ExchangeSize(CDataExchange* pDX) {
    DDP_Text(pDX, IDC_FONT_SIZE, m_dSize, kPropTextSize);
    if (!DDX_CBFontSize(pDX->m_bSaveAndValidate, pDX, IDC_FONT_SIZE, m_dSize))
        ShowBlank(::GetDlgItem(m_hWnd, IDC_FONT_SIZE));
    if (!IsEdited(IDC_FONT_SIZE)) return;
    if (IsNearlyIndeterminate(m_dSize))
        ::MessageBeep(MB_ICONWARNING); // the text is ignored
    else
        DDV_FontSize(1, pDX, m_dSize);
}

void CTextPage::OnFontChange() {
    const HWND faces = ::GetDlgItem(m_hWnd, IDC_FONT_FACE), sizes = ::GetDlgItem(m_hWnd, IDC_FONT_SIZE);
    char face[kFaceTextSize] = "";
    const ControlItems faceItems = ControlItems::OfCombo(faces), sizeItems = ControlItems::OfCombo(sizes);
    faceItems.GetText(faceItems.Selected(), face, sizeof face);

    const int selected = sizeItems.Selected();
    const CString size = ShownText(sizes);
    const FontListRequest request = {FontSizeControlOf(sizes), face};
    FillFontDropDown(sizes, reinterpret_cast<LPARAM>(&request));
    sizeItems.Select(size.IsEmpty() ? selected : sizeItems.FindOrAdd(size));
}

void* CTextPage::CreatePreviewGraphic() {
    const orlo::host::OwnedVertex vertex(::VertexNewEx(0, 0, 0));
    if (vertex.get() == nullptr) return nullptr;
    GraphicStruct* const graphic = ::GraphicNewEx(kGraphicText, 0, 1);
    if (graphic == nullptr) return nullptr;
    char sample[64] = "";
    ::DrawCoreLoadString(kStringSampleText, sample, sizeof sample);
    ::TextSetVWHAEx(graphic, vertex.get(), 0.0, kSampleHeight, 0.0, sample);
    ::TextExternalJustify(graphic, 0);
    return graphic;
}

struct CTextPage::Preview {
    static const PreviewRow<CTextPage> kRows[4];
};

const PreviewRow<CTextPage> CTextPage::Preview::kRows[] = {
    {{IDC_FONT_FACE},
     [](CTextPage& page, CDataExchange* pDX, int) {
         if (DDX_CBString(0, pDX, IDC_FONT_FACE, page.m_strFont)) page.SetPropText(kPropTextFont, page.m_strFont, 1);
     }},
    {{IDC_TEXT_COLOR},
     [](CTextPage& page, CDataExchange* pDX, int) { TransferColor(page, pDX, IDC_TEXT_COLOR, kPropPenColor); }},
    {{IDC_FONT_STYLE, IDC_STRIKETHROUGH, IDC_HIDDEN, IDC_ALL_CAPS, IDC_UNDERLINE, IDC_TEXT_BOX},
     [](CTextPage& page, CDataExchange* pDX, int) {
         if (DDX_CBFontStyle(0, pDX, IDC_FONT_STYLE, page.m_wStyle) && DDX_ChkBoxEffects(0, pDX, page.m_wStyle))
             page.SetPropBits(kPropTextStyle, page.m_wStyle, 1);
     }},
    {{IDC_JUSTIFY_LEFT}, [](CTextPage& page, CDataExchange* pDX, int) {
         if (DDX_Radio(0, pDX, IDC_JUSTIFY_LEFT, page.m_wFormat)) page.SetPropText(kPropTextFormat, page.m_wFormat, 1);
     }}};

void CTextPage::SetPreviewProperties(int bAll) {
    if (m_pPreviewGraphic == nullptr) return;
    TransferToPreview(*this, Preview::kRows, bAll);
    if (CGraphicPropertySheet* sheet = GetSheet()) sheet->UpdatePreview(1);
}

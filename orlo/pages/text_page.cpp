// CTextPage.

#include "orlo/pages/text_page.h"

#include "orlo/binding/indeterminate.h"
#include "orlo/controls/control_items.h"
#include "orlo/controls/font_list.h"
#include "orlo/controls/font_size_control.h"
#include "orlo/exchange/ddp.h"
#include "orlo/exchange/ddx.h"
#include "orlo/exchange/indeterminate_text.h"
#include "orlo/frame/graphic_property_sheet.h"
#include "orlo/host/owners.h"
#include "orlo/host/strings.h"
#include "orlo/host/text.h"
#include "orlo/pages/passed_over.h"
#include "orlo/resources/resource.h"

IMPLEMENT_DYNAMIC(CTextPage, CGraphicPropertyPage)

namespace {

constexpr int kEffectBoxes[] = {IDC_STRIKETHROUGH, IDC_HIDDEN, IDC_ALL_CAPS, IDC_UNDERLINE, IDC_TEXT_BOX};

constexpr double kUsualSize = 8.0;
constexpr int kFaceTextSize = 128;
constexpr int kSizeTextSize = 256;
constexpr double kSampleHeight = 2.0;

// What a combo shows: its selected item, else its text.
CString ShownText(HWND combo) {
    char text[kSizeTextSize] = "";
    const ControlItems items = ControlItems::OfCombo(combo);
    const int selected = items.Selected();
    if (selected == CB_ERR)
        ::GetWindowTextA(combo, text, sizeof text);
    else
        items.GetText(selected, text, sizeof text);
    return text;
}

// The item of that text, which joins the list if it is not there. One that only begins with it is another height.
int FindOrAdd(const ControlItems& items, const CString& text) {
    const int index = items.FindExact(text);
    if (index != CB_ERR) return index;
    items.Add(text);
    return items.FindExact(text);
}

} // namespace

BEGIN_MESSAGE_MAP(CTextPage, CGraphicPropertyPage)
ON_CBN_SELCHANGE(IDC_FONT_FACE, &ThisClass::OnFontChange)
END_MESSAGE_MAP()

CTextPage::CTextPage()
    : CGraphicPropertyPage(kTemplate, 0), m_dSize(kUsualSize), m_dwColor(kColorByLayer), m_wStyle{0, 0},
      m_wFormat(0), m_bFirstExchange(1) {}

CTextPage::~CTextPage() = default;

BOOL CTextPage::OnInitDialog() {
    CGraphicPropertyPage::OnInitDialog();
    return TRUE;
}

void CTextPage::DoDataExchange(CDataExchange* pDX) {
    DDP_Text(pDX, IDC_FONT_FACE, m_strFont, kPropTextFont);
    DDX_CBString(1, pDX, IDC_FONT_FACE, m_strFont);

    DDP_Text(pDX, IDC_FONT_SIZE, m_dSize, kPropTextSize);
    DDX_CBFontSize(pDX->m_bSaveAndValidate, pDX, IDC_FONT_SIZE, m_dSize);
    if (!IsNearlyIndeterminate(m_dSize))
        DDV_FontSize(1, pDX, m_dSize);
    else
        TellPassedOver(*this, pDX, IDC_FONT_SIZE);

    DDP_Bits(pDX, IDC_FONT_STYLE, m_wStyle, kPropTextStyle);
    DDX_CBFontStyle(1, pDX, IDC_FONT_STYLE, m_wStyle);

    DDP_Text(pDX, IDC_TEXT_COLOR, m_dwColor, kPropPenColor);
    DDX_CBTableColor(1, pDX, IDC_TEXT_COLOR, m_dwColor);

    // The first exchange comes before there is a status of controls to bind.
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

void CTextPage::OnFontChange() {
    const HWND faces = ::GetDlgItem(m_hWnd, IDC_FONT_FACE), sizes = ::GetDlgItem(m_hWnd, IDC_FONT_SIZE);
    char face[kFaceTextSize] = "";
    const ControlItems faceItems = ControlItems::OfCombo(faces), sizeItems = ControlItems::OfCombo(sizes);
    faceItems.GetText(faceItems.Selected(), face, sizeof face);

    const int selected = sizeItems.Selected();
    const CString size = ShownText(sizes);
    CWnd* const object = CWnd::FromHandlePermanent(sizes);
    const bool isSizes = object && object->IsKindOf(RUNTIME_CLASS(CFontSizeControl));
    const FontListRequest request = {isSizes ? static_cast<CFontSizeControl*>(object) : nullptr, face};
    FillFontDropDown(sizes, reinterpret_cast<LPARAM>(&request));
    sizeItems.Select(size.IsEmpty() ? selected : FindOrAdd(sizeItems, size));
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

bool CTextPage::IsStyleWanted(int bAll) {
    if (bAll || GetControlStatus(IDC_FONT_STYLE)) return true;
    for (const int box : kEffectBoxes) {
        if (GetControlStatus(static_cast<unsigned int>(box))) return true;
    }
    return false;
}

void CTextPage::SetPreviewProperties(int bAll) {
    if (m_pPreviewGraphic == nullptr) return;
    CDataExchange dx(this, TRUE);

    if (bAll || GetControlStatus(IDC_FONT_FACE)) {
        if (DDX_CBString(0, &dx, IDC_FONT_FACE, m_strFont)) SetPropText(kPropTextFont, m_strFont, 1);
    }
    if (bAll || GetControlStatus(IDC_TEXT_COLOR)) {
        unsigned long color = kIndeterminateId;
        if (DDX_CBTableColor(0, &dx, IDC_TEXT_COLOR, color)) SetPropText(kPropPenColor, color, 1);
    }
    if (IsStyleWanted(bAll)) {
        if (DDX_CBFontStyle(0, &dx, IDC_FONT_STYLE, m_wStyle) && DDX_ChkBoxEffects(0, &dx, m_wStyle))
            SetPropBits(kPropTextStyle, m_wStyle, 1);
    }
    if (bAll || GetControlStatus(IDC_JUSTIFY_LEFT)) {
        if (DDX_Radio(0, &dx, IDC_JUSTIFY_LEFT, m_wFormat)) SetPropText(kPropTextFormat, m_wFormat, 1);
    }
    if (CGraphicPropertySheet* sheet = GetSheet()) sheet->UpdatePreview(1);
}

// Data exchange of font properties: style, height and effects of a text.

#include "orlo/exchange/ddx_font.h"

#include "orlo/binding/indeterminate.h"
#include "orlo/controls/control_items.h"
#include "orlo/controls/font_list.h"
#include "orlo/controls/font_size_control.h"
#include "orlo/exchange/ddx_button.h"
#include "orlo/exchange/failure.h"
#include "orlo/exchange/indeterminate_text.h"
#include "orlo/exchange/window_text.h"
#include "orlo/host/drawing.h"
#include "orlo/host/words.h"
#include "orlo/resources/resource.h"

namespace {

constexpr unsigned short kStyleBits = kTextItalic | kTextBold;
constexpr int kTextSizeKind = 1; // argument of DrawingStdNumericToText
constexpr int kSizeTextSize = 0x100;

struct Effect {
    int nIDC;
    unsigned short bit;
};
constexpr Effect kEffects[] = {{IDC_STRIKETHROUGH, kTextStrikethrough},
                               {IDC_HIDDEN, kTextHidden},
                               {IDC_ALL_CAPS, kTextAllCaps},
                               {IDC_UNDERLINE, kTextUnderline},
                               {IDC_TEXT_BOX, kTextBox}};

void SetBits(unsigned short& word, unsigned short mask, unsigned short bits) {
    word = static_cast<unsigned short>((word & ~mask) | bits);
}

void SaveEffect(CDataExchange* pDX, const Effect& effect, unsigned short& mask, unsigned short& values) {
    unsigned short state = 0;
    DDX_Check(1, pDX, effect.nIDC, state);
    if (!IsIndeterminate(state)) {
        SetBits(mask, effect.bit, 0);
    } else if (!(mask & effect.bit)) {
        state = 0;
        ::SendMessageA(pDX->PrepareCtrl(effect.nIDC), BM_SETCHECK, BST_UNCHECKED, 0);
    }
    if (!IsIndeterminate(state)) SetBits(values, effect.bit, state ? effect.bit : 0);
}

void LoadEffect(CDataExchange* pDX, const Effect& effect, unsigned short mask, unsigned short values) {
    unsigned short state = mask & effect.bit ? Indeterminate<unsigned short>::Value() : (values & effect.bit) != 0;
    DDX_Check(1, pDX, effect.nIDC, state);
}

void SaveSize(CFontSizeControl& control, double& size) {
    size = Indeterminate<double>::Value();
    control.ReConvertFontSize(ShownText(control.m_hWnd), size);
}

bool LoadSize(CFontSizeControl& control, double size) {
    char text[kSizeTextSize];
    if (!::DrawingStdNumericToText(control.m_pDrawing, size, text, sizeof text, kTextSizeKind)) return false;
    const ControlItems items = ControlItems::OfCombo(control.m_hWnd);
    items.Select(items.FindOrAdd(text));
    return true;
}

} // namespace

int DDX_CBFontStyle(int, CDataExchange* pDX, unsigned int nIDC, unsigned short* pStyle) {
    const HWND combo = pDX->PrepareCtrl(static_cast<int>(nIDC));
    const ControlItems items = ControlItems::OfCombo(combo);
    unsigned short &mask = pStyle[0], &values = pStyle[1];
    if (!pDX->m_bSaveAndValidate) {
        FillFontDropDown(combo, 0);
        items.Select(mask & kStyleBits ? -1 : values & kStyleBits);
        return 1;
    }
    const int selected = items.Selected();
    if (selected == CB_ERR) return 1;
    SetBits(values, kStyleBits, static_cast<unsigned short>(selected & kStyleBits));
    SetBits(mask, kStyleBits, 0);
    return 1;
}

int DDX_CBFontSize(int bReport, CDataExchange* pDX, unsigned int nIDC, double& size) {
    CFontSizeControl* const control = FontSizeControlOf(pDX->PrepareCtrl(static_cast<int>(nIDC)));
    if (!control) return FailExchange(bReport, pDX);
    if (pDX->m_bSaveAndValidate) {
        SaveSize(*control, size);
        return 1;
    }
    if (IsNearlyIndeterminate(size)) return 1;
    return LoadSize(*control, size) ? 1 : FailExchange(bReport, pDX);
}

int DDX_ChkBoxEffects(int, CDataExchange* pDX, unsigned short* pStyle) {
    for (const Effect& effect : kEffects) {
        if (pDX->m_bSaveAndValidate)
            SaveEffect(pDX, effect, pStyle[0], pStyle[1]);
        else
            LoadEffect(pDX, effect, pStyle[0], pStyle[1]);
    }
    return 1;
}

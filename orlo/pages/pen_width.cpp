// Converts pen widths to and from text.

#include "orlo/pages/pen_width.h"

#include "orlo/binding/indeterminate.h"
#include "orlo/controls/control_items.h"
#include "orlo/exchange/indeterminate_text.h"
#include "orlo/exchange/window_text.h"
#include "orlo/host/drawing.h"
#include "orlo/host/units.h"
#include "orlo/samples/pen_width_list.h"

namespace {

constexpr char kSection[] = "PenWidths";

void SelectText(HWND combo, const char* text) {
    const ControlItems items = ControlItems::OfCombo(combo);
    items.Select(items.FindOrAdd(text));
}

// Returns 0 in silent mode. With bReport it beeps and does not return.
int RejectWidth(int bReport, CDataExchange* pDX) {
    if (bReport) {
        ::MessageBeep(MB_ICONWARNING);
        pDX->Fail();
    }
    return 0;
}

} // namespace

int TextToPenWidth(DrawingStruct* drawing, unsigned char scaleSystem, const char* text, double* value) {
    if (drawing == nullptr) return 0;
    if (scaleSystem == kScaleWorld) return ::DrawingStdTextToNumeric(drawing, text, value, 0);
    if (!::UnitsTextToNumericEx(drawing->pUnits, kUnitPenWidth, 0, text, value)) return 0;
    *value *= kInchesPerMillimeter;
    return 1;
}

int PenWidthToText(DrawingStruct* drawing, unsigned char scaleSystem, double value, char* buffer, int size) {
    if (drawing == nullptr) return 0;
    if (scaleSystem == kScaleWorld) return ::DrawingStdNumericToText(drawing, value, buffer, size, 0);
    return ::UnitsNumericToTextEx(drawing->pUnits, 0, kUnitPenWidth, value * kMillimetersPerInch, buffer, size, 0, 1);
}

int DDX_CBPenWidth(int bReport, CDataExchange* pDX, int nIDC, double& value, unsigned char scaleSystem,
                   DrawingStruct* drawing) {
    const CWnd* const control = pDX->m_pDlgWnd->GetDlgItem(nIDC);
    const HWND combo = control != nullptr ? control->m_hWnd : nullptr;
    if (pDX->m_bSaveAndValidate) {
        const CString text = ShownText(combo);
        if (IsIndeterminateText(text)) return 1;
        if (TextToPenWidth(drawing, scaleSystem, text, &value)) return 1;
        pDX->PrepareCtrl(nIDC); // so that the width gets the focus for the next keystroke
        return RejectWidth(bReport, pDX);
    }
    if (IsIndeterminate(value)) {
        SelectText(combo, kIndeterminateStars);
        return 1;
    }
    char text[256];
    if (!PenWidthToText(drawing, scaleSystem, value, text, sizeof text)) return RejectWidth(bReport, pDX);
    SelectText(combo, text);
    return 1;
}

void AddPenWidthItem(const char* item, CDataExchange* pDX, int nIDC, DrawingStruct* drawing,
                     unsigned char scaleSystem) {
    double value = 0.0;
    if (TextToPenWidth(drawing, scaleSystem, item, &value)) DDX_CBPenWidth(0, pDX, nIDC, value, scaleSystem, drawing);
}

void FillPenWidths(CDataExchange* pDX, int nIDC, DrawingStruct* drawing, unsigned char scaleSystem) {
    if (pDX->m_bSaveAndValidate || drawing == nullptr) return;
    if (drawing->pApplication == nullptr || drawing->pUnits == nullptr) return;
    CPenWidthList widths;
    for (const char* item = widths.First(drawing->pApplication, drawing->pUnits, kSection, kUnitPenWidth);
         item != nullptr; item = widths.Next())
        AddPenWidthItem(item, pDX, nIDC, drawing, scaleSystem);
}

int DDX_CBScaleSystem(int, CDataExchange* pDX, int nIDC, unsigned char& value) {
    const HWND combo = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate) {
        const LRESULT index = ::SendMessageA(combo, CB_GETCURSEL, 0, 0);
        value = index == 0 ? kScaleWorld : index == 1 ? kScalePaper : kScaleIndeterminate;
    } else {
        const int index = value == kScaleWorld ? 0 : value == kScalePaper ? 1 : -1;
        ::SendMessageA(combo, CB_SETCURSEL, static_cast<WPARAM>(index), 0);
    }
    return 1;
}

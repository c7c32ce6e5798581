// Exchanges angles and scales, which show "Indeterminate" if values differ.

#include "orlo/pages/angle_and_scale.h"

#include <algorithm>
#include <cfloat>

#include "orlo/binding/indeterminate.h"
#include "orlo/exchange/ddx.h"
#include "orlo/host/drawing.h"

int DDX_TextAngle(CDataExchange* pDX, int nIDC, double& value, DrawingStruct* pDrawing) {
    CString text;
    if (pDX->m_bSaveAndValidate) {
        DDX_Text(0, pDX, nIDC, text);
        if (text != kIndeterminateWord) return ::DrawingStdTextToAngle(pDrawing, text, &value, 0) ? 1 : 0;
        value = Indeterminate<double>::Value();
        return 1;
    }
    char shown[64] = "";
    if (IsIndeterminate(value))
        text = kIndeterminateWord;
    else if (::DrawingStdAngleToText(pDrawing, value, shown, sizeof shown, 0))
        text = shown;
    else
        return 0;
    DDX_Text(0, pDX, nIDC, text);
    return 1;
}

int DDX_TextScale(int bReport, CDataExchange* pDX, int nIDC, double& value) {
    if (pDX->m_bSaveAndValidate) {
        value = 0.0;
        CString text;
        DDX_Text(bReport, pDX, nIDC, text);
        if (text == kIndeterminateWord) {
            value = Indeterminate<double>::Value();
            return 1;
        }
    } else if (IsIndeterminate(value)) {
        CString text(kIndeterminateWord);
        return DDX_Text(bReport, pDX, nIDC, text);
    } else {
        value = std::clamp<double>(value, FLT_MIN, FLT_MAX);
    }
    return DDX_Text(bReport, pDX, nIDC, value);
}

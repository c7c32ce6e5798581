// Implements DDX_TextAngle.

#include "orlo/pages/angle_text.h"

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

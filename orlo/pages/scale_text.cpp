// Implements DDX_TextScale.

#include "orlo/pages/scale_text.h"

#include <algorithm>
#include <cfloat>

#include "orlo/binding/indeterminate.h"
#include "orlo/exchange/ddx.h"

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

// Data exchange of a drawing scale with a combo box of scale texts.

#include "orlo/exchange/ddx_scale.h"

#include "orlo/binding/fuzzy.h"
#include "orlo/controls/control_items.h"
#include "orlo/exchange/ddx_list.h"
#include "orlo/exchange/failure.h"
#include "orlo/host/units.h"
#include "orlo/resources/resource.h"

namespace {

constexpr int kScaleTextSize = 0x100;

// Returns the index of the item with an equal scale, and replaces `text` by its text. Inserts a new item if there is
// none.
int FindOrInsertScale(const ControlItems& items, TableStruct* units, double scale, CString& text) {
    int place = -1;
    const int count = items.Count();
    for (int i = 0; i < count; ++i) {
        CString item;
        if (!items.GetText(i, item)) continue;
        const double itemScale = ::UnitsGetScaleValue(units, item);
        if (CompareDoubles(&itemScale, &scale) == 0) {
            text = item;
            return i;
        }
        if (itemScale < scale) {
            place = i;
            break;
        }
    }
    return items.Insert(place, text);
}

void MakeScaleText(TableStruct* units, double scale, CString& text) {
    char* const buffer = text.GetBuffer(kScaleTextSize);
    buffer[0] = '\0';
    ::UnitsMakeScaleString(units, scale, buffer, kScaleTextSize);
    text.ReleaseBuffer();
}

} // namespace

int DDX_CBScale(int bReport, CDataExchange* pDX, unsigned int nIDC, CString& text, TableStruct* units, double* pScale) {
    const HWND control = pDX->PrepareCtrl(static_cast<int>(nIDC));
    double scale = 1.0;
    if (pDX->m_bSaveAndValidate) {
        DDX_CBString(bReport, pDX, static_cast<int>(nIDC), text);
        scale = ::UnitsGetScaleValue(units, text);
        if (scale == 0.0) return FailWithPrompt(bReport, pDX, IDS_ENTER_SCALE);
    } else {
        if (text.IsEmpty()) {
            if (!pScale) return FailExchange(bReport, pDX);
            MakeScaleText(units, *pScale, text);
        }
        scale = ::UnitsGetScaleValue(units, text);
    }
    if (pScale) *pScale = scale;

    const ControlItems items = ControlItems::OfCombo(control);
    const int index = FindOrInsertScale(items, units, scale, text);
    if (index >= 0) items.Select(index);
    return 1;
}

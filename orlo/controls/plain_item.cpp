// The data needed to draw an item that is a plain name.

#include "orlo/controls/plain_item.h"

#include "orlo/controls/control_items.h"
#include "orlo/controls/item_drawing.h"

PlainItem RequestedItem(const CComboControl& control, const DRAWITEMSTRUCT& request) {
    PlainItem item = {control.m_nSelected, ""};
    if (!IsNoItem(request)) {
        const ControlItems items = ControlItems::OfCombo(control.m_hWnd);
        const bool found = items.GetText(static_cast<int>(request.itemID), item.text, sizeof item.text);
        item.number = found ? request.itemID + 1 : 0;
    }
    if (item.IsNothing()) item.text[0] = '\0';
    return item;
}

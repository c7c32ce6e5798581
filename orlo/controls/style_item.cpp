// The data needed to draw an item of a control of style samples.

#include "orlo/controls/style_item.h"

#include "orlo/controls/item_drawing.h"
#include "orlo/host/strings.h"

ItemText HostTextItem(DWORD number, unsigned int stringID) {
    ItemText text(number);
    ::DrawCoreLoadString(stringID, text.name(), kHostTextSize);
    return text;
}

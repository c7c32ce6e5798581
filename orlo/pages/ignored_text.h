// The warning about a text that is not a value, where it does not end the exchange.
#pragma once

#include "orlo/frame/graphic_property_page.h"

// Saving, a beep if the user has edited the control. Its property stays as it is.
void WarnOfIgnoredText(CGraphicPropertyPage& page, CDataExchange* pDX, int nID);

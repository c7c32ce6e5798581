// What the user hears of a text that is no value and ends no exchange.
#pragma once

#include "orlo/frame/graphic_property_page.h"

// Saving, a beep if the user has touched the control. Its property stays as it is.
void TellPassedOver(CGraphicPropertyPage& page, CDataExchange* pDX, int nID);

// The page with the extended data (XDATA) of a DXF entity, defined by a table of rows.
#pragma once

#include "orlo/host/records.h"

class CGraphicPropertySheet;

// Adds the page if exactly one graphic is selected and has extended data.
void AddExtendedDataPage(CGraphicPropertySheet* sheet, GraphicStruct* selection);

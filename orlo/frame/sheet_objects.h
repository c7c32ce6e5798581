// The graphics that the pages of a sheet work on.
#pragma once

#include "orlo/binding/object_set.h"

class CGraphicPropertySheet;

// The selection (bPreview 0) or the preview group. Empty without a sheet.
ObjectSet ObjectsOf(CGraphicPropertySheet* sheet, int bPreview);

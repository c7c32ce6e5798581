// The graphics that the pages of a sheet work on.
#pragma once

#include "orlo/binding/object_set.h"

class CGraphicPropertySheet;

// Returns the selection (bPreview 0) or the preview group; empty without a sheet. access: null for the property tables.
ObjectSet ObjectsOf(CGraphicPropertySheet* sheet, int bPreview, PropertyAccess* access = nullptr);

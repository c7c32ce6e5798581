// The graphics that the pages of a sheet work on.

#include "orlo/frame/sheet_objects.h"

#include "orlo/frame/graphic_property_sheet.h"

ObjectSet ObjectsOf(CGraphicPropertySheet* sheet, int bPreview, PropertyAccess* access) {
    if (sheet == nullptr) return ObjectSet(nullptr, 0, bPreview != 0);
    if (bPreview) return ObjectSet(sheet->GetPreviewGroup(), kAllGraphics, true, access);
    return ObjectSet(static_cast<GraphicStruct*>(sheet->GetGraphics()), sheet->GetGraphicFlags(), false, access);
}

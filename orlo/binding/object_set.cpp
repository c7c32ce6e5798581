#include "orlo/binding/object_set.h"

#include "orlo/frame/graphic_property_sheet.h"

ObjectSet::ObjectSet(CGraphicPropertySheet* sheet, int bPreview)
    : m_set(sheet == nullptr ? nullptr
            : bPreview       ? sheet->GetPreviewGroup()
                             : static_cast<GraphicStruct*>(sheet->GetGraphics())),
      m_filter(bPreview           ? kAllGraphics
               : sheet != nullptr ? sheet->GetGraphicFlags()
                                  : 0),
      m_preview(bPreview != 0) {}

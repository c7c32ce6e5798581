// The graphics that a page works on: the sheet's selection, or its preview group.
#pragma once

#include "orlo/host/graphic.h"

class CGraphicPropertySheet;

// The walk puts the preview mark on the graphics of the preview group that it gives, and takes it off those of the selection.
class ObjectSet {
public:
    // Empty without a sheet.
    ObjectSet(CGraphicPropertySheet* sheet, int bPreview);

    // position is one 32-bit word of the caller's. Null at the end.
    GraphicStruct* First(void* position) const {
        return m_set ? Marked(::GraphicFirst(m_set, position, 1, m_filter)) : nullptr;
    }
    GraphicStruct* Next(void* position) const {
        return m_set ? Marked(::GraphicNext(m_set, position, 1, m_filter)) : nullptr;
    }

private:
    GraphicStruct* Marked(GraphicStruct* graphic) const {
        if (graphic == nullptr) return nullptr;
        // Written only where it changes: a walk over many graphics should not dirty the memory of them all.
        if (((graphic->dwFlags & kFlagPreview) != 0) != m_preview) graphic->dwFlags ^= kFlagPreview;
        return graphic;
    }

    GraphicStruct* m_set;
    uint32_t m_filter;
    bool m_preview;
};

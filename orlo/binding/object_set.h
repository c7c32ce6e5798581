// The graphics that a page works on: the members of a set that pass a filter.
#pragma once

#include "orlo/host/graphic.h"

// The walk sets the preview mark on the graphics that it returns, or removes it.
class ObjectSet {
public:
    // Without a set it is empty.
    ObjectSet(GraphicStruct* set, uint32_t filter, bool preview) : m_set(set), m_filter(filter), m_preview(preview) {}

    // position is the caller's 32-bit word. Null at the end.
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

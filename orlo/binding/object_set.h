// The graphics that a page works on: the members of a set that match a filter.
#pragma once

#include "orlo/host/graphic.h"

// Iteration sets or clears the flag kFlagPreview of the graphics that it returns.
class ObjectSet {
public:
    // Empty if set is null.
    ObjectSet(GraphicStruct* set, uint32_t filter, bool preview) : m_set(set), m_filter(filter), m_preview(preview) {}

    // position points to the caller's 32-bit position. Returns null at the end.
    GraphicStruct* First(void* position) const {
        return m_set ? Marked(::GraphicFirst(m_set, position, 1, m_filter)) : nullptr;
    }
    GraphicStruct* Next(void* position) const {
        return m_set ? Marked(::GraphicNext(m_set, position, 1, m_filter)) : nullptr;
    }

private:
    GraphicStruct* Marked(GraphicStruct* graphic) const {
        if (graphic == nullptr) return nullptr;
        // Writes only if the flag changes, so that iterating over many graphics does not dirty all their memory.
        if (((graphic->dwFlags & kFlagPreview) != 0) != m_preview) graphic->dwFlags ^= kFlagPreview;
        return graphic;
    }

    GraphicStruct* m_set;
    uint32_t m_filter;
    bool m_preview;
};

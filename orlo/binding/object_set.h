// The graphics that a page works on: the members of a set that match a filter.
#pragma once

#include "orlo/host/graphic.h"

// Finds, reads and writes properties in place of the property tables of the graphics. Values have the types of a
// property table.
class PropertyAccess {
public:
    virtual ~PropertyAccess() = default;
    // Returns whether the graphic has the property, and stores its number for the two functions that follow.
    virtual bool Find(GraphicStruct* graphic, const char* name, int32_t& number) = 0;
    virtual void Get(GraphicStruct* graphic, int32_t number, int vt, void* value) = 0;
    // Returns 0 if the graphic does not accept the value.
    virtual int Set(GraphicStruct* graphic, int32_t number, int vt, const void* value) = 0;
};

// Iteration sets or clears the flag kFlagPreview of the graphics that it returns.
class ObjectSet {
public:
    // Empty if set is null. access: null for the property tables of the graphics.
    ObjectSet(GraphicStruct* set, uint32_t filter, bool preview, PropertyAccess* access = nullptr)
        : m_set(set), m_filter(filter), m_preview(preview), m_access(access) {}

    PropertyAccess* Access() const { return m_access; }

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
    PropertyAccess* m_access;
};

// The kind of styles that a StyleControl shows. Internal to the library.
#pragma once

#include <functional>

#include "orlo/controls/control_item.h"
#include "orlo/samples/style_sample.h"

// A style shown by an item.
struct StyleItem {
    unsigned int style; // identifier
    const char* name;
    TableStruct* table;     // table of the styles; if null, only styles with a name supplied by the host can be shown
    GraphicStruct* graphic; // the sample; without a sample or a viewport, the name is shown
    ViewportStruct* viewport;
};

// A kind has no state, so that all controls share one object.
class StyleKind {
public:
    virtual ~StyleKind() = default;

    // Creates the sample of a control of that width in device pixels.
    virtual SampleGraphic MakeSample(int controlWidth) const = 0;
    // Calls add(text) for each item.
    virtual void ForEachItem(TableStruct* table, const std::function<void(const char*)>& add) const = 0;
    // Draws a whole item without selection and focus. Returns false if the style cannot be shown, in which case neither
    // should be drawn.
    virtual bool DrawStyle(const DRAWITEMSTRUCT& request, const StyleItem& item) const = 0;
    // Returns how far the frame of a selected item moves outward at its far corner, in device pixels.
    virtual SIZE FrameBeyond() const { return {0, 0}; }
};

// Brush styles as a StyleControl shows them: the shape of the sample, the items offered, and drawing. Internal to the
// library.
#pragma once

#include "orlo/controls/style_kind.h"

class BrushStyles : public StyleKind {
public:
    // The differences between combo box and list box.
    struct Layout {
        double ratio;     // sample width relative to its height of 1.0
        bool fitsCell;    // stretch the sample to the aspect ratio of its cell
        double lines;     // number of hatch lines across the sample
        SIZE frameBeyond; // see StyleKind
    };
    explicit BrushStyles(const Layout& layout) : m_layout(layout) {}

    // Creates a box with thin margins: two outer corners with undrawn segments extend it by a hundredth on each side.
    SampleGraphic MakeSample(int controlWidth) const override;
    // Adds an item for "no brush" and then the entries of the table, in table order.
    void ForEachItem(TableStruct* table, const std::function<void(const char*)>& add) const override;
    bool DrawStyle(const DRAWITEMSTRUCT& request, const StyleItem& item) const override;
    SIZE FrameBeyond() const override { return m_layout.frameBeyond; }

private:
    void DrawStyledSample(const DRAWITEMSTRUCT& request, const StyleItem& item) const;

    Layout m_layout;
};
extern const BrushStyles kComboBrushStyles, kListBrushStyles;

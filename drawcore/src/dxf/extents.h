// Computes the extents of a drawing's model space, ignoring layer states.
#pragma once

#include <memory>

#include "drawcore/src/dxf/document.h"
#include "drawcore/src/geometry/extents.h"

namespace dxf {

// Exact for lines, arcs, ellipses and objects made of them, however they are inserted; line widths are ignored. Splines
// are measured by their line segments, texts by their insertion points, because their width depends on the font.
drawcore::Extents ExtentsOf(const Document& drawing);

// Boxes of single entities in their own space; those of blocks are calculated once.
class EntityExtents {
public:
    // The drawing must outlive this object.
    explicit EntityExtents(const Document& drawing);
    ~EntityExtents();

    drawcore::Extents Of(const Entity& entity);

private:
    struct Boxes;
    const Document& drawing_;
    const std::unique_ptr<Boxes> boxes_;
};

} // namespace dxf

// The group of all graphics of a drawing, with a spatial index.
#pragma once

#include "drawcore/src/graphics/spatial_index.h"
#include "drawcore/src/graphics/vertex_graphic.h"

namespace drawcore {

class DrawingRoot : public VertexGraphic {
public:
    SpatialIndex* MemberIndex() const override { return &index_; }

protected:
    void MembersMoved() override { index_.Drop(); }

private:
    mutable SpatialIndex index_;
};

} // namespace drawcore

// The group of all graphics of a drawing, with a spatial index.
#pragma once

#include "drawcore/src/graphics/place_index.h"
#include "drawcore/src/graphics/vertex_graphic.h"

namespace drawcore {

class DrawingRoot : public VertexGraphic {
public:
    PlaceIndex* IndexOfMembers() const override { return &index_; }

protected:
    void MembersMoved() override { index_.Drop(); }

private:
    mutable PlaceIndex index_;
};

} // namespace drawcore

// Looks of graphics, in the terms of the file that their drawing was read from.
#pragma once

#include <map>
#include <vector>

#include "drawcore/src/database/drawing.h"
#include "drawcore/src/graphics/graphic.h"
#include "drawcore/src/save/drawing_patch.h"

namespace drawcore {

class LookExport {
public:
    LookExport(const Drawing& drawing, dxf::DrawingPatch& patch);
    dxf::Look LookOf(const Graphic& graphic);

private:
    dxf::LayerIndex LayerOf(Id id);
    dxf::LineTypeIndex LineTypeOf(Id id);
    dxf::BrushLook BrushOf(const Brush& brush) const;
    static dxf::TextLook TextOf(const Graphic& graphic);

    const Drawing& drawing_;
    dxf::DrawingPatch& patch_;
    std::map<Id, dxf::LayerIndex> layers_;
    std::map<Id, dxf::LineTypeIndex> lineTypes_;
};

// Height of a text as it is seen: attributes follow their insertion.
double SeenHeight(const Graphic& text);

} // namespace drawcore

// Graphics that a program has made, as entities of a file: what entity_import would make them of again.
#pragma once

#include "drawcore/src/dxf/entities.h"
#include "drawcore/src/graphics/graphic.h"

namespace drawcore {

// The shape alone; an insertion's block is left out. SaveError if there is no such entity.
dxf::Entity EntityOf(const Graphic& graphic);

} // namespace drawcore

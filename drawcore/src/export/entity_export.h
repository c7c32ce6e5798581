// Converts graphics created by a program to entities of a file, the inverse of entity_import.
#pragma once

#include "drawcore/src/dxf/entities.h"
#include "drawcore/src/graphics/graphic.h"

namespace drawcore {

// Converts only the shape, for an insertion without its block. Throws SaveError if there is no such entity.
dxf::Entity EntityOf(const Graphic& graphic);

} // namespace drawcore

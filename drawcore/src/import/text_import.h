// Text graphics from TEXT, attributes and MTEXT.
#pragma once

#include <memory>

#include "drawcore/src/dxf/document.h"
#include "drawcore/src/graphics/text_graphic.h"

namespace drawcore {

// Null if there is nothing to read in it. Layer and colour are the caller's to set, but for a colour within an MTEXT.
std::unique_ptr<TextGraphic> ImportText(const dxf::Entity& entity, const dxf::Text& text,
                                        const dxf::TextStyle& style);
std::unique_ptr<TextGraphic> ImportText(const dxf::Entity& entity, const dxf::MText& text,
                                        const dxf::TextStyle& style);

} // namespace drawcore

// Creates text graphics from TEXT, attributes and MTEXT.
#pragma once

#include <memory>

#include "drawcore/src/dxf/document.h"
#include "drawcore/src/graphics/text_graphic.h"

namespace drawcore {

// Returns null if the text is empty. The caller sets the appearance.
std::unique_ptr<TextGraphic> ImportText(const dxf::Entity& entity, const dxf::Text& text);
std::unique_ptr<TextGraphic> ImportText(const dxf::Entity& entity, const dxf::MText& text,
                                        const dxf::Document& document);

} // namespace drawcore

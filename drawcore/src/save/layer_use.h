// Determines whether entities are on a layer, including entities that are not imported.
#pragma once

#include <string>
#include <string_view>

#include "drawcore/src/dxf/document.h"

namespace dxf {

// Returns the name, for messages, of the first record on the layer, or an empty string. The document was read from the
// text; the layer's name is UTF-8.
std::string FirstOnLayer(std::string_view text, const Document& document, const std::string& layer);

} // namespace dxf

// Whether entities are on a layer, those that are not read included.
#pragma once

#include <string>
#include <string_view>

#include "drawcore/src/dxf/document.h"

namespace dxf {

// Returns the first record on the layer, as it is called in messages; empty if there is none. The text is what the
// document was read from; the layer's name is UTF-8.
std::string FirstOnLayer(std::string_view text, const Document& document, const std::string& layer);

} // namespace dxf

// The contents of a document that has been read.
#pragma once

#include "drawcore/src/dxf/document.h"

namespace dxf {

Contents ContentsOf(const Document& document);

} // namespace dxf

// Whether a drawing that was read back is the drawing that was saved.
#pragma once

#include <string>

#include "drawcore/src/database/drawing.h"

namespace drawcore {

// The first difference, for the user; empty if there is none. Identifiers of entries may differ, and of numbers the last
// digits. What `read` lacks are blocks that the program has made, which is no difference.
std::string FirstDifference(const Drawing& saved, const Drawing& read);
// Notes in the graphics of `saved` where their records are in the text of `read`.
void TakeSources(const Drawing& saved, const Drawing& read);

} // namespace drawcore

// Finds an interesting part of a drawing: a window that contains several graphics with different appearances.
#pragma once

#include <optional>

#include "demo/viewer/world.h"

class Document;

// Returns nothing if no selectable graphic has a Pen page.
std::optional<WorldBox> FindVariedWindow(const Document& document);

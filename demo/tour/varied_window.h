// Finds a part of a drawing that is worth a look: a window with several graphics inside that differ in their looks.
#pragma once

#include <optional>

#include "demo/viewer/world.h"

class Document;

// Nothing if no selectable graphic of the drawing has a Pen page.
std::optional<WorldBox> FindVariedWindow(const Document& document);

// A drawing as lines of text, to see whether anything at all has changed: every property of every graphic in its exact
// value, every vertex, and the entries of every table.
#pragma once

#include <string>
#include <vector>

#include "orlo/host/records.h"

std::vector<std::string> DumpDrawing(DrawingStruct* drawing);

// The first lines that differ, for a message; empty if nothing does.
std::string FirstDifference(const std::vector<std::string>& before, const std::vector<std::string>& after);

// The property sets of a source.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "commands.h"
#include "document.h"

namespace suminfo {

struct SourceSets {
    std::vector<NamedStream> streams;
    std::vector<std::string> damage;         // damage of the document's structure
    std::vector<std::string> damagedStreams; // damaged streams, whether or not they are property sets
};

// Returns all property-set streams of a document, or the single stream of a bare file, with an empty name.
SourceSets SetsOf(const Source& source);
// Returns the document's own summary, or the bare stream. Throws Failure if there is none.
NamedStream SummaryOf(const Source& source);
orlo::Bytes ReadFile(const std::string& file);

} // namespace suminfo

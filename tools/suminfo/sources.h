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
    std::vector<std::string> damage;         // of the document that they are in
    std::vector<std::string> damagedStreams; // of all its streams, property sets or not
};

// All property-set streams of a document, or the one that a bare file is (its name then is empty).
SourceSets SetsOf(const Source& source);
// The document's own summary, or the bare stream. Failure if there isn't one.
NamedStream SummaryOf(const Source& source);
orlo::Bytes ReadFile(const std::string& file);

} // namespace suminfo

// The property sets of a source, and the files that a command line names.
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
// The document's own summary, or the bare stream. Failure if there is none.
NamedStream SummaryOf(const Source& source);
orlo::Bytes ReadFile(const std::string& file);

// The files as they were named; with `recursive`, every compound file inside of a folder, in the order of names.
std::vector<std::string> FilesOf(const std::vector<std::string>& named, bool recursive);

} // namespace suminfo

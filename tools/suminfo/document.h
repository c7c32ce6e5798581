// A compound file and the property sets in it, read without the system, which damaged files would hang.
//
//   const Document document(name);
//   for (const NamedStream& set : document.PropertySets()) ...
//
// Every function throws Failure.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "orlo/propset/inspect/value.h"
#include "orlo/summary/compound_file.h"

namespace suminfo {

constexpr char kSummaryStream[] = "\005SummaryInformation";
constexpr char kDocumentSummaryStream[] = "\005DocumentSummaryInformation";

struct NamedStream {
    std::string name; // with the storages it lies in, "Outer/\005Inner"
    orlo::Bytes bytes;
    std::string error; // why there are no more bytes; empty if these are all
};

class Document {
public:
    explicit Document(const std::string& file);

    // Every stream whose name begins with byte 5, in all storages: the document's own first.
    std::vector<NamedStream> PropertySets() const;
    // A stream of the document's own storage, if it exists.
    std::optional<orlo::Bytes> Read(const std::string& name) const;

    // What is damaged in the structure, one text each; PropertySets has what could still be read.
    const std::vector<std::string>& Damage() const { return reader_.Damage(); }
    // The same for each damaged stream, property set or not.
    std::vector<std::string> StreamDamage() const;

private:
    orlo::CompoundReader reader_;
};

} // namespace suminfo

// A compound file and the property sets in it.
//
//   Document document = Document::ForReading(name);
//   for (const NamedStream& set : document.PropertySets()) ...
//
//   Document edited = Document::ForWriting(name);
//   edited.Write("\005SummaryInformation", bytes);
//   edited.Commit();   // all of it, or none: without Commit, or if it fails, the file is as before
//
// Every function throws Failure.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "orlo/propset/inspect/value.h"
#include "owned.h"

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
    // Others may read the file meanwhile, and nobody may write it.
    static Document ForReading(const std::string& file);
    // Nobody else may have the file open.
    static Document ForWriting(const std::string& file);

    // Every stream whose name begins with byte 5, in all storages: the document's own first.
    std::vector<NamedStream> PropertySets() const;
    // A stream of the document's own storage, if it is there.
    std::optional<orlo::Bytes> Read(const std::string& name) const;
    void Write(const std::string& name, const orlo::Bytes& bytes);
    void Commit();

private:
    explicit Document(Owned<IStorage> storage) : storage_(std::move(storage)) {}

    Owned<IStorage> storage_;
};

} // namespace suminfo

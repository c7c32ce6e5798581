// A compound file with its property sets, read without the system's reader, which may hang on damaged files.
//
//   const Document document(name);
//   for (const NamedStream& set : document.PropertySets()) ...
//
// All functions throw Failure.
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
    std::string name; // including its storages, "Outer/\005Inner"
    orlo::Bytes bytes;
    std::string error; // why the bytes are incomplete, or empty
};

class Document {
public:
    explicit Document(const std::string& file);

    // Returns all streams whose names begin with byte 5, in all storages; those of the root storage come first.
    std::vector<NamedStream> PropertySets() const;
    // Returns a stream of the root storage, or nothing if it does not exist.
    std::optional<orlo::Bytes> Read(const std::string& name) const;

    // Returns messages for damage in the structure. PropertySets contains what could be read nevertheless.
    const std::vector<std::string>& Damage() const { return reader_.Damage(); }
    // Returns a message for each damaged stream, whether or not it is a property set.
    std::vector<std::string> StreamDamage() const;

private:
    orlo::CompoundReader reader_;
};

} // namespace suminfo

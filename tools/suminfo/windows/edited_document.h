// A document that is changed in a copy, which is checked and then takes its place in one step.
//
//   EditedDocument document(name);
//   document.Write(kSummaryStream, bytes);
//   document.Commit();   // all of it, or none: without Commit, or if it fails, the file is as before
//
// Every function throws Failure.
#pragma once

#include <map>
#include <optional>
#include <string>

#include "document.h"

namespace suminfo {

class EditedDocument {
public:
    // Nobody else may have the file open; a read-only or damaged one is refused.
    explicit EditedDocument(const std::string& file);

    // A stream of the document's own storage as it was, if it exists.
    std::optional<orlo::Bytes> Read(const std::string& name) const { return document_->Read(name); }
    void Write(const std::string& name, orlo::Bytes bytes) { written_[name] = std::move(bytes); }
    // The last call. Attributes, permissions and the time of creation stay; links are followed.
    void Commit();

private:
    bool IsWritten(const std::u16string& path) const;
    void Check(const std::string& copy) const;

    std::optional<Document> document_; // until the copy takes its place
    std::map<std::string, orlo::Bytes> written_;
};

} // namespace suminfo

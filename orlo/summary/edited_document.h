// EditedDocument: replaces streams of a compound file in a copy, which is verified and then replaces the file in one
// step.
//
//   EditedDocument document(path);
//   document.Write(kSummaryStreamName, bytes);
//   document.Commit();   // the file is unchanged if this fails or is not called
//
// All functions throw std::runtime_error on failure.
#pragma once

#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "orlo/propset/inspect/value.h"
#include "orlo/summary/compound_file.h"

namespace orlo {

// Thrown if the file is not an intact compound file.
class ORLO_API UnfitDocument : public std::runtime_error {
public:
    explicit UnfitDocument(const std::string& text);
    ~UnfitDocument() override;
};

class EditedDocument {
public:
    enum class IfMissing { Fail, Create };

    // Throws if the file is read-only or damaged. On Windows no other program can write it until Commit, and the call
    // throws if another program has it open.
    ORLO_API explicit EditedDocument(const std::filesystem::path& file, IfMissing ifMissing = IfMissing::Fail);
    // Edits a document in memory. Throws if it is damaged.
    ORLO_API explicit EditedDocument(Bytes document);
    ORLO_API ~EditedDocument();

    // Returns the bytes of a stream of the root storage, or nothing if it does not exist. Names are UTF-8 and compared
    // ignoring case.
    ORLO_API std::optional<Bytes> Read(const std::string& name) const;
    ORLO_API void Write(const std::string& name, Bytes bytes);
    // Must be the last call. Preserves the attributes listed in files/file_replacement.h.
    ORLO_API void Commit();
    // Returns the edited document instead.
    ORLO_API Bytes Contents() const;

private:
    class Original;

    void RequireIntact() const;
    std::vector<const CompoundElement*> UnchangedElements(const CompoundReader& file) const;
    bool HasWritten(const CompoundReader& copy) const;
    void Check(const CompoundReader& copy) const;

    std::filesystem::path path_;         // empty for a document in memory
    std::unique_ptr<Original> original_; // null for a new file
    std::map<std::u16string, Bytes> written_;
    mutable std::map<std::string, std::optional<Bytes>> read_; // the contents that edits are based on
};

} // namespace orlo

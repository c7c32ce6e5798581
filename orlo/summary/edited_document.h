// EditedDocument: streams of a compound file are replaced in a copy, which is checked and then takes the place of the
// file in one step.
//
//   EditedDocument document(path);
//   document.Write(kSummaryStreamName, bytes);
//   document.Commit();   // after a failure, and without it, the file is as before
//
// Every function throws std::runtime_error.
#pragma once

#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>

#include "orlo/propset/inspect/value.h"
#include "orlo/summary/compound_file.h"

namespace orlo {

// The file is not a sound compound file.
class ORLO_API UnfitDocument : public std::runtime_error {
public:
    explicit UnfitDocument(const std::string& text);
    ~UnfitDocument() override;
};

class EditedDocument {
public:
    enum class IfMissing { Fail, Create };

    // Until Commit other programs cannot write the file. Throws if another program has it open, if it is read-only or
    // damaged.
    ORLO_API explicit EditedDocument(const std::filesystem::path& file, IfMissing ifMissing = IfMissing::Fail);
    ORLO_API ~EditedDocument();

    // The bytes of a stream outside of inner storages, if it exists. Names are UTF-8, in any case.
    ORLO_API std::optional<Bytes> Read(const std::string& name) const;
    ORLO_API void Write(const std::string& name, Bytes bytes);
    // The last call. What files/file_replacement.h keeps of a file stays.
    ORLO_API void Commit();

private:
    class Original;

    bool IsWritten(const CompoundStream& stream) const;
    void Check(const std::filesystem::path& copy) const;

    std::filesystem::path path_;
    std::unique_ptr<Original> original_; // null for a new file
    std::map<std::string, Bytes> written_;
    mutable std::map<std::string, std::optional<Bytes>> read_; // what edits are based on
};

} // namespace orlo

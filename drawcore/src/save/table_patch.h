// Adds records to the tables of a drawing, formatted like existing records: with handles, owners and markers if those
// have them. Uses free handles.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "drawcore/src/dxf/document.h"
#include "drawcore/src/dxf/names.h"
#include "drawcore/src/save/record_patch.h"

namespace dxf {

class TablePatch {
public:
    TablePatch(TextPatch& patch, const TextDecoder& decoder, const std::string& version)
        : patch_(patch), decoder_(decoder), version_(version) {}

    void AddApplication(const std::string& name);
    // storedName: the name as entities refer to it.
    void AddLayer(const Layer& layer, const std::string& storedName);
    void AddLineType(const LineType& type, const std::string& storedName);
    void AddTextStyle(const TextStyle& style);
    bool HasApplication(const std::string& name);
    // Returns the handle of a block's record, or an empty string if the version or the file has none.
    std::string AddBlockRecord(const std::string& name);
    std::string BlockRecord(const std::string& name);
    // Returns begin and end of the block's record, or nothing if the file has none.
    std::optional<std::pair<size_t, size_t>> FindBlockRecord(const std::string& name);

    // Offsets of the ENDSEC of blocks and entities, of the beginning of the entities, and of the end of the file.
    struct Sections {
        std::optional<size_t> blocksEnd, entities, entitiesEnd;
        size_t fileEnd = 0;
    };
    const Sections& FindSections();
    // For records of other sections. Records with subclass markers also have handles.
    bool HasMarkers() const { return version_ >= "AC1012"; }
    bool HasOwners() const { return version_ >= "AC1015"; }
    bool HasHandles();
    std::string AllocateHandle();
    const TextDecoder& Decoder() const { return decoder_; }
    using Values = std::vector<RecordPatch::Value>;
    std::string LinesOf(const Values& values);

    // Writes the heads of tables and the next free handle, after the last record. Throws SaveError if no handle is
    // left.
    void Finish();

private:
    struct Table {
        size_t head = 0, end = 0;     // offsets of "TABLE" and "ENDTAB"
        std::optional<size_t> sample; // its first record
        int count = 0;
        bool isNew = false;
        std::string handle;
        std::string newLines;
    };
    struct Record {
        std::string name, stored, handle;
        size_t begin = 0;
        bool declared = false;
    };

    void Scan();
    void ScanTables(TagReader& tags);
    void ScanApplication(TagReader& tags);
    void ScanBlockRecord(const Tag& tag);
    void ScanSection(const Tag& tag);
    void RecordHandle(const Tag& tag);
    Record& BlockRecordOf(const std::string& name);
    Table& RequireTable(const char* name);
    std::string Add(const char* name, const char* marker, const Values& values, const Values& extended = {});

    TextPatch& patch_;
    const TextDecoder& decoder_;
    const std::string version_;
    bool scanned_ = false;
    std::map<std::string, Table> tables_;
    std::vector<std::string> applications_;
    std::vector<Record> blockRecords_;
    Names<Record> blockRecordNames_{blockRecords_, decoder_};
    Record blockRecord_; // being read
    Sections sections_;
    std::string section_;             // being read
    std::optional<size_t> tablesEnd_; // offset of the section's ENDSEC
    std::optional<size_t> firstBody_; // offset at which such a section would begin
    std::optional<Group> seed_;       // the header's next free handle
    uint64_t highest_ = 0;
    bool handleAllocated_ = false;
};

} // namespace dxf

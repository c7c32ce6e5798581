// New records in the tables of a drawing, written as that table's own records are: with handles, owners and markers if
// those have them. Handles are free ones.
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
    // With its name as entities have it.
    void AddLayer(const Layer& layer, const std::string& storedName);
    void AddLineType(const LineType& type, const std::string& storedName);
    void AddTextStyle(const TextStyle& style);
    bool HasApplication(const std::string& name);
    // Of a block: the handle of its record, empty where the version or the file has none.
    std::string AddBlockRecord(const std::string& name);
    std::string BlockRecord(const std::string& name);
    // From where to where its record is; none where the file has none.
    std::optional<std::pair<size_t, size_t>> FindBlockRecord(const std::string& name);

    // Where the sections of blocks and entities end (their ENDSEC), where that of entities begins, and the end of the
    // file.
    struct Sections {
        std::optional<size_t> blocksEnd, entities, entitiesEnd;
        size_t fileEnd = 0;
    };
    const Sections& FindSections();
    // For records of other sections. With subclass markers, a record has a handle too.
    bool HasMarkers() const { return version_ >= "AC1012"; }
    bool HasOwners() const { return version_ >= "AC1015"; }
    bool HasHandles();
    std::string TakeHandle();
    const TextDecoder& Decoder() const { return decoder_; }
    using Values = std::vector<RecordPatch::Value>;
    std::string LinesOf(const Values& values);

    // The tables' heads and the next free handle: after the last record. SaveError if there is no handle left.
    void Finish();

private:
    struct Table {
        size_t head = 0, end = 0;     // of "TABLE" and of "ENDTAB"
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
    void NoteBlockRecord(const Tag& tag);
    void NoteSection(const Tag& tag);
    void NoteHandle(const Tag& tag);
    Record& BlockRecordOf(const std::string& name);
    Table& NeedTable(const char* name);
    std::string Add(const char* name, const char* marker, const Values& values, const Values& extended = {});

    TextPatch& patch_;
    const TextDecoder& decoder_;
    const std::string version_;
    bool scanned_ = false;
    std::map<std::string, Table> tables_;
    std::vector<std::string> applications_;
    std::vector<Record> blockRecords_;
    Names<Record> blockRecordNames_{blockRecords_, decoder_};
    Record blockRecord_; // that is being scanned
    Sections sections_;
    std::string section_;             // that is being scanned
    std::optional<size_t> tablesEnd_; // of the ENDSEC of the section
    std::optional<size_t> firstBody_; // where such a section would begin
    std::optional<Group> seed_;       // the header's next free handle
    uint64_t highest_ = 0;
    bool handleTaken_ = false;
};

} // namespace dxf

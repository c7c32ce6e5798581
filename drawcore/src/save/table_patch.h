// New records in the tables of a drawing, written as that table's own records are: with handles, owners and markers if those
// have them. Handles are free ones.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "drawcore/src/dxf/document.h"
#include "drawcore/src/dxf/text_decoding.h"
#include "drawcore/src/save/record_patch.h"

namespace dxf {

class TablePatch {
public:
    TablePatch(TextPatch& patch, const TextDecoder& decoder, const std::string& version)
        : patch_(patch), decoder_(decoder), version_(version) {}

    void AddApplication(const std::string& name);
    void AddLayer(const Layer& layer);
    void AddLineType(const LineType& type);
    void AddTextStyle(const TextStyle& style);
    bool HasApplication(const std::string& name);

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
    using Values = std::vector<RecordPatch::Value>;

    void Scan();
    void ScanTables(TagReader& tags);
    void NoteHandle(const Tag& tag);
    std::string TakeHandle();
    Table& NeedTable(const char* name);
    void Add(const char* name, const char* marker, const Values& values, const Values& extended = {});
    std::string LinesOf(const Values& values);
    bool HasMarkers() const { return version_ >= "AC1012"; }

    TextPatch& patch_;
    const TextDecoder& decoder_;
    const std::string version_;
    bool scanned_ = false;
    std::map<std::string, Table> tables_;
    std::vector<std::string> applications_;
    std::optional<size_t> tablesEnd_; // of the ENDSEC of the section
    size_t firstBody_ = 0;            // where such a section would begin
    std::optional<Group> seed_;       // the header's next free handle
    uint64_t highest_ = 0;
    bool handleTaken_ = false;
};

} // namespace dxf

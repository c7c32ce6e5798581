// Locates the tables of a drawing, and adds records.
#include "drawcore/src/save/table_patch.h"

#include <algorithm>
#include <cstdio>

#include "drawcore/include/drawcore/dxf_document.h"
#include "drawcore/src/dxf/appearance.h"
#include "drawcore/src/dxf/text_decoding.h"

namespace dxf {

namespace {

constexpr char kBlockRecord[] = "BLOCK_RECORD";

std::string Hex(uint64_t number) {
    char text[20];
    std::snprintf(text, sizeof text, "%llX", static_cast<unsigned long long>(number));
    return text;
}

} // namespace

void TablePatch::RecordHandle(const Tag& tag) {
    if (tag.code != kHandle && tag.code != kDimensionStyleHandle) return;
    if (const auto handle = ParseNumber<uint64_t>(tag.Trimmed(), 16)) highest_ = std::max(highest_, *handle);
}

void TablePatch::ScanTables(TagReader& tags) {
    const Tag& tag = tags.Current();
    Table* table = nullptr;
    bool isBlockRecord = false;
    while (!tags.Next().Is(0, "ENDSEC")) {
        RecordHandle(tag);
        if (tag.code == 0) isBlockRecord = table && tag.Is(0, kBlockRecord);
        if (isBlockRecord) ScanBlockRecord(tag);
        if (tag.Is(0, "TABLE")) {
            const size_t head = tag.offset;
            tags.Next();
            table = &tables_[std::string(tag.Trimmed())];
            table->head = head;
        } else if (tag.Is(0, "ENDTAB") && table) {
            table->end = tag.offset;
            table = nullptr;
        } else if (tag.code == 0 && table) {
            ++table->count;
            if (!table->sample) table->sample = tag.offset;
            if (tag.Is(0, "APPID")) ScanApplication(tags);
        } else if (tag.code == kHandle && table && !table->sample) {
            table->handle = tag.Trimmed();
        }
    }
    tablesEnd_ = tag.offset;
}

void TablePatch::ScanApplication(TagReader& tags) {
    const Tag& tag = tags.Current();
    while (tags.Next().code != 2 && tag.code != 0)
        RecordHandle(tag);
    applications_.push_back(decoder_.Decode(tag.Trimmed()));
}

// The handle precedes the name.
void TablePatch::ScanBlockRecord(const Tag& tag) {
    if (tag.code == 0) blockRecord_ = {{}, {}, {}, tag.offset, true};
    if (tag.code == kHandle) blockRecord_.handle = tag.Trimmed();
    if (tag.code != 2) return;
    Record& record = blockRecordNames_.Declare(tag.value);
    record.handle = blockRecord_.handle;
    record.begin = blockRecord_.begin;
}

void TablePatch::ScanSection(const Tag& tag) {
    if (tag.Is(0, "ENDSEC") && section_ == "BLOCKS") sections_.blocksEnd = tag.offset;
    if (tag.Is(0, "ENDSEC") && section_ == "ENTITIES") sections_.entitiesEnd = tag.offset;
}

void TablePatch::Scan() {
    if (scanned_) return;
    scanned_ = true;
    TagReader tags(patch_.Text());
    const Tag& tag = tags.Next();
    while (!tag.Is(0, "EOF")) {
        if (tag.Is(0, "SECTION")) {
            const size_t section = tag.offset;
            section_ = tags.Next().Trimmed();
            if (section_ == "ENTITIES") sections_.entities = section;
            const bool isHead = tag.Is(2, "HEADER") || tag.Is(2, "CLASSES");
            if (!isHead && !firstBody_) firstBody_ = section;
            if (tag.Is(2, "TABLES")) ScanTables(tags);
        } else if (tag.Is(9, "$HANDSEED") && section_ == "HEADER") {
            tags.Next();
            seed_ = Group{tag.code, tag.value, tag.offset, tags.Offset(), 0, false};
        } else {
            RecordHandle(tag);
            ScanSection(tag);
        }
        tags.Next();
    }
    sections_.fileEnd = tag.offset;
    if (!firstBody_) firstBody_ = tag.offset;
    if (!seed_) return;
    if (const auto seed = ParseNumber<uint64_t>(Tag{kHandle, seed_->value}.Trimmed(), 16); seed && *seed > 0)
        highest_ = std::max(highest_, *seed - 1);
}

std::string TablePatch::AllocateHandle() {
    constexpr uint64_t kLast = UINT64_MAX - 1; // so that the following one is valid too
    if (highest_ >= kLast) throw SaveError("the drawing has no unused handles");
    handleAllocated_ = true;
    return Hex(++highest_);
}

bool TablePatch::HasHandles() {
    Scan();
    return HasMarkers() || highest_ > 0;
}

const TablePatch::Sections& TablePatch::FindSections() {
    Scan();
    return sections_;
}

TablePatch::Record& TablePatch::BlockRecordOf(const std::string& name) {
    Scan();
    return blockRecords_[blockRecordNames_.FindUtf8(name)];
}

std::string TablePatch::BlockRecord(const std::string& name) {
    return BlockRecordOf(name).handle;
}

std::string TablePatch::AddBlockRecord(const std::string& name) {
    if (!HasMarkers()) return {};
    Values values = {{2, name}};
    if (HasOwners()) values.push_back({340, "0"}); // has no layout
    return Add(kBlockRecord, "AcDbBlockTableRecord", values);
}

std::optional<std::pair<size_t, size_t>> TablePatch::FindBlockRecord(const std::string& name) {
    const Record& record = BlockRecordOf(name);
    if (!record.declared) return std::nullopt;
    TagReader tags(patch_.Text());
    return std::make_pair(record.begin, RecordPatch(patch_, tags, record.begin).End());
}

bool TablePatch::HasApplication(const std::string& name) {
    Scan();
    return std::find(applications_.begin(), applications_.end(), name) != applications_.end();
}

TablePatch::Table& TablePatch::RequireTable(const char* name) {
    Scan();
    Table& table = tables_[name];
    if (table.head != 0 && table.end == 0)
        throw SaveError(std::string("table ") + name + " has no end; nothing can be added to it");
    if (table.head != 0 || table.isNew) return table;
    table.isNew = true;
    if (HasMarkers()) table.handle = AllocateHandle();
    return table;
}

std::string TablePatch::LinesOf(const Values& values) {
    Scan();
    TagReader tags(patch_.Text());
    const RecordPatch form(patch_, tags, tablesEnd_.value_or(*firstBody_));
    std::string lines;
    for (const RecordPatch::Value& value : values)
        lines += form.Lines(value.code, value.isStored ? value.text : decoder_.Encode(value.text));
    return lines;
}

std::string TablePatch::Add(const char* name, const char* marker, const Values& values, const Values& extended) {
    Table& table = RequireTable(name);
    TagReader tags(patch_.Text());
    std::optional<RecordPatch> sample;
    if (table.sample) sample.emplace(patch_, tags, *table.sample);
    Values record = {{0, name}};
    std::string handle;
    if (sample ? sample->Find(kHandle) != nullptr : HasMarkers()) handle = AllocateHandle();
    if (!handle.empty()) record.push_back({kHandle, handle});
    const bool owned = sample ? sample->Find(kOwner) != nullptr : HasOwners();
    if (owned && !table.handle.empty()) record.push_back({kOwner, table.handle});
    if (sample ? sample->Find(kSubclass) != nullptr : HasMarkers()) {
        record.push_back({kSubclass, "AcDbSymbolTableRecord"});
        record.push_back({kSubclass, marker});
    }
    record.insert(record.end(), values.begin(), values.end());
    constexpr int kCopied[] = {390, 347}; // plot style and material, which are the same for all layers
    for (const int code : kCopied)
        if (const Group* group = sample && table.head != 0 ? sample->Find(code) : nullptr)
            record.push_back({code, decoder_.Decode(group->value)});
    record.insert(record.end(), extended.begin(), extended.end());
    table.newLines += LinesOf(record);
    ++table.count;
    return handle;
}

void TablePatch::AddApplication(const std::string& name) {
    if (HasApplication(name)) return;
    Add("APPID", "AcDbRegAppTableRecord", {{2, name}, {70, "0"}});
    applications_.push_back(name);
}

void TablePatch::AddLayer(const Layer& layer, const std::string& storedName) {
    Values values = {{2, storedName, true},
                     {70, std::to_string(layer.flags)},
                     {62, std::to_string(layer.color)},
                     {6, layer.lineType}};
    if (layer.trueColor >= 0 && version_ >= "AC1018") values.push_back({420, std::to_string(layer.trueColor)});
    if (version_ >= "AC1015") values.push_back({370, std::to_string(layer.lineWeight)});
    Add("LAYER", "AcDbLayerTableRecord", values);
}

void TablePatch::AddLineType(const LineType& type, const std::string& storedName) {
    Values values = {
        {2, storedName, true}, {70, "0"}, {3, type.description}, {72, "65"}, {73, std::to_string(type.dashes.size())}};
    double length = 0;
    for (const double dash : type.dashes)
        length += dash < 0 ? -dash : dash;
    values.push_back({40, RealText(length)});
    for (const double dash : type.dashes) {
        values.push_back({49, RealText(dash)});
        if (HasMarkers()) values.push_back({74, "0"});
    }
    Add("LTYPE", "AcDbLinetypeTableRecord", values);
}

void TablePatch::AddTextStyle(const TextStyle& style) {
    AddApplication("ACAD");
    const int flags = (style.bold ? kFaceIsBold : 0) | (style.italic ? kFaceIsItalic : 0);
    Add("STYLE", "AcDbTextStyleTableRecord",
        {{2, style.name},
         {70, "0"},
         {40, "0.0"},
         {41, "1.0"},
         {50, "0.0"},
         {71, "0"},
         {42, "2.5"},
         {3, style.fontFile},
         {4, ""}},
        {{kApplicationName, "ACAD"}, {kExtendedText, style.fontFace}, {kExtendedLong, std::to_string(flags)}});
}

void TablePatch::Finish() {
    std::string newTables;
    TagReader tags(patch_.Text());
    for (const char* name : {"LTYPE", "LAYER", "STYLE", "APPID", kBlockRecord}) { // line types must precede the layers
                                                                                  // that use them
        Table& table = tables_[name];
        if (table.newLines.empty()) continue;
        if (table.isNew) {
            Values head = {{0, "TABLE"}, {2, name}};
            if (!table.handle.empty()) head.push_back({kHandle, table.handle});
            if (!table.handle.empty() && HasOwners()) head.push_back({kOwner, "0"});
            if (HasMarkers()) head.push_back({kSubclass, "AcDbSymbolTable"});
            head.push_back({70, std::to_string(table.count)});
            newTables += LinesOf(head) + table.newLines + LinesOf({{0, "ENDTAB"}});
            continue;
        }
        patch_.Insert(table.end, table.newLines);
        RecordPatch head(patch_, tags, table.head);
        const Group* most = head.Find(70);
        if (most && Tag{70, most->value}.Integer() < table.count) head.SetValue(*most, std::to_string(table.count));
    }
    if (!newTables.empty() && !tablesEnd_)
        newTables = LinesOf({{0, "SECTION"}, {2, "TABLES"}}) + newTables + LinesOf({{0, "ENDSEC"}});
    if (!newTables.empty()) patch_.Insert(tablesEnd_.value_or(*firstBody_), newTables);
    if (handleAllocated_ && seed_) patch_.Replace(seed_->value, Hex(highest_ + 1));
}

} // namespace dxf

// Reads the structure of a DXF file: sections, header, tables, blocks.

#include "drawcore/src/dxf/reader.h"

#include <system_error>

#include "drawcore/src/dxf/entity_reader.h"
#include "drawcore/src/dxf/record_reader.h"
#include "drawcore/src/dxf/references.h"
#include "drawcore/src/dxf/table_reader.h"
#include "files/file_error.h"
#include "files/open_file.h"

namespace dxf {

namespace {

void RejectOtherFormats(std::string_view bytes) {
    if (bytes.empty()) throw ReadError(0, "the file is empty");
    if (bytes.substr(0, 18) == "AutoCAD Binary DXF") throw ReadError(1, "binary DXF files are not supported");
    if (bytes.substr(0, 2) == "AC" && bytes.size() > 6 && bytes[6] == '\0')
        throw ReadError(0, "this is a DWG file, not a DXF file");
    if (bytes.substr(0, 2) == "\xFF\xFE" || bytes.substr(0, 2) == "\xFE\xFF")
        throw ReadError(1, "the file is UTF-16 text; DXF files have 8-bit characters");
}

class FileReader {
public:
    FileReader(std::string_view bytes, const Progress& progress) : in_(bytes, progress) {}

    Document Read() {
        in_.tags.Next();
        while (!tag_.Is(0, "EOF")) {
            if (!tag_.Is(0, "SECTION"))
                throw ReadError(tag_.line, "expected a section or the end of the file, found group code " +
                                               std::to_string(tag_.code) + " with " + Quoted(tag_.value));
            ReadSection();
            in_.tags.SetContext(nullptr);
            in_.tags.Next();
        }
        entities_.ReportSkipped();
        ResolveReferences(in_);
        return std::move(in_.document);
    }

private:
    // Ends at the section's ENDSEC.
    void ReadSection() {
        sectionLine_ = tag_.line;
        in_.tags.SetContext("a section");
        if (in_.tags.Next().code != 2) throw ReadError(tag_.line, "the section has no name");
        const std::string_view name = tag_.Trimmed();
        if (name == "HEADER")
            ReadHeader();
        else if (name == "TABLES")
            ReadTables();
        else if (name == "BLOCKS")
            ReadBlocks();
        else if (name == "ENTITIES")
            ReadEntities();
        else
            SkipSection();
    }

    // Returns true at the end of the section. Throws ReadError if another one begins instead.
    bool AtSectionEnd() {
        if (!tag_.StartsRecord()) return false;
        const std::string_view name = tag_.Trimmed();
        if (name == "SECTION" || name == "EOF")
            throw ReadError(tag_.line, std::string(name == "EOF" ? "the file ends" : "a section begins") +
                                           " before the section of line " + std::to_string(sectionLine_) +
                                           " has ended");
        return name == "ENDSEC";
    }

    void SkipSection() {
        while (!AtSectionEnd())
            in_.tags.Next();
    }

    void ReadHeader() {
        in_.tags.SetContext("section HEADER");
        std::string_view variable;
        in_.tags.Next();
        while (!AtSectionEnd()) {
            if (tag_.code == 9)
                variable = tag_.Trimmed();
            else
                ReadVariable(in_, variable);
            in_.tags.Next();
        }
    }

    void ReadTables() {
        in_.tags.SetContext("section TABLES");
        in_.tags.SkipRecord();
        while (!AtSectionEnd())
            ReadTableRecord(in_);
    }

    void ReadBlocks() {
        in_.tags.SetContext("section BLOCKS");
        in_.tags.SkipRecord();
        while (!AtSectionEnd()) {
            if (tag_.Is(0, "BLOCK"))
                ReadBlock();
            else
                in_.tags.SkipRecord();
        }
    }

    // A block's entities are read separately, because an insertion among them may add a block.
    void ReadBlock() {
        static const Field<Block> kFields[] = {{2, &Block::name}, {10, &Block::base}, {70, &Block::flags}};
        const uint32_t line = tag_.line;
        Block head;
        head.begin = static_cast<uint32_t>(tag_.offset);
        std::string_view name;
        in_.TakeExtended(); // discards the data of the previous record
        while (in_.NextTag()) {
            if (tag_.code == 2) name = tag_.value;
            in_.SetField(kFields, head, tag_);
        }
        if (const Boxed<ExtendedData> extended = in_.TakeExtended()) head.extended = *extended;
        if (in_.TakeInvalidCoordinate())
            in_.Report(line, "the base point of block " + Quoted(name) + " is out of range; the origin is used");
        constexpr int kExternal = 4;
        if (head.flags & kExternal)
            in_.Report(line, "block " + Quoted(name) + " is an external reference, which is not supported");
        while (!tag_.Is(0, "ENDBLK")) {
            if (tag_.Is(0, "BLOCK") || AtSectionEnd())
                throw ReadError(tag_.line,
                                "block " + Quoted(name) + " of line " + std::to_string(line) + " has no end");
            entities_.Read(head.entities);
        }
        head.end = static_cast<uint32_t>(tag_.offset);
        in_.tags.SkipRecord();
        Block& block = in_.blocks.Declare(name);
        head.name = block.name;
        head.declared = true;
        block = std::move(head);
    }

    void ReadEntities() {
        in_.tags.SetContext("section ENTITIES");
        entities_.CountRecords();
        in_.tags.SkipRecord();
        while (!AtSectionEnd())
            entities_.Read(in_.document.entities);
    }

    RecordReader in_;
    EntityReader entities_{in_};
    const Tag& tag_ = in_.tags.Current();
    uint32_t sectionLine_ = 0;
};

} // namespace

Document Document::Tables() const {
    Document tables;
    tables.header = header;
    tables.layers = layers;
    tables.lineTypes = lineTypes;
    tables.textStyles = textStyles;
    for (const Block& block : blocks)
        tables.blocks.push_back({block.name,
                                 block.stored,
                                 block.declared,
                                 block.base,
                                 block.flags,
                                 {},
                                 block.extended,
                                 block.begin,
                                 block.end});
    return tables;
}

ReadError::ReadError(uint32_t line, const std::string& text)
    : std::runtime_error(line == 0 ? text : "line " + std::to_string(line) + ": " + text), line_(line), text_(text) {}

std::string ReadBytes(const std::filesystem::path& path) {
    constexpr uint64_t kLargest = uint64_t{2} << 30; // larger files are not drawings
    try {
        std::error_code unknown;
        const std::filesystem::file_status status = std::filesystem::status(path, unknown);
        if (std::filesystem::is_directory(status)) throw ReadError(0, "it is a folder");
        if (std::filesystem::exists(status) && !std::filesystem::is_regular_file(status))
            throw ReadError(0, "not a regular file");
        const files::OpenFile file = files::OpenToRead(path);
        const uint64_t size = files::SizeOf(file.get());
        if (size > kLargest) throw ReadError(0, "the file is too large");
        std::string bytes(static_cast<size_t>(size), '\0');
        if (!files::ReadAt(file.get(), 0, bytes.data(), bytes.size())) throw ReadError(0, "the file cannot be read");
        return bytes;
    } catch (const files::FileError& error) {
        throw ReadError(0, error.what());
    }
}

std::string_view TextOf(std::string_view bytes) {
    constexpr std::string_view kMark = "\xEF\xBB\xBF";
    return bytes.substr(0, kMark.size()) == kMark ? bytes.substr(kMark.size()) : bytes;
}

Document Read(std::string_view bytes, const Progress& progress) {
    RejectOtherFormats(bytes);
    Document document = FileReader(TextOf(bytes), progress).Read();
    if (progress) progress(1000);
    return document;
}

} // namespace dxf

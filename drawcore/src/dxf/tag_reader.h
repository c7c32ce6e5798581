// Splits a DXF text into tags, each a group code and the value on the following line. Does not depend on sections and
// entities.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "drawcore/src/dxf/reader.h"

namespace dxf {

// Group codes with the same meaning in every record.
enum GroupCode {
    kHandle = 5,
    kLayerName = 8,
    kSubclass = 100,
    kEmbedded = 101,
    kGroup = 102,
    kDimensionStyleHandle = 105, // of a dimension style, instead of kHandle
    kOwner = 330,
    kExtended = 1000, // this and greater codes
    kExtendedText = 1000,
    kApplicationName = 1001,
    kExtendedBrace = 1002,
    kExtendedReal = 1040,
    kExtendedLong = 1071,
};

inline const Progress kNoProgress;

struct Tag {
    int code = 0;
    std::string_view value; // without the line end, including blanks
    uint32_t line = 0;      // line of the group code; the value is on the next line
    size_t offset = 0;      // offset of the group code's line in the text

    bool Is(int wanted, std::string_view text) const { return code == wanted && Trimmed() == text; }
    // Returns whether the tag begins a new record (code 0).
    bool StartsRecord() const { return code == 0; }
    std::string_view Trimmed() const;

    // Return the value as a number. Throw ReadError if it is not one. Real returns NaN for invalid coordinates: not
    // finite, or so large that a double cannot resolve a unit. Integer reads "7.0" as 7 and clamps to the limits of an
    // int.
    double Real() const;
    int Integer() const;
    bool Flag() const { return Integer() != 0; }
};

// Line ends may be LF, CR LF or CR, even mixed. Comments (code 999) are skipped.
class TagReader {
public:
    // The progress must outlive the reader.
    explicit TagReader(std::string_view bytes, const Progress& progress = kNoProgress);

    // Advances to the next tag. A file must end with the tag EOF: throws ReadError at the end of the text, and for a
    // group code that is not a number.
    const Tag& Next();
    const Tag& Current() const { return tag_; }

    // Advances to the next tag that begins a record.
    const Tag& SkipRecord();

    // Advances to the tag at that offset, from which lines are counted.
    const Tag& Seek(size_t offset);
    // Returns the offset of the next tag.
    size_t Offset() const { return static_cast<size_t>(at_ - begin_); }

    // Sets the description of the current part, for the message about a truncated file; null between sections. The
    // pointer is stored.
    void SetContext(const char* context) { context_ = context; }

private:
    bool NextLine(std::string_view& line);
    int ParseCode(std::string_view text) const;
    [[noreturn]] void FailAtEnd() const;

    const char* at_;
    const char* const begin_;
    const char* const end_;
    size_t reportAt_; // offset at which progress_ is called next
    uint32_t line_ = 0;
    Tag tag_;
    const char* context_ = nullptr;
    const Progress& progress_;
};

// Quotes text of a file for a message: shortened, and reduced to printable ASCII.
std::string Quoted(std::string_view text);

} // namespace dxf

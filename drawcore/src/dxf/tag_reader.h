// Takes a DXF text apart into tags: a group code and the value on the line below it. Knows no sections or
// entities.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "drawcore/src/dxf/reader.h"

namespace dxf {

// Group codes whose meaning is the same in every record.
enum GroupCode {
    kSubclass = 100,
    kEmbedded = 101,
    kGroup = 102,
    kExtended = 1000, // and above
    kExtendedText = 1000,
    kApplicationName = 1001,
    kExtendedBrace = 1002,
    kExtendedReal = 1040,
};

struct Tag {
    int code = 0;
    std::string_view value; // without its line end; blanks as stored
    uint32_t line = 0;      // of the group code; the value is on the next one
    size_t offset = 0;      // of the line of the group code in the text

    bool Is(int wanted, std::string_view text) const { return code == wanted && Trimmed() == text; }
    // A new record begins with a tag of code 0.
    bool StartsRecord() const { return code == 0; }
    std::string_view Trimmed() const;

    // The value as a number; ReadError if it is not one. Real gives NaN for what cannot be a place in a drawing: not
    // finite, or so large that a unit is beyond a double. Integer takes "7.0" as 7 and holds at the limits of
    // an int.
    double Real() const;
    int Integer() const;
    bool Flag() const { return Integer() != 0; }
};

// Line ends may be LF, CR LF or CR, each line its own. Comments (code 999) are passed over.
class TagReader {
public:
    TagReader(std::string_view bytes, const Progress& progress);

    // Goes to the next tag. A file ends with the tag EOF, so that running out of lines is a ReadError, as is
    // a group code that is not a number.
    const Tag& Next();
    const Tag& Current() const { return tag_; }

    // Goes on to the next tag that starts a record.
    const Tag& SkipRecord();

    // Goes to the tag whose group code begins there; lines are counted from it on.
    const Tag& Seek(size_t offset);
    // Where the next tag begins.
    size_t Offset() const { return static_cast<size_t>(at_ - begin_); }

    // What is being read, for the message about a file that ends too early; null between sections. Kept by
    // pointer.
    void SetPlace(const char* place) { place_ = place; }

private:
    bool NextLine(std::string_view& line);
    int ParseCode(std::string_view text) const;
    [[noreturn]] void FailAtEnd() const;

    const char* at_;
    const char* const begin_;
    const char* const end_;
    size_t reportAt_; // offset at which to call progress_ next
    uint32_t line_ = 0;
    Tag tag_;
    const char* place_ = nullptr;
    const Progress& progress_;
};

// Text of a file in quotes for a message: short, and nothing but printable ASCII.
std::string Quoted(std::string_view text);

} // namespace dxf

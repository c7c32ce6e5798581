// SetImage: a property-set stream from any program as plain data, with a list of its irregularities.
//
//   std::vector<Finding> findings;
//   std::optional<SetImage> image = ReadSetImage(data, size, findings);
//   if (!image) ... not a property set; findings has the reason ...
//   for (const ImageSection& section : image->sections) ...
//
// Unlike CPropertySet it preserves vectors of variants, unknown types, and names in 16-bit characters and in their
// original case. An image that is written and read again is equal except for offsets. Memory use is at most a few times
// the size of the stream.
#pragma once

#include <objidl.h>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "orlo/export.h"
#include "orlo/propset/inspect/value.h"

namespace orlo {

struct DictionaryEntry {
    uint32_t id;
    std::string name; // UTF-8; empty if the name is not text in the code page
    Bytes undecoded;  // the stored bytes in that case
};

// complete: the bytes are the value. opaque: unknown type; the bytes extend to the next value, padded to a multiple of
// 4. partial: the value is truncated; the bytes are those present.
enum class ValueState { complete, opaque, partial };

struct ImageProperty {
    uint32_t id = 0;
    uint32_t type = VT_EMPTY;
    uint16_t typeHighHalf = 0; // 0 unless the writer stored something in the high half of the type code
    uint32_t offset = 0;       // of the type code, relative to the start of its section
    ValueState state = ValueState::complete;
    Bytes bytes; // after the type code, without padding
};

struct ImageSection {
    GUID formatId{};
    uint32_t offset = 0;              // relative to the start of the stream
    uint32_t size = 0;                // as stored in its header
    uint32_t count = 0;               // number of properties as stored in its header
    std::optional<uint16_t> codePage; // value of property 1
    std::optional<std::vector<DictionaryEntry>> dictionary;
    std::vector<ImageProperty> properties; // in table order, without the dictionary

    ORLO_API ImageProperty* Find(uint32_t id);
    ORLO_API const ImageProperty* Find(uint32_t id) const;
};

struct SetImage {
    uint16_t byteOrder = 0xFFFE;
    uint16_t version = 0;
    uint32_t osVersion = 0x00020005;
    GUID classId{};
    uint32_t sectionCount = 0; // as stored in the header
    std::vector<ImageSection> sections;

    ORLO_API ImageSection* Find(const GUID& formatId);
    ORLO_API const ImageSection* Find(const GUID& formatId) const;
};

// note: unusual, but all readers accept it. irregular: readers differ, or it deserves attention. damaged: something
// that the stream declares cannot be read.
enum class Severity { note, irregular, damaged };

// Codes of findings: 1xx header, 2xx sections, 3xx properties, 4xx values, 5xx dictionaries. They never change;
// the guide of property sets lists them.
enum class FindingCode {
    headerShort = 100,
    byteOrder = 101,
    formatVersion = 102,
    noSections = 103,
    sectionListShort = 104,
    trailingBytes = 105,
    manySections = 106,
    findingsCut = 107, // ends a list that was truncated

    sectionOffsetPastEnd = 200,
    sectionOffsetInHeader = 201,
    sectionUnaligned = 202,
    sectionSizePastEnd = 203,
    sectionSizeOdd = 204,
    propertyTableShort = 205,
    gapAfterTable = 206,
    spareBytes = 207,
    noCodePage = 208,
    codePageType = 209,
    sectionRepeated = 210,

    offsetPastEnd = 300,
    offsetInTable = 301,
    offsetUnaligned = 302,
    offsetNotAscending = 303,
    idRepeated = 304,
    typeUnknown = 305,
    valueShort = 306,
    valueBeyondSection = 307,
    unusedBytes = 308,
    valuesTooLarge = 309, // overlapping values, larger in total than the stream allows
    valuesOverlap = 310,

    textWithoutNul = 400,
    bytesAfterNul = 401,
    elementsPadded = 402,
    boolForm = 403,
    textUndecodable = 404,
    typeHighHalf = 405,
    clipboardShort = 406,

    dictionaryShort = 500,
    dictionaryTyped = 501,
    nameUndecodable = 502,
    nameWithoutNul = 503,
    nameRepeated = 504,
};

struct Finding {
    FindingCode code;
    Severity severity;
    uint64_t offset;  // relative to the start of the stream
    std::string text; // the object, what was expected and found, and how readers treat it
};

// Returns nothing if the stream is not a property set: too short, another byte order, or truncated before the end of
// its list of sections.
ORLO_API std::optional<SetImage> ReadSetImage(const uint8_t* data, size_t size, std::vector<Finding>& findings);

// Returns the image as a stream: sections and values in order and aligned to 4 bytes, names and texts padded as the
// published format requires, without partial values. Returns nothing if the code page cannot represent a name of the
// dictionary.
ORLO_API std::optional<Bytes> WriteSetImage(const SetImage& image);

} // namespace orlo

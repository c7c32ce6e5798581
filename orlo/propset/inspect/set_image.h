// SetImage: a property-set stream as plain data, whatever its writer did, with a list of everything that is
// wrong with it.
//
//   std::vector<Finding> findings;
//   std::optional<SetImage> image = ReadSetImage(data, size, findings);
//   if (!image) ... not a property set; findings say why ...
//   for (const ImageSection& section : image->sections) ...
//
// It keeps what CPropertySet can't hold: vectors of variants, unknown types, names in
// 16-bit characters and in their own case. An image that is written and read again is equal except for offsets.
// It judges and keeps; it shows nothing. It takes no more memory than a few times the stream.
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
    std::string name; // UTF-8; empty for a name that is not text of the code page
    Bytes undecoded;  // the stored bytes of such a name
};

// complete: the bytes are the value. opaque: unknown type; the bytes are all up to the next value,
// filled up to 4, and are kept. partial: the value is incomplete; the bytes are those present.
enum class ValueState { complete, opaque, partial };

struct ImageProperty {
    uint32_t id = 0;
    uint32_t type = VT_EMPTY;
    uint16_t typeHighHalf = 0; // 0 unless the writer put something after the type code
    uint32_t offset = 0;       // of the type code, from the head of its section
    ValueState state = ValueState::complete;
    Bytes bytes; // after the type code, without padding
};

struct ImageSection {
    GUID formatId{};
    uint32_t offset = 0;              // from the head of the stream
    uint32_t size = 0;                // as its header says
    uint32_t count = 0;               // properties, as its header says
    std::optional<uint16_t> codePage; // property 1
    std::optional<std::vector<DictionaryEntry>> dictionary;
    std::vector<ImageProperty> properties; // in the order of the table, without the dictionary

    ORLO_API ImageProperty* Find(uint32_t id);
    ORLO_API const ImageProperty* Find(uint32_t id) const;
};

struct SetImage {
    uint16_t byteOrder = 0xFFFE;
    uint16_t version = 0;
    uint32_t osVersion = 0x00020005;
    GUID classId{};
    uint32_t sectionCount = 0; // as its header says
    std::vector<ImageSection> sections;

    ORLO_API ImageSection* Find(const GUID& formatId);
    ORLO_API const ImageSection* Find(const GUID& formatId) const;
};

// note: unusual, and every reader copes. irregular: readers differ, or something is odd enough to look at.
// damaged: something that the stream announces can't be read.
enum class Severity { note, irregular, damaged };

// Numbers of findings: 1xx the header, 2xx sections, 3xx properties, 4xx values, 5xx dictionaries. They never
// change; docs/property-sets.md lists them.
enum class FindingCode {
    headerShort = 100,
    byteOrder = 101,
    formatVersion = 102,
    noSections = 103,
    sectionListShort = 104,
    trailingBytes = 105,
    manySections = 106,
    findingsCut = 107, // the last one of a very long list

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
    valuesTooLarge = 309, // values laid over one another, more than the stream could hold
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
    uint64_t offset;  // from the head of the stream
    std::string text; // names it, what it needs and what was found, and what a reader makes of it
};

// Nothing if the stream is not a property set (too short, another byte order, no room for its list of sections).
ORLO_API std::optional<SetImage> ReadSetImage(const uint8_t* data, size_t size, std::vector<Finding>& findings);

// The image as a stream: sections and values in order and aligned to 4 bytes, names and texts padded as the
// published format asks, partial values left out. Nothing if the code page can't represent a name
// of the dictionary.
ORLO_API std::optional<Bytes> WriteSetImage(const SetImage& image);

} // namespace orlo

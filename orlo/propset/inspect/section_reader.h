// SectionReader: reads one section of a SetImage from the stream and reports its faults. Internal to the library.
#pragma once

#include <string>

#include "orlo/propset/inspect/report.h"

namespace orlo {

// Limits the total number of bytes of tables and values to four times the stream's size. Intact streams stay well
// below; values, tables or sections that overlap many times exceed it.
class ReadBudget {
public:
    explicit ReadBudget(size_t streamSize) : remaining_(uint64_t{4} * streamSize) {}
    bool Spend(size_t size) {
        if (size > remaining_) return false;
        remaining_ -= size;
        return true;
    }

private:
    uint64_t remaining_;
};

class SectionReader {
public:
    // `head` points to the section's header of at least 8 bytes; `left` is the number of bytes up to the end of the
    // stream, `available` that up to the next section. `section` has its offset; the reader fills in the rest.
    SectionReader(const uint8_t* head, size_t left, size_t available, std::string place, ReadBudget& budget,
                  Report& report, ImageSection& section);

    // Returns the offset after the last byte that was read, relative to the start of the section.
    size_t Read();

private:
    // An entry of the table, and the value that was read for it.
    struct Entry {
        uint32_t id;
        uint32_t offset;
        size_t available = 0;    // bytes after the type code, up to the next value
        size_t end = 0;          // offset after the bytes that were read, or 0 if there are none
        bool isProperty = false; // false for the dictionary
        ImageProperty property{};
    };

    void ReadTable();
    void CheckTable();
    void CheckRepeatedIds();
    void ReadValues();
    void ReadValue(Entry& entry);
    void ReadContents(Entry& entry); // after the type code
    void ReportTooLarge(Entry& entry);
    void SetValue(Entry& entry, ValueState state, size_t size);
    void ReadCodePage();
    void ReadDictionary(Entry& entry);
    void CheckGaps();
    std::string NameOf(const Entry& entry) const;

    const uint8_t* head_;
    size_t remaining_;
    size_t available_;
    std::string place_;
    ReadBudget& budget_;
    Report& report_;
    ImageSection& section_;
    std::vector<Entry> entries_; // in table order
    std::vector<Entry*> sorted_; // sorted by offset
    size_t reached_ = 0;
};

} // namespace orlo

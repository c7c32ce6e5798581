// SectionReader: one section of a SetImage from the stream, with everything that is wrong with it. Used inside the
// library.
#pragma once

#include <string>

#include "orlo/propset/inspect/report.h"

namespace orlo {

// How many bytes of tables and values may still be taken: four times the stream. What a sound stream holds
// stays far below; values, tables or sections laid over one another many times run out of it.
class Allowance {
public:
    explicit Allowance(size_t streamSize) : left_(uint64_t{4} * streamSize) {}
    bool Spend(size_t size) {
        if (size > left_) return false;
        left_ -= size;
        return true;
    }

private:
    uint64_t left_;
};

class SectionReader {
public:
    // The section's head is at `head`, with at least 8 bytes; `left` are all bytes up to the end of the
    // stream and `room` those up to the next section. The section has its offset; the rest is filled in.
    SectionReader(const uint8_t* head, size_t left, size_t room, std::string place, Allowance& allowance,
                  Report& report, ImageSection& section);

    // The place after the last thing that was read, from the head of the section.
    size_t Read();

private:
    // A line of the table, and what was read of it.
    struct Entry {
        uint32_t id;
        uint32_t offset;
        size_t room = 0;         // after the type code, up to the next value
        size_t end = 0;          // after what was read; 0: nothing was
        bool isProperty = false; // false: the dictionary
        ImageProperty property{};
    };

    void ReadTable();
    void LookAtTable();
    void LookForRepeatedIds();
    void ReadValues();
    void ReadValue(Entry& entry);
    void TooLarge(Entry& entry);
    void Keep(Entry& entry, ValueState state, size_t size);
    void ReadCodePage();
    void ReadDictionary(Entry& entry);
    void LookAtGaps();
    std::string NameOf(const Entry& entry) const;

    const uint8_t* head_;
    size_t left_;
    size_t room_;
    std::string place_;
    Allowance& allowance_;
    Report& report_;
    ImageSection& section_;
    std::vector<Entry> entries_; // in the order of the table
    std::vector<Entry*> sorted_; // by offset
    size_t reached_ = 0;
};

} // namespace orlo

// Indexes a section's properties by ID, for sections too large for linear search. Internal to the library.
#pragma once

#include <afxcoll.h>

#include <unordered_map>

namespace orlo {

// Smaller sections are searched linearly, without the memory of an index: typical ones have a dozen properties, those
// with custom properties a few hundred.
constexpr int kIndexedFrom = 17;

// Records that a property has changed its ID, which makes existing indexes obsolete, also those of other sections. This
// is rare.
void InvalidatePropertyIndexes();

// The first position of each ID in a list of properties.
class PropertyIndex {
public:
    explicit PropertyIndex(const CObList& properties);

    bool IsUpToDate() const;
    POSITION Find(DWORD id) const;
    // Updates the index. Returns false if it has to be rebuilt.
    void AddedAtTail(DWORD id, POSITION position);
    bool Removed(DWORD id);

private:
    std::unordered_map<DWORD, POSITION> places_;
    bool idRepeated_ = false;
    unsigned changes_;
};

} // namespace orlo

// Indexes a section's properties and names by ID, for sections too large for linear search. Internal to the library.
#pragma once

#include <afxcoll.h>

#include <unordered_map>

namespace orlo {

// Smaller sections are searched linearly, which is faster than an index; typical ones have a dozen properties.
constexpr int kIndexedFrom = 17;

// Records that a property has changed its ID, which makes existing indexes obsolete, also those of other sections. This
// is rare.
void NotePropertyIdChange();

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

// The first name of each ID in a dictionary.
class NameIndex {
public:
    explicit NameIndex(const CMapStringToPtr& names);
    // Returns false, leaving name unchanged, if there is none.
    bool Find(DWORD id, CString& name) const;

private:
    const CMapStringToPtr& names_;
    std::unordered_map<DWORD, POSITION> places_;
};

} // namespace orlo

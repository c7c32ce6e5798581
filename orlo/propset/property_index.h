// Look-up of a section's properties by ID and of its names by ID, for sections too large to walk. Used inside
// the library.
#pragma once

#include <afxcoll.h>

#include <unordered_map>

namespace orlo {

// A section of fewer properties or names is walked: that is quicker than an index, and real ones have a
// dozen.
constexpr int kIndexedFrom = 17;

// Says that some property changed its ID: indexes made before are out of date. Which one it was doesn't
// matter, as nobody renumbers properties between many look-ups.
void NotePropertyIdChange();

// The first place of each ID in a list of properties.
class PropertyIndex {
public:
    explicit PropertyIndex(const CObList& properties);

    bool IsUpToDate() const;
    POSITION Find(DWORD id) const;
    // Keeps the index in step; false if it can't and must be made again.
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
    // False leaves the name alone.
    bool Find(DWORD id, CString& name) const;

private:
    const CMapStringToPtr& names_;
    std::unordered_map<DWORD, POSITION> places_;
};

} // namespace orlo

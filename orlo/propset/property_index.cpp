// A hash table for the list of properties.

#include "orlo/propset/property_index.h"

#include <atomic>

#include "orlo/propset/property.h"

namespace orlo {

namespace {

std::atomic<unsigned> idChanges{0};

} // namespace

void InvalidatePropertyIndexes() {
    idChanges.fetch_add(1, std::memory_order_relaxed);
}

PropertyIndex::PropertyIndex(const CObList& properties) : changes_(idChanges.load(std::memory_order_relaxed)) {
    places_.reserve(static_cast<size_t>(properties.GetCount()));
    for (POSITION next = properties.GetHeadPosition(); next != nullptr;) {
        const POSITION here = next;
        AddedAtTail(static_cast<CProperty*>(properties.GetNext(next))->GetID(), here);
    }
}

bool PropertyIndex::IsUpToDate() const {
    return changes_ == idChanges.load(std::memory_order_relaxed);
}

POSITION PropertyIndex::Find(DWORD id) const {
    const auto place = places_.find(id);
    return place == places_.end() ? nullptr : place->second;
}

void PropertyIndex::AddedAtTail(DWORD id, POSITION position) {
    if (!places_.emplace(id, position).second) idRepeated_ = true;
}

bool PropertyIndex::Removed(DWORD id) {
    places_.erase(id);
    return !idRepeated_;
}

} // namespace orlo

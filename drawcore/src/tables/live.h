// Tracks the existing objects of one kind. Callers' pointers are looked up here before use, because the table or
// drawing may have been freed.
#pragma once

#include <unordered_set>

namespace drawcore {

template <class Object>
class Live {
public:
    static void Add(const Object* object) { Set().insert(object); }
    static void Remove(const Object* object) { Set().erase(object); }
    static bool Has(const Object* object) { return object && Set().count(object) != 0; }
    static size_t Count() { return Set().size(); }

private:
    static std::unordered_set<const Object*>& Set() {
        static std::unordered_set<const Object*> set;
        return set;
    }
};

} // namespace drawcore

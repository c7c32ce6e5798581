// The objects of one kind that are alive now. A pointer from outside is looked up here before it is used: a table or
// drawing can be freed while someone still holds it, and every call on it then needs an answer.
#pragma once

#include <unordered_set>

namespace drawcore {

template <class Object>
class Live {
public:
    static void Enter(const Object* object) { Set().insert(object); }
    static void Leave(const Object* object) { Set().erase(object); }
    static bool Has(const Object* object) { return object && Set().count(object) != 0; }
    static size_t Count() { return Set().size(); }

private:
    static std::unordered_set<const Object*>& Set() {
        static std::unordered_set<const Object*> set;
        return set;
    }
};

} // namespace drawcore

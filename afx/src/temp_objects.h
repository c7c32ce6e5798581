// The temporary objects that FromHandle returns, as a stack: the objects that were created while a message was handled
// are released afterward.
#pragma once

#include <afx.h>

#include <map>
#include <memory>
#include <utility>
#include <vector>

class AfxTempObjects {
public:
    // Returns the object of class T for the handle. A new object gets the handle by set(object).
    template <class T, class Handle, class Set>
    T* Get(Handle handle, Set set) {
        const Key key(&kTypeTag<T>, handle);
        const auto found = m_index.find(key);
        if (found != m_index.end()) return &static_cast<Of<T>*>(found->second)->object;
        auto entry = std::make_unique<Of<T>>();
        entry->key = key;
        set(entry->object);
        T* object = &entry->object;
        m_index.emplace(key, entry.get());
        m_entries.push_back(std::move(entry));
        return object;
    }

    std::size_t Mark() const { return m_entries.size(); }
    void ReleaseTo(std::size_t mark) {
        while (m_entries.size() > mark) {
            m_index.erase(m_entries.back()->key);
            m_entries.pop_back();
        }
    }

private:
    using Key = std::pair<const void*, void*>;
    template <class T>
    static inline const char kTypeTag = 0;
    struct Entry {
        virtual ~Entry() = default;
        Key key;
    };
    template <class T>
    struct Of : Entry {
        ~Of() override { object.Detach(); } // temporary objects do not own their handles
        T object;
    };

    std::vector<std::unique_ptr<Entry>> m_entries;
    std::map<Key, Entry*> m_index;
};

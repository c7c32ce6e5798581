// The temporary objects that FromHandle gives: made in order, and released down to a mark, so that what a
// message's handling has made goes when that message has been dealt with.
#pragma once

#include <afx.h>

#include <map>
#include <memory>
#include <utility>
#include <vector>

class AfxTempObjects {
public:
    // The object of class T over the handle; made with the member that holds the handle set by `set`.
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
        ~Of() override { object.Detach(); } // the handle is not the object's to free
        T object;
    };

    std::vector<std::unique_ptr<Entry>> m_entries;
    std::map<Key, Entry*> m_index;
};

// Collections: a list of objects, maps with numbers or strings as keys, and an array of words. They do not own their
// elements. Maps are iterated in the order in which the keys were inserted.
#pragma once

#include <afx.h>

#include <cstring>
#include <memory>
#include <utility>
#include <vector>

// Allocates the nodes of a collection in blocks and reuses freed nodes. The destructor frees all blocks.
template <class Node>
class AfxNodePool {
public:
    explicit AfxNodePool(int nBlockSize) : m_nBlockSize(nBlockSize > 0 ? static_cast<std::size_t>(nBlockSize) : 1) {}

    Node* Allocate() {
        if (m_pFree == nullptr) AddBlock();
        Node* node = m_pFree;
        m_pFree = node->m_pNext;
        return node;
    }
    void Free(Node* node) {
        *node = Node();
        node->m_pNext = m_pFree;
        m_pFree = node;
    }
    void FreeAll() {
        m_blocks.clear();
        m_pFree = nullptr;
    }

private:
    void AddBlock() {
        auto block = std::make_unique<Node[]>(m_nBlockSize);
        for (std::size_t i = m_nBlockSize; i-- > 0;) {
            block[i].m_pNext = m_pFree;
            m_pFree = &block[i];
        }
        m_blocks.push_back(std::move(block));
    }

    std::size_t m_nBlockSize;
    Node* m_pFree = nullptr;
    std::vector<std::unique_ptr<Node[]>> m_blocks;
};

class AFX_API CObList : public CObject {
    DECLARE_DYNAMIC(CObList)
public:
    explicit CObList(int nBlockSize = 10);
    ~CObList() override;

    int GetCount() const { return m_nCount; }
    BOOL IsEmpty() const { return m_nCount == 0; }
    CObject* GetHead() const { return m_pHead->m_pData; }
    CObject* GetTail() const { return m_pTail->m_pData; }

    POSITION AddHead(CObject* newElement);
    POSITION AddTail(CObject* newElement);
    CObject* RemoveHead();
    void RemoveAt(POSITION position);
    void RemoveAll();

    POSITION GetHeadPosition() const { return ToPosition(m_pHead); }
    POSITION GetTailPosition() const { return ToPosition(m_pTail); }
    // Return the element at the position and advance it.
    CObject* GetNext(POSITION& rPosition) const;
    CObject* GetPrev(POSITION& rPosition) const;
    CObject* GetAt(POSITION position) const;
    // Returns the first position of the object, or null if it is not in the list.
    POSITION Find(const CObject* searchValue) const;

private:
    struct Node {
        Node* m_pNext = nullptr;
        Node* m_pPrev = nullptr;
        CObject* m_pData = nullptr;
    };
    static POSITION ToPosition(Node* node) { return reinterpret_cast<POSITION>(node); }
    static Node* ToNode(POSITION position) { return reinterpret_cast<Node*>(position); }

    int m_nCount = 0;
    Node* m_pHead = nullptr;
    Node* m_pTail = nullptr;
    AfxNodePool<Node> m_pool;
};

inline std::size_t AfxHashKey(WORD key) {
    return static_cast<std::size_t>(key * 2654435761u);
}
AFX_API std::size_t AfxHashKey(LPCSTR key);

// Base class of the maps: a hash table that grows with its contents, so that inserting n keys takes O(n) time. ARG_KEY
// is the type of key parameters.
template <class KEY, class ARG_KEY, class VALUE>
class AfxMap : public CObject {
public:
    int GetCount() const { return m_nCount; }
    BOOL IsEmpty() const { return m_nCount == 0; }

    // Returns false, and does not change rValue, if the key does not exist.
    BOOL Lookup(ARG_KEY key, VALUE& rValue) const {
        const Node* node = FindNode(key, AfxHashKey(key));
        if (node == nullptr) return FALSE;
        rValue = node->m_value;
        return TRUE;
    }
    void SetAt(ARG_KEY key, VALUE newValue) { (*this)[key] = newValue; }
    // Returns the value of the key. If the key does not exist, inserts it with a null value.
    VALUE& operator[](ARG_KEY key) {
        const std::size_t hash = AfxHashKey(key);
        if (Node* node = FindNode(key, hash)) return node->m_value;
        return AddNode(key, hash)->m_value;
    }
    BOOL RemoveKey(ARG_KEY key) {
        Node* node = FindNode(key, AfxHashKey(key));
        if (node == nullptr) return FALSE;
        Unlink(node);
        m_pool.Free(node);
        --m_nCount;
        return TRUE;
    }
    void RemoveAll() {
        m_buckets.clear();
        m_pFirst = m_pLast = nullptr;
        m_nCount = 0;
        m_pool.FreeAll();
    }

    POSITION GetStartPosition() const { return reinterpret_cast<POSITION>(m_pFirst); }
    // Stores the entry at the position and advances it.
    void GetNextAssoc(POSITION& rNextPosition, KEY& rKey, VALUE& rValue) const {
        const Node* node = reinterpret_cast<const Node*>(rNextPosition);
        rKey = node->m_key;
        rValue = node->m_value;
        rNextPosition = reinterpret_cast<POSITION>(node->m_pNext);
    }

protected:
    explicit AfxMap(int nBlockSize) : m_pool(nBlockSize) {}

private:
    struct Node {
        Node* m_pNext = nullptr; // in order of insertion
        Node* m_pPrev = nullptr;
        Node* m_pSame = nullptr; // next in the same bucket
        std::size_t m_nHash = 0;
        KEY m_key{};
        VALUE m_value{};
    };

    Node* FindNode(ARG_KEY key, std::size_t hash) const {
        if (m_buckets.empty()) return nullptr;
        Node* node = m_buckets[hash & (m_buckets.size() - 1)];
        while (node != nullptr && !(node->m_nHash == hash && node->m_key == key))
            node = node->m_pSame;
        return node;
    }
    Node* AddNode(ARG_KEY key, std::size_t hash) {
        if (static_cast<std::size_t>(m_nCount) >= m_buckets.size()) Grow();
        Node* node = m_pool.Allocate();
        node->m_key = key;
        node->m_nHash = hash;
        node->m_pNext = nullptr;
        node->m_pPrev = m_pLast;
        (m_pLast != nullptr ? m_pLast->m_pNext : m_pFirst) = node;
        m_pLast = node;
        PutInBucket(node);
        ++m_nCount;
        return node;
    }
    void PutInBucket(Node* node) {
        Node*& bucket = m_buckets[node->m_nHash & (m_buckets.size() - 1)];
        node->m_pSame = bucket;
        bucket = node;
    }
    void Grow() {
        const std::size_t size = m_buckets.empty() ? 16 : m_buckets.size() * 2;
        m_buckets.assign(size, nullptr);
        for (Node* node = m_pFirst; node != nullptr; node = node->m_pNext)
            PutInBucket(node);
    }
    void Unlink(Node* node) {
        Node** link = &m_buckets[node->m_nHash & (m_buckets.size() - 1)];
        while (*link != node)
            link = &(*link)->m_pSame;
        *link = node->m_pSame;
        (node->m_pPrev != nullptr ? node->m_pPrev->m_pNext : m_pFirst) = node->m_pNext;
        (node->m_pNext != nullptr ? node->m_pNext->m_pPrev : m_pLast) = node->m_pPrev;
    }

    int m_nCount = 0;
    Node* m_pFirst = nullptr;
    Node* m_pLast = nullptr;
    std::vector<Node*> m_buckets; // their number is a power of two
    AfxNodePool<Node> m_pool;
};

class AFX_API CMapWordToOb : public AfxMap<WORD, WORD, CObject*> {
    DECLARE_DYNAMIC(CMapWordToOb)
public:
    explicit CMapWordToOb(int nBlockSize = 10);
    ~CMapWordToOb() override;
};

class AFX_API CMapStringToPtr : public AfxMap<CString, LPCSTR, void*> {
    DECLARE_DYNAMIC(CMapStringToPtr)
public:
    explicit CMapStringToPtr(int nBlockSize = 10);
    ~CMapStringToPtr() override;
};

class AFX_API CWordArray : public CObject {
    DECLARE_DYNAMIC(CWordArray)
public:
    CWordArray();
    ~CWordArray() override;

    int GetSize() const { return static_cast<int>(m_data.size()); }
    WORD GetAt(int nIndex) const { return m_data[static_cast<std::size_t>(nIndex)]; }
    WORD operator[](int nIndex) const { return GetAt(nIndex); }
    int Add(WORD newElement); // returns its index
    void RemoveAll();

private:
    std::vector<WORD> m_data;
};

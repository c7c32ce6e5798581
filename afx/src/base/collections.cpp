// The parts of the collections that are not templates.

#include <afxcoll.h>

IMPLEMENT_DYNAMIC(CObList, CObject)
IMPLEMENT_DYNAMIC(CMapWordToOb, CObject)
IMPLEMENT_DYNAMIC(CMapStringToPtr, CObject)
IMPLEMENT_DYNAMIC(CWordArray, CObject)

CObList::CObList(int nBlockSize) : m_pool(nBlockSize) {}
CObList::~CObList() = default;

POSITION CObList::AddHead(CObject* newElement) {
    Node* node = m_pool.Allocate();
    node->m_pData = newElement;
    node->m_pPrev = nullptr;
    node->m_pNext = m_pHead;
    (m_pHead != nullptr ? m_pHead->m_pPrev : m_pTail) = node;
    m_pHead = node;
    ++m_nCount;
    return ToPosition(node);
}

POSITION CObList::AddTail(CObject* newElement) {
    Node* node = m_pool.Allocate();
    node->m_pData = newElement;
    node->m_pPrev = m_pTail;
    node->m_pNext = nullptr;
    (m_pTail != nullptr ? m_pTail->m_pNext : m_pHead) = node;
    m_pTail = node;
    ++m_nCount;
    return ToPosition(node);
}

CObject* CObList::RemoveHead() {
    CObject* element = m_pHead->m_pData;
    RemoveAt(GetHeadPosition());
    return element;
}

void CObList::RemoveAt(POSITION position) {
    Node* node = ToNode(position);
    (node->m_pPrev != nullptr ? node->m_pPrev->m_pNext : m_pHead) = node->m_pNext;
    (node->m_pNext != nullptr ? node->m_pNext->m_pPrev : m_pTail) = node->m_pPrev;
    m_pool.Free(node);
    --m_nCount;
}

void CObList::RemoveAll() {
    m_nCount = 0;
    m_pHead = m_pTail = nullptr;
    m_pool.FreeAll();
}

CObject* CObList::GetNext(POSITION& rPosition) const {
    const Node* node = ToNode(rPosition);
    rPosition = ToPosition(node->m_pNext);
    return node->m_pData;
}

CObject* CObList::GetPrev(POSITION& rPosition) const {
    const Node* node = ToNode(rPosition);
    rPosition = ToPosition(node->m_pPrev);
    return node->m_pData;
}

CObject* CObList::GetAt(POSITION position) const {
    return ToNode(position)->m_pData;
}

POSITION CObList::Find(const CObject* searchValue) const {
    Node* node = m_pHead;
    while (node != nullptr && node->m_pData != searchValue)
        node = node->m_pNext;
    return ToPosition(node);
}

// FNV-1a hash.
std::size_t AfxHashKey(LPCSTR key) {
    std::uint32_t hash = 2166136261u;
    for (; *key != '\0'; ++key)
        hash = (hash ^ static_cast<unsigned char>(*key)) * 16777619u;
    return hash;
}

CMapWordToOb::CMapWordToOb(int nBlockSize) : AfxMap(nBlockSize) {}
CMapWordToOb::~CMapWordToOb() = default;
CMapStringToPtr::CMapStringToPtr(int nBlockSize) : AfxMap(nBlockSize) {}
CMapStringToPtr::~CMapStringToPtr() = default;

CWordArray::CWordArray() = default;
CWordArray::~CWordArray() = default;

int CWordArray::Add(WORD newElement) {
    m_data.push_back(newElement);
    return GetSize() - 1;
}

void CWordArray::RemoveAll() {
    m_data.clear();
}

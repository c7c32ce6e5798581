// CDDPRecord and its map.

#include "orlo/binding/ddp_record.h"

#include <cstdint>

namespace {

WORD KeyOf(const void* member) {
    return static_cast<WORD>(reinterpret_cast<uintptr_t>(member));
}

CDDPRecord* HeadOf(const CMapWordToOb& records, WORD key) {
    CObject* head = nullptr;
    records.Lookup(key, head);
    return static_cast<CDDPRecord*>(head);
}

CDDPRecord* FindRecord(const CMapWordToOb& records, const void* member) {
    CDDPRecord* record = HeadOf(records, KeyOf(member));
    while (record != nullptr && record->m_pMember != member)
        record = record->m_pNext;
    return record;
}

} // namespace

CDDPRecord::CDDPRecord(DDPEnd pfnEnd, int nID, void* pMember, const char* pszPropName)
    : m_pfnEnd(pfnEnd), m_nID(nID), m_pMember(pMember), m_pszPropName(pszPropName), m_pNext(nullptr) {}

CDDPRecord::~CDDPRecord() {
    for (CDDPRecord* next = m_pNext; next != nullptr;) {
        CDDPRecord* record = next;
        next = record->m_pNext;
        record->m_pNext = nullptr;
        delete record;
    }
}

void AddRecord(CMapWordToOb& records, CDDPRecord* record) {
    if (CDDPRecord* other = FindRecord(records, record->m_pMember)) {
        other->m_pfnEnd = record->m_pfnEnd;
        other->m_nID = record->m_nID;
        other->m_pszPropName = record->m_pszPropName;
        delete record;
        return;
    }
    const WORD key = KeyOf(record->m_pMember);
    record->m_pNext = HeadOf(records, key);
    records.SetAt(key, record);
}

bool HasRecord(const CMapWordToOb& records, const void* member) {
    return FindRecord(records, member) != nullptr;
}

CDDPRecord* TakeRecords(CMapWordToOb& records) {
    CDDPRecord* chain = nullptr;
    for (POSITION position = records.GetStartPosition(); position != nullptr;) {
        WORD key;
        CObject* head;
        records.GetNextAssoc(position, key, head);
        auto* record = static_cast<CDDPRecord*>(head);
        while (record != nullptr) {
            CDDPRecord* next = record->m_pNext;
            record->m_pNext = chain;
            chain = record;
            record = next;
        }
    }
    records.RemoveAll();
    return chain;
}

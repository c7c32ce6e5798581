// A pending write of a page. Records are stored in a map with 16-bit keys derived from the member's address; members
// with the same key are chained.
#pragma once

#include <afxcoll.h>

class CDataExchange;

using DDPEnd = void (*)(CDataExchange* pDX, int nID, void* pMember, const char* pszPropName);

class CDDPRecord : public CObject {
public:
    CDDPRecord(DDPEnd pfnEnd, int nID, void* pMember, const char* pszPropName);
    ~CDDPRecord() override;

    DDPEnd m_pfnEnd;
    int m_nID;
    void* m_pMember;           // read when the record is carried out
    const char* m_pszPropName; // not copied
    CDDPRecord* m_pNext;       // the next record of the same key, owned
};

// Adds a record, replacing an earlier one of the same member.
void AddRecord(CMapWordToOb& records, CDDPRecord* record);

bool HasRecord(const CMapWordToOb& records, const void* member);

// Removes all records from the map and returns them as a chain that the caller owns.
CDDPRecord* TakeRecords(CMapWordToOb& records);

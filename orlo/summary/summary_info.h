// The summary of a document file in a few calls: make it, fill it, read it from a compound file and write it
// back.
//
//   IStorage* storage = nullptr;
//   CPropertySet* summary = nullptr;
//   if (SUCCEEDED(GetFileSummaryInfo("plan.drw", &storage, &summary))) ...  // both are the caller's now
//   SaveSummaryInfo(storage, summary)   // 0x80030005 here: GetFileSummaryInfo opens for reading
//
// Functions of type HRESULT give 0, E_FAIL (a missing argument, a set that can't be read or written) or the
// error of the storage. No function shows a message.
#pragma once

#include <ctime>

#include "orlo/summary/ole_summary.h"

// The name of the summary's stream in a compound file.
constexpr char kSummaryStreamName[] = "\005SummaryInformation";

// The local time now.
ORLO_API void TimeStamp(struct tm* pTime);
// As OleStdSetDateProperty and OleStdSetStringProperty.
ORLO_API int SetSumInfoDate(CPropertySet* pSumInfo, DWORD dwPropID, const struct tm* pTime);
ORLO_API int SetSumInfoString(CPropertySet* pSumInfo, DWORD dwPropID, const char* pszValue);

// A new summary, created now, in the place of the one that the pointer holds (it must hold one or null).
ORLO_API HRESULT CreateSummaryInfo(CPropertySet** ppSumInfo);
// Sets these texts (null or empty removes one), the last author like the author, and the security value 0.
ORLO_API HRESULT SetSummaryInfoFields1(CPropertySet* pSumInfo, const char* pszTitle, const char* pszSubject,
                                       const char* pszAuthor, const char* pszKeywords,
                                       const char* pszComments, const char* pszAppName,
                                       const char* pszRevision);
// As OleStdSetThumbNailProperty. dwReserved is not read.
ORLO_API HRESULT SetSummaryInfoThumbnail(CPropertySet* pSumInfo, DWORD dwFormat, HGLOBAL hData, DWORD cbData,
                                         DWORD dwReserved);

// Reads the summary stream. Without that stream the summary stays as it was; one that can't be read leaves it
// cleared.
ORLO_API HRESULT LoadSummaryInfo(IStorage* pStorage, CPropertySet* pSumInfo);
// Writes the summary stream, over one that is there. A set that can't be written leaves it untouched. If the
// storage fails half-way (a full disk), the stream of before is put back as far as the storage still takes
// it; a transacted storage is sure to be as before if it isn't committed.
ORLO_API HRESULT SaveSummaryInfo(IStorage* pStorage, CPropertySet* pSumInfo);
// Opens a compound file for reading and reads its summary, into a new set if the pointer holds null. A file whose header,
// allocation tables or directory are damaged is refused (STG_E_DOCFILECORRUPT): the system might never come back from it.
// The storage stays open, the caller's. On failure both pointers are null, and a set that was passed in is
// destroyed, but for a file that can't be opened: then the set stays.
ORLO_API HRESULT GetFileSummaryInfo(const char* pszFileName, IStorage** ppStorage, CPropertySet** ppSumInfo);

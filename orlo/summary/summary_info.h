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
                                       const char* pszAuthor, const char* pszKeywords, const char* pszComments,
                                       const char* pszAppName, const char* pszRevision);
// As OleStdSetThumbNailProperty. dwReserved is not read.
ORLO_API HRESULT SetSummaryInfoThumbnail(CPropertySet* pSumInfo, DWORD dwFormat, HGLOBAL hData, DWORD cbData,
                                         DWORD dwReserved);

// Reads the summary stream. Without that stream the summary stays as it was; one that can't be read leaves it
// cleared.
ORLO_API HRESULT LoadSummaryInfo(IStorage* pStorage, CPropertySet* pSumInfo);
// Writes the summary stream, over an existing one; no other element of the storage is touched, or made temporarily.
// A set that can't be written, and a disk without room for it, leave the old summary byte for byte (E_FAIL). A stream
// that exists and can't be opened for writing gives the error of the storage. One that has grown to 4096 bytes stays as
// long at least: after a shorter summary it holds zeros.
//
// Of a storage that is open for writing alone the old summary cannot be read: its stream is created anew, and is gone
// if there is no room for the new one.
//
// No storage protects its file. In direct mode the system writes step by step: a program that is killed in the middle
// leaves a mixture of both summaries, and after a full disk the system may have announced sectors that the file does
// not have. In a transacted storage nothing is on the disk before its Commit; a Commit that fails on a full disk can
// leave a damaged file. A host that needs the old file or the new one after any failure writes into a copy:
// orlo::EditedDocument (edited_document.h) does that.
ORLO_API HRESULT SaveSummaryInfo(IStorage* pStorage, CPropertySet* pSumInfo);
// Opens a compound file for reading and reads its summary, into a new set if the pointer holds null. A file whose
// header, allocation tables or directory are damaged is refused (STG_E_DOCFILECORRUPT): the system might never return
// from it. The storage stays open, the caller's. On failure both pointers are null, and a set that was passed in is
// destroyed, except for a file that can't be opened: then the set stays.
ORLO_API HRESULT GetFileSummaryInfo(const char* pszFileName, IStorage** ppStorage, CPropertySet** ppSumInfo);

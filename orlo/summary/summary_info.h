// Creates, fills, reads and writes the summary of a compound file in a few calls.
//
//   IStorage* storage = nullptr;
//   CPropertySet* summary = nullptr;
//   if (SUCCEEDED(GetFileSummaryInfo("plan.drw", &storage, &summary))) ...  // the caller owns both
//   SaveSummaryInfo(storage, summary)   // returns 0x80030005 here: GetFileSummaryInfo opens for reading
//
// Functions of type HRESULT return 0, E_FAIL (a null argument, or a set that cannot be read or written) or the error of
// the storage. No function shows a message.
#pragma once

#include <ctime>

#include "orlo/summary/ole_summary.h"

// The name of the summary stream in a compound file.
constexpr char kSummaryStreamName[] = "\005SummaryInformation";

// Stores the current local time.
ORLO_API void TimeStamp(struct tm* pTime);
// See OleStdSetDateProperty and OleStdSetStringProperty.
ORLO_API int SetSumInfoDate(CPropertySet* pSumInfo, DWORD dwPropID, const struct tm* pTime);
ORLO_API int SetSumInfoString(CPropertySet* pSumInfo, DWORD dwPropID, const char* pszValue);

// Creates a summary with the current time as its creation date. The pointer must contain a summary, which is freed, or
// null.
ORLO_API HRESULT CreateSummaryInfo(CPropertySet** ppSumInfo);
// Sets these texts (null or empty removes one), the last author to the author, and the security value to 0.
ORLO_API HRESULT SetSummaryInfoFields1(CPropertySet* pSumInfo, const char* pszTitle, const char* pszSubject,
                                       const char* pszAuthor, const char* pszKeywords, const char* pszComments,
                                       const char* pszAppName, const char* pszRevision);
// See OleStdSetThumbNailProperty. dwReserved is ignored.
ORLO_API HRESULT SetSummaryInfoThumbnail(CPropertySet* pSumInfo, DWORD dwFormat, HGLOBAL hData, DWORD cbData,
                                         DWORD dwReserved);

// Reads the summary stream. Without that stream the summary is unchanged; if it cannot be read, the summary is empty.
ORLO_API HRESULT LoadSummaryInfo(IStorage* pStorage, CPropertySet* pSumInfo);
// Writes the summary stream, replacing an existing one; no other element of the storage is changed or temporarily
// created. If the set cannot be written or the disk is full, the old summary is preserved byte for byte (E_FAIL).
// Returns the storage's error if an existing stream cannot be opened for writing. A stream that has grown to 4096 bytes
// never becomes shorter; after a shorter summary it is padded with zeros.
//
// If the storage is open for writing only, the old summary cannot be read: its stream is created anew, and is lost if
// there is not enough space for the new one.
//
// After a failure the file itself can be damaged. In direct mode, the system writes step by step: if the program is
// killed in between, the stream contains a mixture of both summaries, and if the disk becomes full, the file may refer
// to sectors that do not exist. In a transacted storage nothing is written before Commit; a Commit that fails on a full
// disk can leave a damaged file. Use SaveFileSummaryInfo if the file must be either the old or the new one.
ORLO_API HRESULT SaveSummaryInfo(IStorage* pStorage, CPropertySet* pSumInfo);
// Writes the summary into an existing compound file, which must not be open. A copy with a new layout is written in the
// same folder: all other streams, and classes, state bits and times of storages, are preserved byte for byte; sectors
// that belong to no stream are omitted. The copy is verified and replaces the file in one step, so that after any
// failure (a full disk, the end of the process) the file is either the old or the new one. Returns STG_E_DOCFILECORRUPT
// if the file is damaged or not a compound file, HRESULT_FROM_WIN32 of a system error (ERROR_FILE_NOT_FOUND,
// ERROR_SHARING_VIOLATION, ERROR_DISK_FULL, ...), and E_FAIL for a null argument, a set that cannot be written or a
// read-only file. To write several streams in one step, use orlo::EditedDocument (edited_document.h).
ORLO_API HRESULT SaveFileSummaryInfo(const char* pszFileName, CPropertySet* pSumInfo);
// Opens a compound file for reading and reads its summary, into a new set if the pointer contains null. The caller owns
// the open storage. Fails with STG_E_DOCFILECORRUPT if the file's header, allocation tables or directory are damaged,
// because the system might not return from opening it. On failure both pointers are null; a set that was passed in is
// destroyed, unless the file cannot be opened.
ORLO_API HRESULT GetFileSummaryInfo(const char* pszFileName, IStorage** ppStorage, CPropertySet** ppSumInfo);

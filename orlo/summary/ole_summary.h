// The summary of a document as a property set of one section: titles, dates, counts and a thumbnail, by
// property ID.
//
//   CPropertySet* summary = OleStdInitSummaryInfo(1252);
//   OleStdSetStringProperty(summary, PIDSI_TITLE, "Ground floor");   // 1
//   OleStdSetIntProperty(summary, PIDSI_TITLE, 7);                   // 0: it holds a text, which stays
//   OleStdSetStringProperty(summary, PIDSI_TITLE, "");               // 1: removed
//   OleStdFreeSummaryInfo(&summary);
//
// The set is the caller's. For a null set, or one without the section, every function returns its failure value.
// A property whose type is not that of its field reads like a missing one. Results named int are 1 for success
// and 0 for failure; no function shows a message. Texts are in the code page of property 1; nothing here
// converts them.
#pragma once

#include <windows.h>

#include <objidl.h>
#include <propidl.h>

#include "orlo/export.h"

class CPropertySet;

// A new summary with its code page (0: the system's). The caller's, until OleStdFreeSummaryInfo.
ORLO_API CPropertySet* OleStdInitSummaryInfo(int nCodePage);
// Destroys the summary, if there is one, and stores null.
ORLO_API void OleStdFreeSummaryInfo(CPropertySet** ppSumInfo);
// Removes title, subject, author, keywords, comments, template, revision, thumbnail and application. The rest
// stays.
ORLO_API void OleStdClearSummaryInfo(CPropertySet* pSumInfo);

// The stream begins with the set. A failed read leaves a summary without fields.
ORLO_API int OleStdReadSummaryInfo(IStream* pStream, CPropertySet* pSumInfo);
ORLO_API int OleStdWriteSummaryInfo(IStream* pStream, CPropertySet* pSumInfo);

// The stored text or null. It is the property's and ends with it or with its next change. It always ends with
// a NUL: one that a foreign writer left out is added first.
ORLO_API char* OleStdGetStringProperty(CPropertySet* pSumInfo, DWORD dwPropID);
// Null or an empty text removes the property.
ORLO_API int OleStdSetStringProperty(CPropertySet* pSumInfo, DWORD dwPropID, const char* pszValue);

ORLO_API int OleStdGetIntProperty(CPropertySet* pSumInfo, DWORD dwPropID);
ORLO_API int OleStdSetIntProperty(CPropertySet* pSumInfo, DWORD dwPropID, int nValue);

// Pages, words and characters. Setting stops at the first failure.
ORLO_API void OleStdGetDocProperty(CPropertySet* pSumInfo, DWORD* pnPages, DWORD* pnWords, DWORD* pnChars);
ORLO_API int OleStdSetDocProperty(CPropertySet* pSumInfo, DWORD nPages, DWORD nWords, DWORD nChars);

// The security value is read and replaced whatever its type.
ORLO_API DWORD OleStdGetSecurityProperty(CPropertySet* pSumInfo);
ORLO_API int OleStdSetSecurityProperty(CPropertySet* pSumInfo, DWORD dwValue);

// A copy of the picture in a movable block that the caller frees, its clipboard format and its length in
// bytes. The result is -1, or 0 without a picture in one of the system's formats; then the block is not made,
// format and length may be stored.
ORLO_API int OleStdGetThumbNailProperty(CPropertySet* pSumInfo, DWORD* pdwFormat, HGLOBAL* phData, DWORD* pcbData);
// Copies cbData bytes of the block, which stays the caller's; a block that is shorter is refused. A null
// handle and no length remove the property.
ORLO_API int OleStdSetThumbNailProperty(CPropertySet* pSumInfo, DWORD dwFormat, HGLOBAL hData, DWORD cbData);

// A point in time to two seconds (1980 to 2107), or for PIDSI_EDITTIME a span with months of 30 days. Seconds
// are those of the day: hours and minutes are in them. A span comes back with years of 12 months, 360 days,
// but is stored with years of 365 days: one year written is 1 year and 5 days read. All 0 if there is no such
// property.
ORLO_API void OleStdGetDateProperty(CPropertySet* pSumInfo, DWORD dwPropID, int* pnYear, int* pnMonth, int* pnDay,
                                    int* pnSeconds);
// Six zeros, or numbers that are not a date, remove the property. A year before 1980 is taken as 1980.
ORLO_API int OleStdSetDateProperty(CPropertySet* pSumInfo, DWORD dwPropID, int nYear, int nMonth, int nDay, int nHour,
                                   int nMinute, int nSecond);

// The summary of a document as a property set with one section: titles, dates, counts and a thumbnail, by property ID.
//
//   CPropertySet* summary = OleStdInitSummaryInfo(1252);
//   OleStdSetStringProperty(summary, PIDSI_TITLE, "Ground floor");   // returns 1
//   OleStdSetIntProperty(summary, PIDSI_TITLE, 7);                   // returns 0: the property is a text, and keeps it
//   OleStdSetStringProperty(summary, PIDSI_TITLE, "");               // returns 1: removed
//   OleStdFreeSummaryInfo(&summary);
//
// The caller owns the set. For a null set, or one without the section, every function returns its failure value. A
// property of an unexpected type is treated as missing when read. Functions of type int return 1 on success and 0 on
// failure; no function shows a message. Texts are in the code page of property 1 and are not converted.
#pragma once

#include <windows.h>

#include <objidl.h>
#include <propidl.h>

#include "orlo/export.h"

class CPropertySet;

// Creates a summary with the given code page (0: the system's). The caller frees it with OleStdFreeSummaryInfo.
ORLO_API CPropertySet* OleStdInitSummaryInfo(int nCodePage);
// Frees the summary, if any, and sets the pointer to null.
ORLO_API void OleStdFreeSummaryInfo(CPropertySet** ppSumInfo);
// Removes title, subject, author, keywords, comments, template, revision, thumbnail and application. Other properties
// remain.
ORLO_API void OleStdClearSummaryInfo(CPropertySet* pSumInfo);

// Read and write the set from the beginning of the stream. After a failed read the summary has no fields.
ORLO_API int OleStdReadSummaryInfo(IStream* pStream, CPropertySet* pSumInfo);
ORLO_API int OleStdWriteSummaryInfo(IStream* pStream, CPropertySet* pSumInfo);

// Returns the stored text or null. The pointer is valid until the property changes or is deleted. The text always ends
// with a NUL; a missing one is added first.
ORLO_API char* OleStdGetStringProperty(CPropertySet* pSumInfo, DWORD dwPropID);
// Null or an empty text removes the property.
ORLO_API int OleStdSetStringProperty(CPropertySet* pSumInfo, DWORD dwPropID, const char* pszValue);

ORLO_API int OleStdGetIntProperty(CPropertySet* pSumInfo, DWORD dwPropID);
ORLO_API int OleStdSetIntProperty(CPropertySet* pSumInfo, DWORD dwPropID, int nValue);

// Get and set the numbers of pages, words and characters. Setting stops at the first failure.
ORLO_API void OleStdGetDocProperty(CPropertySet* pSumInfo, DWORD* pnPages, DWORD* pnWords, DWORD* pnChars);
ORLO_API int OleStdSetDocProperty(CPropertySet* pSumInfo, DWORD nPages, DWORD nWords, DWORD nChars);

// Get and set the security value, regardless of its existing type.
ORLO_API DWORD OleStdGetSecurityProperty(CPropertySet* pSumInfo);
ORLO_API int OleStdSetSecurityProperty(CPropertySet* pSumInfo, DWORD dwValue);

// Copies the picture to a movable block that the caller frees, and stores its clipboard format and its length in bytes.
// Returns -1, or 0 if there is no picture in one of the system's formats; then no block is created, but format and
// length may be stored.
ORLO_API int OleStdGetThumbNailProperty(CPropertySet* pSumInfo, DWORD* pdwFormat, HGLOBAL* phData, DWORD* pcbData);
// Copies cbData bytes of the block, which remains the caller's. Fails if the block is shorter. A null handle with
// length 0 removes the property.
ORLO_API int OleStdSetThumbNailProperty(CPropertySet* pSumInfo, DWORD dwFormat, HGLOBAL hData, DWORD cbData);

// Get and set a time with a resolution of two seconds (1980 to 2107), or for PIDSI_EDITTIME a duration with months of
// 30 days. Seconds are those of the day, including hours and minutes. A duration is read with years of 12 months (360
// days) but stored with years of 365 days, so that one year written is read as 1 year and 5 days. All numbers are 0 if
// there is no such property.
ORLO_API void OleStdGetDateProperty(CPropertySet* pSumInfo, DWORD dwPropID, int* pnYear, int* pnMonth, int* pnDay,
                                    int* pnSeconds);
// Six zeros, or numbers that are not a date, remove the property. A year before 1980 is stored as 1980.
ORLO_API int OleStdSetDateProperty(CPropertySet* pSumInfo, DWORD dwPropID, int nYear, int nMonth, int nDay, int nHour,
                                   int nMinute, int nSecond);

// The set of a summary and its plain fields. Dates are in summary_date.cpp, the thumbnail in summary_thumbnail.cpp.

#include "orlo/summary/ole_summary.h"

#include <cstring>
#include <memory>
#include <string>

#include "orlo/propset/code_page.h"
#include "orlo/propset/property_set.h"
#include "orlo/summary/summary_field.h"

namespace {

constexpr DWORD kCleared[] = {PIDSI_TITLE,    PIDSI_SUBJECT,   PIDSI_AUTHOR,    PIDSI_KEYWORDS, PIDSI_COMMENTS,
                              PIDSI_TEMPLATE, PIDSI_REVNUMBER, PIDSI_THUMBNAIL, PIDSI_APPNAME};

// Low word: version; high word: system kind, 2 for Win32, 0 for 16-bit Windows.
DWORD SystemVersion() {
    const DWORD version = ::GetVersion();
    const int number = LOBYTE(LOWORD(version)) * 256 + HIBYTE(LOWORD(version));
    const bool onTopOf16Bits = (version & 0x80000000) != 0 && number < 0x0400;
    return MAKELONG(LOWORD(version), onTopOf16Bits ? 0 : 2);
}

// A text without a NUL at the end of its block is stored again with one.
char* Terminated(CProperty& property) {
    DWORD size = 0;
    auto text = static_cast<char*>(property.Get(&size));
    if (!text || (size != 0 && std::memchr(text, 0, size))) return text;
    std::string copy(text, size);
    return property.Set(copy.data()) ? static_cast<char*>(property.Get()) : nullptr;
}

} // namespace

CPropertySet* OleStdInitSummaryInfo(int nCodePage) {
    auto set = std::make_unique<CPropertySet>();
    set->SetFormatVersion(0);
    set->SetOSVersion(SystemVersion());
    auto codePage = static_cast<WORD>(nCodePage != 0 ? nCodePage : static_cast<int>(::GetACP()));
    CPropertySection* section = set->AddSection(orlo::kSummaryFormat);
    section->AddProperty(new CProperty(orlo::kCodePageId, &codePage, VT_I2));
    return set.release();
}

void OleStdFreeSummaryInfo(CPropertySet** ppSumInfo) {
    if (!ppSumInfo) return;
    delete *ppSumInfo;
    *ppSumInfo = nullptr;
}

void OleStdClearSummaryInfo(CPropertySet* pSumInfo) {
    if (!pSumInfo) return;
    for (const DWORD id : kCleared)
        pSumInfo->Remove(orlo::kSummaryFormat, id);
}

int OleStdReadSummaryInfo(IStream* pStream, CPropertySet* pSumInfo) {
    if (!pStream || !pSumInfo) return 0;
    OleStdClearSummaryInfo(pSumInfo);
    if (pSumInfo->ReadFromStream(pStream)) return 1;
    OleStdClearSummaryInfo(pSumInfo);
    return 0;
}

int OleStdWriteSummaryInfo(IStream* pStream, CPropertySet* pSumInfo) {
    return pStream && pSumInfo && pSumInfo->WriteToStream(pStream) ? 1 : 0;
}

char* OleStdGetStringProperty(CPropertySet* pSumInfo, DWORD dwPropID) {
    CProperty* property = orlo::SummaryProperty(pSumInfo, dwPropID, VT_LPSTR);
    return property ? Terminated(*property) : nullptr;
}

int OleStdSetStringProperty(CPropertySet* pSumInfo, DWORD dwPropID, const char* pszValue) {
    const bool empty = !pszValue || *pszValue == '\0';
    return orlo::StoreSummaryProperty(pSumInfo, dwPropID, VT_LPSTR, empty ? nullptr : const_cast<char*>(pszValue));
}

int OleStdGetIntProperty(CPropertySet* pSumInfo, DWORD dwPropID) {
    CProperty* property = orlo::SummaryProperty(pSumInfo, dwPropID, VT_I4);
    const void* value = property ? property->Get() : nullptr;
    return value ? *static_cast<const int*>(value) : 0;
}

int OleStdSetIntProperty(CPropertySet* pSumInfo, DWORD dwPropID, int nValue) {
    return orlo::StoreSummaryProperty(pSumInfo, dwPropID, VT_I4, &nValue);
}

void OleStdGetDocProperty(CPropertySet* pSumInfo, DWORD* pnPages, DWORD* pnWords, DWORD* pnChars) {
    *pnPages = static_cast<DWORD>(OleStdGetIntProperty(pSumInfo, PIDSI_PAGECOUNT));
    *pnWords = static_cast<DWORD>(OleStdGetIntProperty(pSumInfo, PIDSI_WORDCOUNT));
    *pnChars = static_cast<DWORD>(OleStdGetIntProperty(pSumInfo, PIDSI_CHARCOUNT));
}

int OleStdSetDocProperty(CPropertySet* pSumInfo, DWORD nPages, DWORD nWords, DWORD nChars) {
    return OleStdSetIntProperty(pSumInfo, PIDSI_PAGECOUNT, static_cast<int>(nPages)) &&
           OleStdSetIntProperty(pSumInfo, PIDSI_WORDCOUNT, static_cast<int>(nWords)) &&
           OleStdSetIntProperty(pSumInfo, PIDSI_CHARCOUNT, static_cast<int>(nChars));
}

DWORD OleStdGetSecurityProperty(CPropertySet* pSumInfo) {
    DWORD size = 0, value = 0;
    const void* stored = pSumInfo ? pSumInfo->Get(orlo::kSummaryFormat, PIDSI_DOC_SECURITY, &size) : nullptr;
    if (stored) std::memcpy(&value, stored, size < sizeof value ? size : sizeof value);
    return value;
}

int OleStdSetSecurityProperty(CPropertySet* pSumInfo, DWORD dwValue) {
    CPropertySection* section = pSumInfo ? pSumInfo->GetSection(orlo::kSummaryFormat) : nullptr;
    CProperty* property = section ? section->GetProperty(PIDSI_DOC_SECURITY) : nullptr;
    if (property) return property->Set(&dwValue, VT_I4);
    return orlo::StoreSummaryProperty(pSumInfo, PIDSI_DOC_SECURITY, VT_I4, &dwValue);
}

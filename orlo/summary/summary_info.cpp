// Streams of a storage around the set of ole_summary.h.

#include "orlo/summary/summary_info.h"

#include <string>
#include <vector>

#include "orlo/propset/property_set.h"
#include "orlo/summary/compound_file.h"
#include "orlo/win/com_owner.h"
#include "orlo/win/system_text.h"

using orlo::Owned;
using orlo::Receive;

namespace {

constexpr DWORD kRead = STGM_READ | STGM_SHARE_EXCLUSIVE;
constexpr DWORD kReplace = STGM_CREATE | STGM_WRITE | STGM_SHARE_EXCLUSIVE;
constexpr wchar_t kTrialName[] = L"SummaryInformation on trial";

HRESULT OpenForReading(IStorage* storage, Owned<IStream>& stream) {
    return storage->OpenStream(Wide(kSummaryStreamName).c_str(), nullptr, kRead, 0, Receive(stream));
}

HRESULT Replace(IStorage* storage, Owned<IStream>& stream) {
    return storage->CreateStream(Wide(kSummaryStreamName).c_str(), kReplace, 0, 0, Receive(stream));
}

Owned<IStream> MemoryStream() {
    Owned<IStream> stream;
    ::CreateStreamOnHGlobal(nullptr, TRUE, Receive(stream));
    return stream;
}

// All of one stream to the other, both from their heads.
bool CopyAll(IStream* from, IStream* to) {
    const LARGE_INTEGER head = {};
    ULARGE_INTEGER all, read = {}, written = {};
    all.QuadPart = ~ULONGLONG{0};
    return SUCCEEDED(from->Seek(head, STREAM_SEEK_SET, nullptr)) &&
           SUCCEEDED(from->CopyTo(to, all, &read, &written)) && read.QuadPart == written.QuadPart;
}

// Writes the image under another name and takes it away again: room that is lacking shows while the old summary is still
// untouched, and what was allocated for the trial is free for the real one.
bool HasRoom(IStorage* storage, IStream* image) {
    Owned<IStream> trial;
    if (FAILED(storage->CreateStream(kTrialName, kReplace, 0, 0, Receive(trial))))
        return true; // the real one will tell
    const bool written = CopyAll(image, trial.get());
    trial.reset();
    storage->DestroyElement(kTrialName);
    return written;
}

// What a storage holds under the summary's name before it is written over. What can't be read isn't touched
// either.
class SummaryBefore {
public:
    explicit SummaryBefore(IStorage* storage) : storage_(storage) {
        Owned<IStream> stream;
        const HRESULT opened = OpenForReading(storage, stream);
        wasAbsent_ = opened == STG_E_FILENOTFOUND;
        if (FAILED(opened)) return;
        copy_ = MemoryStream();
        if (!copy_ || !CopyAll(stream.get(), copy_.get())) copy_.reset();
    }

    // After a failure. The stream that failed has been released.
    void PutBack() {
        Owned<IStream> stream;
        if (wasAbsent_)
            storage_->DestroyElement(Wide(kSummaryStreamName).c_str());
        else if (copy_ && SUCCEEDED(Replace(storage_, stream)))
            CopyAll(copy_.get(), stream.get());
    }

private:
    IStorage* storage_;
    bool wasAbsent_ = false;
    Owned<IStream> copy_;
};

} // namespace

void TimeStamp(struct tm* pTime) {
    const time_t now = ::time(nullptr);
    *pTime = *::localtime(&now);
}

int SetSumInfoDate(CPropertySet* pSumInfo, DWORD dwPropID, const struct tm* pTime) {
    return OleStdSetDateProperty(pSumInfo, dwPropID, pTime->tm_year + 1900, pTime->tm_mon + 1, pTime->tm_mday,
                                 pTime->tm_hour, pTime->tm_min, pTime->tm_sec);
}

int SetSumInfoString(CPropertySet* pSumInfo, DWORD dwPropID, const char* pszValue) {
    return OleStdSetStringProperty(pSumInfo, dwPropID, pszValue);
}

HRESULT CreateSummaryInfo(CPropertySet** ppSumInfo) {
    if (!ppSumInfo) return E_FAIL;
    OleStdFreeSummaryInfo(ppSumInfo);
    *ppSumInfo = OleStdInitSummaryInfo(0);
    if (!*ppSumInfo) return E_FAIL;
    struct tm now;
    TimeStamp(&now);
    SetSumInfoDate(*ppSumInfo, PIDSI_CREATE_DTM, &now);
    return S_OK;
}

HRESULT SetSummaryInfoFields1(CPropertySet* pSumInfo, const char* pszTitle, const char* pszSubject,
                              const char* pszAuthor, const char* pszKeywords, const char* pszComments,
                              const char* pszAppName, const char* pszRevision) {
    const struct {
        DWORD id;
        const char* text;
    } fields[] = {{PIDSI_TITLE, pszTitle},       {PIDSI_SUBJECT, pszSubject},   {PIDSI_AUTHOR, pszAuthor},
                  {PIDSI_LASTAUTHOR, pszAuthor}, {PIDSI_KEYWORDS, pszKeywords}, {PIDSI_COMMENTS, pszComments},
                  {PIDSI_APPNAME, pszAppName},   {PIDSI_REVNUMBER, pszRevision}};
    for (const auto& field : fields)
        OleStdSetStringProperty(pSumInfo, field.id, field.text);
    OleStdSetSecurityProperty(pSumInfo, 0);
    return S_OK;
}

HRESULT SetSummaryInfoThumbnail(CPropertySet* pSumInfo, DWORD dwFormat, HGLOBAL hData, DWORD cbData, DWORD) {
    return OleStdSetThumbNailProperty(pSumInfo, dwFormat, hData, cbData) ? S_OK : E_FAIL;
}

HRESULT LoadSummaryInfo(IStorage* pStorage, CPropertySet* pSumInfo) {
    if (!pStorage || !pSumInfo) return E_FAIL;
    Owned<IStream> stream;
    const HRESULT opened = OpenForReading(pStorage, stream);
    if (FAILED(opened)) return opened;
    return OleStdReadSummaryInfo(stream.get(), pSumInfo) ? opened : E_FAIL;
}

HRESULT SaveSummaryInfo(IStorage* pStorage, CPropertySet* pSumInfo) {
    if (!pStorage || !pSumInfo) return E_FAIL;
    // First into memory: what fails there costs the document nothing.
    const Owned<IStream> image = MemoryStream();
    if (!image || !OleStdWriteSummaryInfo(image.get(), pSumInfo)) return E_FAIL;
    if (!HasRoom(pStorage, image.get())) return E_FAIL;
    SummaryBefore before(pStorage);
    Owned<IStream> stream;
    const HRESULT created = Replace(pStorage, stream);
    if (SUCCEEDED(created) && CopyAll(image.get(), stream.get())) return created;
    stream.reset();
    before.PutBack();
    return FAILED(created) ? created : E_FAIL;
}

HRESULT GetFileSummaryInfo(const char* pszFileName, IStorage** ppStorage, CPropertySet** ppSumInfo) {
    if (!pszFileName || !ppStorage || !ppSumInfo) return E_FAIL;
    *ppStorage = nullptr;
    const std::wstring name = Wide(pszFileName);
    if (orlo::CheckCompoundFile(name.c_str()) == orlo::CompoundState::unsafe) return STG_E_DOCFILECORRUPT;
    Owned<IStorage> storage;
    HRESULT result = ::StgOpenStorage(name.c_str(), nullptr, kRead, nullptr, 0, Receive(storage));
    if (FAILED(result)) return result;
    if (!*ppSumInfo) *ppSumInfo = OleStdInitSummaryInfo(0);
    result = *ppSumInfo ? LoadSummaryInfo(storage.get(), *ppSumInfo) : E_FAIL;
    if (SUCCEEDED(result))
        *ppStorage = storage.release();
    else
        OleStdFreeSummaryInfo(ppSumInfo);
    return result;
}

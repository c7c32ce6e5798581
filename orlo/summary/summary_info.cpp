// Reads and writes the summary stream of a storage.

#include "orlo/summary/summary_info.h"

#include <algorithm>
#include <string>
#include <vector>

#include "files/file_error.h"
#include "orlo/propset/property_set.h"
#include "orlo/summary/compound_file.h"
#include "orlo/summary/edited_document.h"
#include "orlo/win/com_owner.h"
#include "orlo/win/encoded_text.h"

using orlo::Owned;
using orlo::Receive;
using orlo::Widen;

namespace {

constexpr DWORD kRead = STGM_READ | STGM_SHARE_EXCLUSIVE;
constexpr DWORD kChange = STGM_READWRITE | STGM_SHARE_EXCLUSIVE;
constexpr DWORD kReplace = STGM_CREATE | STGM_WRITE | STGM_SHARE_EXCLUSIVE;
constexpr size_t kMinLongStream = 4096; // in bytes; shorter streams share sectors
using Bytes = std::vector<BYTE>;

bool SeekTo(IStream* stream, size_t offset) {
    LARGE_INTEGER at;
    at.QuadPart = static_cast<LONGLONG>(offset);
    return SUCCEEDED(stream->Seek(at, STREAM_SEEK_SET, nullptr));
}

// Reads in pieces, because a damaged stream may report any size.
bool ReadAll(IStream* stream, Bytes& bytes) {
    constexpr ULONG kPiece = 4096;
    if (!SeekTo(stream, 0)) return false;
    for (ULONG got = 1; got != 0;) {
        const size_t before = bytes.size();
        bytes.resize(before + kPiece);
        if (FAILED(stream->Read(bytes.data() + before, kPiece, &got))) return false;
        bytes.resize(before + got);
    }
    return true;
}

// Writes the bytes from `offset` to `end` to the same position in the stream.
bool WritePart(IStream* stream, const Bytes& bytes, size_t offset, size_t end) {
    const ULONG size = static_cast<ULONG>(end - offset);
    ULONG written = 0;
    return size == 0 || (SeekTo(stream, offset) && SUCCEEDED(stream->Write(bytes.data() + offset, size, &written)) &&
                         written == size);
}

bool SetLength(IStream* stream, size_t length) {
    ULARGE_INTEGER size;
    size.QuadPart = length;
    return SUCCEEDED(stream->SetSize(size));
}

bool ImageOf(CPropertySet* set, Bytes& image) {
    Owned<IStream> stream;
    ::CreateStreamOnHGlobal(nullptr, TRUE, Receive(stream));
    return stream && OleStdWriteSummaryInfo(stream.get(), set) && ReadAll(stream.get(), image);
}

// Writes the part by which the new contents are longer first, so that a full disk is noticed before the old bytes are
// overwritten.
bool WriteOver(IStream* stream, const Bytes& before, const Bytes& after) {
    const size_t common = std::min(before.size(), after.size());
    return (after.size() <= before.size() || SetLength(stream, after.size())) &&
           WritePart(stream, after, common, after.size()) && WritePart(stream, after, 0, common) &&
           SetLength(stream, after.size());
}

// Restores the old contents. Some systems cannot make a long stream short again; it then stays long, padded with zeros.
void RestoreContents(IStream* stream, Bytes bytes) {
    if (!SetLength(stream, bytes.size())) {
        bytes.resize(std::max(bytes.size(), kMinLongStream));
        SetLength(stream, bytes.size());
    }
    WritePart(stream, bytes, 0, bytes.size());
}

bool Replace(IStream* stream, const Bytes& before, Bytes after) {
    // A long stream stays long, padded with zeros: moving it to the short ones would require new space.
    if (before.size() >= kMinLongStream && after.size() < kMinLongStream) after.resize(kMinLongStream);
    if (WriteOver(stream, before, after)) return true;
    RestoreContents(stream, before);
    return false;
}

// Tests whether there is space for a short stream by writing a long one, which the system can remove again even if the
// disk is full.
bool HasSpaceForShortStream(IStream* stream) {
    const Bytes reserve(2 * kMinLongStream);
    const bool written = SetLength(stream, reserve.size()) && WritePart(stream, reserve, 0, reserve.size());
    return SetLength(stream, 0) && written;
}

// Returns STGM_READ, STGM_WRITE or STGM_READWRITE.
DWORD AccessTo(IStorage* storage) {
    constexpr DWORD kAccess = STGM_READ | STGM_WRITE | STGM_READWRITE;
    STATSTG stat;
    return SUCCEEDED(storage->Stat(&stat, STATFLAG_NONAME)) ? stat.grfMode & kAccess : STGM_READWRITE;
}

HRESULT WriteNew(IStorage* storage, const wchar_t* name, const Bytes& image) {
    Owned<IStream> stream;
    const HRESULT created = storage->CreateStream(name, kReplace, 0, 0, Receive(stream));
    if (FAILED(created)) return created;
    if ((image.size() >= kMinLongStream || HasSpaceForShortStream(stream.get())) &&
        WritePart(stream.get(), image, 0, image.size()))
        return created;
    stream.reset();
    storage->DestroyElement(name);
    return E_FAIL;
}

HRESULT ResultOf(const std::error_code& reason) {
    return reason && reason.category() == std::system_category() ? HRESULT_FROM_WIN32(reason.value()) : E_FAIL;
}

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
    const HRESULT opened =
        pStorage->OpenStream(Widen(kSummaryStreamName, CP_ACP).c_str(), nullptr, kRead, 0, Receive(stream));
    if (FAILED(opened)) return opened;
    return OleStdReadSummaryInfo(stream.get(), pSumInfo) ? opened : E_FAIL;
}

HRESULT SaveSummaryInfo(IStorage* pStorage, CPropertySet* pSumInfo) {
    if (!pStorage || !pSumInfo) return E_FAIL;
    const DWORD access = AccessTo(pStorage);
    if (access == STGM_READ) return STG_E_ACCESSDENIED; // some systems would open a stream for writing anyway
    // Composed in memory first, so that failures do not affect the document.
    Bytes image, before;
    if (!ImageOf(pSumInfo, image)) return E_FAIL;
    const std::wstring name = Widen(kSummaryStreamName, CP_ACP);
    if (access == STGM_WRITE) return WriteNew(pStorage, name.c_str(), image); // the old summary cannot be read
    Owned<IStream> stream;
    const HRESULT opened = pStorage->OpenStream(name.c_str(), nullptr, kChange, 0, Receive(stream));
    if (opened == STG_E_FILENOTFOUND) return WriteNew(pStorage, name.c_str(), image);
    if (FAILED(opened)) return opened;
    if (ReadAll(stream.get(), before)) return Replace(stream.get(), before, image) ? opened : E_FAIL;
    stream.reset(); // damaged, so it does not have to be preserved
    return WriteNew(pStorage, name.c_str(), image);
}

HRESULT SaveFileSummaryInfo(const char* pszFileName, CPropertySet* pSumInfo) {
    Bytes image;
    if (!pszFileName || !pSumInfo || !ImageOf(pSumInfo, image)) return E_FAIL;
    try {
        orlo::EditedDocument document(Widen(pszFileName, CP_ACP));
        document.Write(kSummaryStreamName, std::move(image));
        document.Commit();
        return S_OK;
    } catch (const orlo::UnfitDocument&) {
        return STG_E_DOCFILECORRUPT;
    } catch (const files::FileError& error) {
        return ResultOf(error.Reason());
    } catch (const std::exception&) {
        return E_FAIL;
    }
}

HRESULT GetFileSummaryInfo(const char* pszFileName, IStorage** ppStorage, CPropertySet** ppSumInfo) {
    if (!pszFileName || !ppStorage || !ppSumInfo) return E_FAIL;
    *ppStorage = nullptr;
    const std::wstring name = Widen(pszFileName, CP_ACP);
    if (orlo::StateOfCompoundFile(name.c_str()) == orlo::CompoundState::unsafe) return STG_E_DOCFILECORRUPT;
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

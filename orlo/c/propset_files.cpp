// Property sets from memory, streams and compound files, and back; a file is changed in a copy that takes its place.

#include <windows.h>

#include <objbase.h>

#include <algorithm>

#include "orlo/c/guarded_call.h"
#include "orlo/c/propset.h"
#include "orlo/propset/code_page.h"
#include "orlo/summary/compound_file.h"
#include "orlo/summary/summary_info.h"
#include "orlo/win/com_owner.h"

using namespace orlo;

namespace {

constexpr size_t kLongest = 0x10000000; // bytes of a set that is read from a stream
constexpr DWORD kWriting = STGM_READWRITE | STGM_SHARE_EXCLUSIVE;

struct CloseFile {
    void operator()(HANDLE file) const { ::CloseHandle(file); }
};
using OwnedFile = std::unique_ptr<void, CloseFile>;

[[noreturn]] void RefuseByLastError(const char* what) {
    RefuseWithSystemError(static_cast<long>(::GetLastError()), what);
}

void Check(HRESULT result, const char* what) {
    if (FAILED(result)) RefuseWithSystemError(result, what);
}

OrloPropset Open(const uint8_t* data, size_t size) {
    std::vector<Finding> findings;
    std::optional<SetImage> image = ReadSetImage(data, size, findings);
    if (!image) Refuse(kOrloDamaged, "this is no property set");
    const bool isDamaged = std::any_of(findings.begin(), findings.end(), [](const Finding& finding) {
        return finding.severity == Severity::damaged;
    });
    return Hold({std::move(*image), isDamaged});
}

Bytes Written(OrloPropset set) {
    std::optional<Bytes> bytes = WriteSetImage(HeldWhole(set)->image);
    if (!bytes) Refuse(kOrloNotEncodable, "the code page of a section can't say one of its names");
    return std::move(*bytes);
}

Bytes ReadToEnd(IStream& stream) {
    Bytes bytes;
    uint8_t part[4096];
    for (ULONG read = 1; read != 0;) {
        Check(stream.Read(part, sizeof part, &read), "the stream can't be read");
        bytes.insert(bytes.end(), part, part + std::min<ULONG>(read, sizeof part));
        if (bytes.size() > kLongest) Refuse(kOrloDamaged, "the stream is too long for a property set");
    }
    return bytes;
}

void WriteWhole(IStream& stream, const Bytes& bytes) {
    ULONG written = 0;
    Check(stream.Write(bytes.data(), static_cast<ULONG>(bytes.size()), &written),
          "the stream can't be written");
    Check(written == bytes.size() ? S_OK : STG_E_MEDIUMFULL, "the stream can't be written");
}

std::wstring StreamName(const char* name) {
    const std::string text = name != nullptr ? name : kSummaryStreamName;
    const std::optional<std::string> wide = Utf8ToCodePage(text, kCodePageUtf16);
    if (!wide || text.empty()) Refuse(kOrloBadArgument, "this is no name of a stream");
    return std::wstring(reinterpret_cast<const wchar_t*>(wide->data()), wide->size() / sizeof(wchar_t));
}

bool SameStream(const std::u16string& path, const std::wstring& name) {
    return ::CompareStringOrdinal(reinterpret_cast<const wchar_t*>(path.data()),
                                  static_cast<int>(path.size()), name.data(), static_cast<int>(name.size()),
                                  TRUE) == CSTR_EQUAL;
}

OwnedFile OpenFile(const wchar_t* path, DWORD access, DWORD sharing) {
    const HANDLE file = ::CreateFileW(path, access, sharing, nullptr, OPEN_EXISTING, 0, nullptr);
    if (file != INVALID_HANDLE_VALUE) return OwnedFile(file);
    const DWORD error = ::GetLastError();
    if (error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND)
        Refuse(kOrloNotFound, "there is no such file");
    RefuseWithSystemError(static_cast<long>(error), "the file can't be opened");
}

Bytes ReadStream(const wchar_t* path, const std::wstring& name) {
    const OwnedFile file = OpenFile(path, GENERIC_READ, FILE_SHARE_READ);
    const CompoundReader reader = ReadCompoundFile(file.get());
    if (reader.State() == CompoundState::foreign) Refuse(kOrloDamaged, "the file is no compound file");
    for (const CompoundStream& stream : reader.Streams())
        if (SameStream(stream.path, name)) return reader.Read(stream);
    Refuse(kOrloNotFound, "the file has no such stream");
}

// The file's own name where the given one is a link. Refused: what somebody has open, and what is damaged.
std::wstring WritableFile(const wchar_t* path) {
    const OwnedFile file = OpenFile(path, GENERIC_READ | GENERIC_WRITE, 0);
    if (ReadCompoundFile(file.get()).State() != CompoundState::sound)
        Refuse(kOrloDamaged, "the file is no sound compound file and was left alone");
    std::wstring own(32768, L'\0'); // no path is longer
    const DWORD size = ::GetFinalPathNameByHandleW(file.get(), own.data(), static_cast<DWORD>(own.size()), 0);
    if (size == 0 || size >= own.size()) RefuseByLastError("the file's own name can't be found");
    own.resize(size);
    return own;
}

// Goes with this object unless it has taken the place of its file.
class PartFile {
public:
    explicit PartFile(const std::wstring& file)
        : path_(file + L"." + std::to_wstring(::GetCurrentProcessId()) + L"-" +
                std::to_wstring(::GetCurrentThreadId()) + L".part") {}
    ~PartFile() {
        if (!path_.empty()) ::DeleteFileW(path_.c_str());
    }
    PartFile(const PartFile&) = delete;
    PartFile& operator=(const PartFile&) = delete;

    const wchar_t* Path() const { return path_.c_str(); }
    void TakePlaceOf(const std::wstring& file, bool isThere) {
        const BOOL done = isThere ? ::ReplaceFileW(file.c_str(), Path(), nullptr, 0, nullptr, nullptr)
                                  : ::MoveFileExW(Path(), file.c_str(), MOVEFILE_WRITE_THROUGH);
        if (!done) RefuseByLastError("the file can't be replaced");
        path_.clear();
    }

private:
    std::wstring path_;
};

void WriteInto(IStorage& storage, const std::wstring& name, const Bytes& bytes) {
    Owned<IStream> stream;
    HRESULT result = storage.OpenStream(name.c_str(), nullptr, kWriting, 0, Receive(stream));
    if (result == STG_E_FILENOTFOUND)
        result = storage.CreateStream(name.c_str(), kWriting | STGM_FAILIFTHERE, 0, 0, Receive(stream));
    Check(result, "the stream can't be made");
    ULARGE_INTEGER size;
    size.QuadPart = bytes.size();
    Check(stream->SetSize(size), "the stream can't be written");
    WriteWhole(*stream, bytes);
    stream.reset();
    Check(storage.Commit(STGC_DEFAULT), "the file can't be written");
}

void SaveInCopy(const wchar_t* path, const std::wstring& name, const Bytes& bytes) {
    const DWORD attributes = ::GetFileAttributesW(path);
    const bool isThere = attributes != INVALID_FILE_ATTRIBUTES;
    // Some systems let an administrator replace it nevertheless.
    if (isThere && (attributes & FILE_ATTRIBUTE_READONLY) != 0)
        Refuse(kOrloSystemError, "the file is read-only and was left alone");
    const std::wstring file = isThere ? WritableFile(path) : path;
    PartFile part(file);
    if (isThere && !::CopyFileW(file.c_str(), part.Path(), FALSE))
        RefuseByLastError("the file can't be copied");
    {
        Owned<IStorage> storage;
        Check(isThere ? ::StgOpenStorage(part.Path(), nullptr, kWriting, nullptr, 0, Receive(storage))
                      : ::StgCreateDocfile(part.Path(), kWriting | STGM_CREATE, 0, Receive(storage)),
              "the file can't be written");
        WriteInto(*storage, name, bytes);
    }
    if (StateOfCompoundFile(part.Path()) != CompoundState::sound || ReadStream(part.Path(), name) != bytes)
        Refuse(kOrloSystemError, "the changed copy is not as it should be");
    if (!::FlushFileBuffers(OpenFile(part.Path(), GENERIC_WRITE, 0).get()))
        RefuseByLastError("the file can't be written");
    part.TakePlaceOf(file, isThere);
}

} // namespace

OrloResult ORLO_CALL OrloPropsetOpenMemory(const void* data, size_t size, OrloPropset* set) {
    return GuardedCall([&] {
        RequireNotNull(set, "the handle") = nullptr;
        *set = Open(&RequireNotNull(static_cast<const uint8_t*>(data), "the data"), size);
    });
}

OrloResult ORLO_CALL OrloPropsetOpenStream(IStream* stream, OrloPropset* set) {
    return GuardedCall([&] {
        RequireNotNull(set, "the handle") = nullptr;
        const Bytes bytes = ReadToEnd(RequireNotNull(stream, "the stream"));
        *set = Open(bytes.data(), bytes.size());
    });
}

OrloResult ORLO_CALL OrloPropsetOpenFile(const wchar_t* path, const char* streamName, OrloPropset* set) {
    return GuardedCall([&] {
        RequireNotNull(set, "the handle") = nullptr;
        const Bytes bytes = ReadStream(&RequireNotNull(path, "the path"), StreamName(streamName));
        *set = Open(bytes.data(), bytes.size());
    });
}

OrloResult ORLO_CALL OrloPropsetSaveMemory(OrloPropset set, void* buffer, size_t* size) {
    return GuardedCall([&] {
        const Bytes bytes = Written(set);
        HandOut(bytes.data(), bytes.size(), buffer, size);
    });
}

OrloResult ORLO_CALL OrloPropsetSaveStream(OrloPropset set, IStream* stream) {
    return GuardedCall([&] { WriteWhole(RequireNotNull(stream, "the stream"), Written(set)); });
}

OrloResult ORLO_CALL OrloPropsetSaveFile(OrloPropset set, const wchar_t* path, const char* streamName) {
    return GuardedCall(
        [&] { SaveInCopy(&RequireNotNull(path, "the path"), StreamName(streamName), Written(set)); });
}

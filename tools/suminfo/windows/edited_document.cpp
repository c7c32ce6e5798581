// The copy: made, changed by the system, compared with what was meant, put in the document's place.

#include "edited_document.h"

#include <algorithm>
#include <objbase.h>

#include "failure.h"
#include "orlo/win/com_owner.h"
#include "part_file.h"
#include "storage_failure.h"
#include "text.h"
#include "wide_text.h"

namespace suminfo {
namespace {

constexpr DWORD kWriting = STGM_READWRITE | STGM_SHARE_EXCLUSIVE;

// Whoever has the file open now would continue with the old one, or write over the new one.
const std::string& Unused(const std::string& file) {
    // Some systems let an administrator write nevertheless.
    const DWORD attributes = ::GetFileAttributesW(ToWide(file).c_str());
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY))
        throw Failure("was left alone: the file is read-only");
    if (attributes == INVALID_FILE_ATTRIBUTES || !(attributes & FILE_ATTRIBUTE_DIRECTORY))
        OpenFile(ToWide(file), GENERIC_READ | GENERIC_WRITE, 0);
    return file;
}

// The file's own name, where the given one is a link.
std::wstring PathOf(const OwnedFile& file) {
    std::wstring path(32768, L'\0'); // no path is longer
    const DWORD size =
        ::GetFinalPathNameByHandleW(file.get(), path.data(), static_cast<DWORD>(path.size()), 0);
    if (size == 0 || size >= path.size()) FailBySystem("its own name can't be found");
    path.resize(size);
    return path;
}

void CheckResult(HRESULT result, const std::string& name) {
    if (FAILED(result)) Fail(result, "stream " + StreamNameShown(name));
}

void WriteStream(IStorage& storage, const std::string& name, const orlo::Bytes& bytes) {
    const std::wstring wide = ToWide(name);
    IStream* opened = nullptr;
    // An existing one keeps its place and the case of its name.
    HRESULT result = storage.OpenStream(wide.c_str(), nullptr, kWriting, 0, &opened);
    if (result == STG_E_FILENOTFOUND)
        result = storage.CreateStream(wide.c_str(), kWriting | STGM_FAILIFTHERE, 0, 0, &opened);
    CheckResult(result, name);
    const orlo::Owned<IStream> stream(opened);
    ULARGE_INTEGER size;
    size.QuadPart = bytes.size();
    CheckResult(stream->SetSize(size), name);
    ULONG written = 0;
    CheckResult(stream->Write(bytes.data(), static_cast<ULONG>(bytes.size()), &written), name);
    CheckResult(written == bytes.size() ? S_OK : STG_E_MEDIUMFULL, name);
}

void WriteStreams(const std::wstring& file, const std::map<std::string, orlo::Bytes>& streams) {
    IStorage* opened = nullptr;
    const HRESULT result = ::StgOpenStorage(file.c_str(), nullptr, kWriting, nullptr, 0, &opened);
    if (FAILED(result)) Fail(result, "its copy");
    const orlo::Owned<IStorage> storage(opened);
    for (const auto& [name, bytes] : streams)
        WriteStream(*storage, name, bytes);
    const HRESULT committed = storage->Commit(STGC_DEFAULT);
    if (FAILED(committed)) Fail(committed, "its copy");
}

// The copy on the disk, with the document's attributes and time of creation.
void Settle(const std::wstring& copy, const std::wstring& document) {
    WIN32_FILE_ATTRIBUTE_DATA kept;
    if (!::GetFileAttributesExW(document.c_str(), GetFileExInfoStandard, &kept))
        FailBySystem("its attributes can't be kept");
    {
        const OwnedFile file = OpenFile(copy, GENERIC_READ | GENERIC_WRITE, 0);
        ::SetFileTime(file.get(), &kept.ftCreationTime, nullptr, nullptr);
        if (!::FlushFileBuffers(file.get())) FailBySystem("its copy");
    }
    constexpr DWORD kSettable = FILE_ATTRIBUTE_ARCHIVE | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM |
                                FILE_ATTRIBUTE_NOT_CONTENT_INDEXED;
    const DWORD attributes = kept.dwFileAttributes & kSettable;
    if (!::SetFileAttributesW(copy.c_str(), attributes != 0 ? attributes : FILE_ATTRIBUTE_NORMAL))
        FailBySystem("its attributes can't be kept");
}

} // namespace

EditedDocument::EditedDocument(const std::string& file) : document_(Unused(file)) {
    if (document_->Reader().State() != orlo::CompoundState::sound)
        throw Failure("was left alone: the compound file is damaged, writing could make it worse");
}

void EditedDocument::Commit() {
    if (written_.empty()) return;
    const std::wstring path = PathOf(document_->File());
    PartFile part(ToUtf8(path));
    const std::wstring copy = ToWide(part.Path());
    if (!::CopyFileW(path.c_str(), copy.c_str(), FALSE)) FailBySystem("can't be copied");
    WriteStreams(copy, written_);
    Settle(copy, path);
    Check(part.Path());
    document_.reset();
    part.TakePlace();
}

bool EditedDocument::IsWritten(const std::u16string& path) const {
    const std::string name = Utf8(path);
    return std::any_of(written_.begin(), written_.end(),
                       [&](const auto& stream) { return SameName(stream.first, name); });
}

// Everything written is present, nothing else has changed, and the file is sound.
void EditedDocument::Check(const std::string& copy) const {
    const Document changed(copy);
    const orlo::CompoundReader& before = document_->Reader();
    const orlo::CompoundReader& after = changed.Reader();
    std::map<std::u16string, const orlo::CompoundStream*> streams;
    for (const orlo::CompoundStream& stream : after.Streams())
        streams[stream.path] = &stream;
    size_t kept = 0;
    bool good = after.State() == orlo::CompoundState::sound;
    for (const orlo::CompoundStream& stream : before.Streams()) {
        if (IsWritten(stream.path)) continue;
        const auto found = streams.find(stream.path);
        good = good && found != streams.end() && after.Read(*found->second) == before.Read(stream);
        ++kept;
    }
    for (const auto& [name, bytes] : written_)
        good = good && changed.Read(name) == bytes;
    if (!good || after.Streams().size() != kept + written_.size())
        throw Failure("was left alone: its changed copy is not as it should be");
}

} // namespace suminfo

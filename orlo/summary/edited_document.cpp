// Edits a copy of a compound file with the system's functions and verifies it with CompoundReader.

#include "orlo/summary/edited_document.h"

#include <algorithm>
#include <windows.h>

#include <objbase.h>

#include "files/file_error.h"
#include "files/file_replacement.h"
#include "files/open_file.h"
#include "orlo/propset/code_page.h"
#include "orlo/win/com_owner.h"
#include "orlo/win/encoded_text.h"

namespace orlo {
namespace {

constexpr DWORD kWriting = STGM_READWRITE | STGM_SHARE_EXCLUSIVE;
constexpr char kUnlikeIntended[] = "the file was left unchanged: verification of the new copy failed";

// Throws if a storage function failed; results are system error codes.
void Check(HRESULT result, const std::string& what) {
    if (FAILED(result)) throw files::FileError(what, {HRESULT_CODE(result), std::system_category()});
}

files::OpenFile Open(const std::filesystem::path& file, DWORD access, DWORD sharing) {
    files::OpenFile opened(::CreateFileW(file.c_str(), access, sharing, nullptr, OPEN_EXISTING, 0, nullptr));
    if (!opened) files::ThrowLastError("the file cannot be opened");
    return opened;
}

// Another program that has the file open would continue with the old file, or overwrite the new one.
const std::filesystem::path& RequireNotInUse(const std::filesystem::path& file) {
    Open(file, GENERIC_READ | GENERIC_WRITE, 0);
    return file;
}

void WriteStream(IStorage& storage, const std::string& name, const Bytes& bytes) {
    const std::wstring wide = Widen(name, CP_UTF8);
    Owned<IStream> stream;
    // An existing stream keeps its position and the case of its name.
    HRESULT result = storage.OpenStream(wide.c_str(), nullptr, kWriting, 0, Receive(stream));
    if (result == STG_E_FILENOTFOUND)
        result = storage.CreateStream(wide.c_str(), kWriting | STGM_FAILIFTHERE, 0, 0, Receive(stream));
    ULARGE_INTEGER size;
    size.QuadPart = bytes.size();
    if (SUCCEEDED(result)) result = stream->SetSize(size);
    ULONG written = 0;
    if (SUCCEEDED(result)) result = stream->Write(bytes.data(), static_cast<ULONG>(bytes.size()), &written);
    if (SUCCEEDED(result) && written != bytes.size()) result = STG_E_MEDIUMFULL;
    Check(result, "the stream cannot be written");
}

void WriteStreams(const std::filesystem::path& file, bool isNew, const std::map<std::string, Bytes>& streams) {
    constexpr char kNotWritten[] = "the file cannot be written";
    Owned<IStorage> storage;
    Check(isNew ? ::StgCreateDocfile(file.c_str(), kWriting | STGM_CREATE, 0, Receive(storage))
                : ::StgOpenStorage(file.c_str(), nullptr, kWriting, nullptr, 0, Receive(storage)),
          kNotWritten);
    for (const auto& [name, bytes] : streams)
        WriteStream(*storage, name, bytes);
    Check(storage->Commit(STGC_DEFAULT), kNotWritten);
}

std::optional<Bytes> ReadStream(const CompoundReader& file, const std::string& name) {
    const CompoundStream* stream = FindStream(file, name);
    return stream ? std::optional<Bytes>(file.Read(*stream)) : std::nullopt;
}

} // namespace

UnfitDocument::UnfitDocument(const std::string& text) : std::runtime_error(text) {}
UnfitDocument::~UnfitDocument() = default;

class EditedDocument::Original {
public:
    explicit Original(const std::filesystem::path& file)
        : guard(Open(RequireNotInUse(file), GENERIC_READ, FILE_SHARE_READ)), reader(OpenCompoundFile(file)) {}

    const files::OpenFile guard; // locks out writers
    const CompoundReader reader;
};

EditedDocument::EditedDocument(const std::filesystem::path& file, IfMissing ifMissing) : path_(file) {
    const DWORD attributes = ::GetFileAttributesW(file.c_str());
    const bool isThere = attributes != INVALID_FILE_ATTRIBUTES;
    if (!isThere && ifMissing == IfMissing::Create) return;
    // some systems let administrators write anyway
    if (isThere && (attributes & FILE_ATTRIBUTE_READONLY)) throw files::FileError("the file is read-only");
    original_ = std::make_unique<Original>(file);
    if (original_->reader.State() == CompoundState::foreign) throw UnfitDocument("the file is not a compound file");
    if (original_->reader.State() != CompoundState::sound)
        throw UnfitDocument("was left alone: the compound file is damaged, writing could make it worse");
}

EditedDocument::~EditedDocument() = default;

std::optional<Bytes> EditedDocument::Read(const std::string& name) const {
    if (!original_) return std::nullopt;
    return read_[name] = ReadStream(original_->reader, name);
}

void EditedDocument::Write(const std::string& name, Bytes bytes) {
    written_[name] = std::move(bytes);
}

void EditedDocument::Commit() {
    if (written_.empty()) return;
    files::FileReplacement copy(path_);
    if (original_ && !::CopyFileW(copy.Target().c_str(), copy.Path().c_str(), FALSE))
        files::ThrowLastError("the file cannot be copied");
    WriteStreams(copy.Path(), !original_, written_);
    Check(copy.Path());
    original_.reset();
    copy.TakePlace();
}

bool EditedDocument::IsWritten(const CompoundStream& stream) const {
    const std::string path =
        Narrow(std::wstring_view(reinterpret_cast<const wchar_t*>(stream.path.data()), stream.path.size()), CP_UTF8);
    return std::any_of(written_.begin(), written_.end(),
                       [&](const auto& written) { return IsSameName(written.first, path); });
}

// Verifies that the copy is intact, contains everything that was written, and is otherwise equal to the file.
void EditedDocument::Check(const std::filesystem::path& copy) const {
    const CompoundReader after = OpenCompoundFile(copy);
    std::map<std::u16string, const CompoundStream*> streams;
    for (const CompoundStream& stream : after.Streams())
        streams[stream.path] = &stream;
    bool isGood = after.State() == CompoundState::sound;
    size_t kept = 0;
    if (original_) {
        const CompoundReader now = OpenCompoundFile(path_);
        for (const CompoundStream& stream : now.Streams()) {
            if (IsWritten(stream)) continue;
            const auto found = streams.find(stream.path);
            isGood = isGood && found != streams.end() && after.Read(*found->second) == now.Read(stream);
            ++kept;
        }
        for (const auto& [name, bytes] : read_)
            if (ReadStream(now, name) != bytes) throw files::FileError("the file was changed meanwhile");
    }
    for (const auto& [name, bytes] : written_)
        isGood = isGood && ReadStream(after, name) == bytes;
    if (!isGood || after.Streams().size() != kept + written_.size()) throw files::FileError(kUnlikeIntended);
}

} // namespace orlo

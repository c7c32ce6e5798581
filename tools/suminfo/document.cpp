// Storages and streams. Writing is transacted: the storage keeps the old data until Commit has written the
// new.

#include "document.h"

#include <algorithm>
#include <filesystem>

#include "failure.h"
#include "orlo/summary/compound_file.h"
#include "text.h"

namespace suminfo {
namespace {

constexpr DWORD kReadInside = STGM_READ | STGM_SHARE_EXCLUSIVE;
constexpr DWORD kWriteInside = STGM_READWRITE | STGM_SHARE_EXCLUSIVE;
constexpr int kDeepest = 64; // storages in storages: no document has more, a damaged one may go in circles

// The structure first: the system itself may turn for ever on a damaged file, or tear it further by writing.
void RefuseDamaged(const std::string& file, bool writing) {
    const orlo::CompoundState state = orlo::CheckCompoundFile(ToWide(file).c_str());
    if (state == orlo::CompoundState::unsafe)
        throw Failure("can't be opened: the compound file is damaged, its chains run in circles");
    if (writing && state == orlo::CompoundState::torn)
        throw Failure("was left alone: the compound file is damaged, writing could make it worse");
}

Owned<IStorage> Open(const std::string& file, DWORD mode) {
    if (std::filesystem::is_directory(PathOf(file))) throw Failure("is a folder; -r looks into folders");
    if (!std::filesystem::exists(PathOf(file))) Fail(STG_E_FILENOTFOUND, "can't be opened");
    RefuseDamaged(file, (mode & STGM_READWRITE) != 0);
    IStorage* storage = nullptr;
    const HRESULT result = ::StgOpenStorage(ToWide(file).c_str(), nullptr, mode, nullptr, 0, &storage);
    if (FAILED(result)) Fail(result, "can't be opened");
    return Owned<IStorage>(storage);
}

// What there is of the stream, sector by sector: the announced size is no reason to allocate, and a chain that ends early
// leaves the part before.
NamedStream ReadStream(IStorage& storage, const std::wstring& name, const std::string& path) {
    constexpr size_t kPiece = 512;
    NamedStream read;
    read.name = path;
    IStream* opened = nullptr;
    HRESULT result = storage.OpenStream(name.c_str(), nullptr, kReadInside, 0, &opened);
    if (SUCCEEDED(result)) {
        const Owned<IStream> stream(opened);
        for (ULONG got = 1; SUCCEEDED(result) && got != 0;) {
            const size_t before = read.bytes.size();
            read.bytes.resize(before + kPiece);
            result = stream->Read(read.bytes.data() + before, kPiece, &got);
            read.bytes.resize(before + (SUCCEEDED(result) ? got : 0));
        }
    }
    if (FAILED(result)) read.error = TextOf(result);
    return read;
}

std::string Quoted(const std::string& stream) {
    return "stream " + StreamNameShown(stream);
}

struct Element {
    std::wstring name;
    DWORD kind; // STGTY_...
};

std::vector<Element> Elements(IStorage& storage) {
    IEnumSTATSTG* opened = nullptr;
    const HRESULT result = storage.EnumElements(0, nullptr, 0, &opened);
    if (FAILED(result)) Fail(result, "its directory");
    const Owned<IEnumSTATSTG> list(opened);
    std::vector<Element> elements;
    STATSTG stat;
    while (list->Next(1, &stat, nullptr) == S_OK) {
        const OwnedName name(stat.pwcsName);
        elements.push_back({name.get(), stat.type});
    }
    return elements;
}

void Collect(IStorage& storage, const std::string& prefix, int depth, std::vector<NamedStream>& found) {
    const std::vector<Element> elements = Elements(storage);
    for (const Element& element : elements) {
        if (element.kind != STGTY_STREAM || element.name.empty() || element.name.front() != 5) continue;
        const std::string name = prefix + ToUtf8(element.name);
        found.push_back(ReadStream(storage, element.name, name));
    }
    if (depth == kDeepest) return;
    for (const Element& element : elements) {
        if (element.kind != STGTY_STORAGE) continue;
        IStorage* inner = nullptr;
        const std::string name = prefix + ToUtf8(element.name);
        const HRESULT result =
            storage.OpenStorage(element.name.c_str(), nullptr, kReadInside, nullptr, 0, &inner);
        if (FAILED(result)) Fail(result, "storage " + StreamNameShown(name));
        Collect(*Owned<IStorage>(inner), name + "/", depth + 1, found);
    }
}

} // namespace

Document Document::ForReading(const std::string& file) {
    return Document(Open(file, STGM_READ | STGM_SHARE_DENY_WRITE));
}

Document Document::ForWriting(const std::string& file) {
    // Some systems let an administrator write all the same.
    const DWORD attributes = ::GetFileAttributesW(ToWide(file).c_str());
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY))
        throw Failure("was left alone: the file is read-only");
    return Document(Open(file, STGM_READWRITE | STGM_TRANSACTED | STGM_SHARE_EXCLUSIVE));
}

std::vector<NamedStream> Document::PropertySets() const {
    std::vector<NamedStream> found;
    Collect(*storage_, "", 0, found);
    return found;
}

std::optional<orlo::Bytes> Document::Read(const std::string& name) const {
    for (const Element& element : Elements(*storage_)) {
        if (element.kind != STGTY_STREAM || !SameName(ToUtf8(element.name), name)) continue;
        NamedStream read = ReadStream(*storage_, element.name, name);
        if (!read.error.empty()) throw Failure(Quoted(name) + ": " + read.error);
        return std::move(read.bytes);
    }
    return std::nullopt;
}

void Document::Write(const std::string& name, const orlo::Bytes& bytes) {
    const std::wstring wide = ToWide(name);
    IStream* opened = nullptr;
    // One that is there keeps its place and the case of its name.
    HRESULT result = storage_->OpenStream(wide.c_str(), nullptr, kWriteInside, 0, &opened);
    if (result == STG_E_FILENOTFOUND)
        result = storage_->CreateStream(wide.c_str(), kWriteInside | STGM_FAILIFTHERE, 0, 0, &opened);
    if (FAILED(result)) Fail(result, Quoted(name));
    const Owned<IStream> stream(opened);
    ULARGE_INTEGER size;
    size.QuadPart = bytes.size();
    ULONG written = 0;
    result = stream->SetSize(size);
    if (SUCCEEDED(result)) result = stream->Write(bytes.data(), static_cast<ULONG>(bytes.size()), &written);
    if (SUCCEEDED(result) && written != bytes.size()) result = STG_E_MEDIUMFULL;
    if (FAILED(result)) Fail(result, Quoted(name));
}

void Document::Commit() {
    const HRESULT result = storage_->Commit(STGC_DEFAULT);
    if (FAILED(result)) Fail(result, "nothing was changed");
}

} // namespace suminfo

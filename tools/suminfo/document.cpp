// Streams by their names.

#include "document.h"

#include <filesystem>

#include "failure.h"
#include "orlo/summary/compound_file.h"
#include "text.h"

namespace suminfo {
namespace {

OwnedFile Open(const std::string& file) {
    if (std::filesystem::is_directory(PathOf(file))) throw Failure("is a folder; -r looks into folders");
    return OpenFile(ToWide(file), GENERIC_READ, FILE_SHARE_READ);
}

std::string Utf8(const std::u16string& text) {
    return ToUtf8(std::wstring(text.begin(), text.end()));
}

std::string ErrorOf(const orlo::CompoundStream& stream) {
    return stream.fault == orlo::ChainFault::none
               ? ""
               : std::string("its chain of sectors ") + orlo::InWords(stream.fault);
}

bool IsPropertySet(const std::u16string& path) {
    const size_t name = path.rfind(u'/') + 1; // 0 without a storage
    return name < path.size() && path[name] == 5;
}

} // namespace

Document::Document(const std::string& file)
    : file_(Open(file)), reader_(orlo::ReadCompoundFile(file_.get())) {
    if (reader_.State() == orlo::CompoundState::foreign) Fail(STG_E_INVALIDHEADER, "can't be opened");
}

std::vector<NamedStream> Document::PropertySets() const {
    std::vector<NamedStream> found;
    for (const orlo::CompoundStream& stream : reader_.Streams())
        if (IsPropertySet(stream.path))
            found.push_back({Utf8(stream.path), reader_.Read(stream), ErrorOf(stream)});
    return found;
}

std::optional<orlo::Bytes> Document::Read(const std::string& name) const {
    for (const orlo::CompoundStream& stream : reader_.Streams()) {
        if (!SameName(Utf8(stream.path), name)) continue;
        const std::string error = ErrorOf(stream);
        if (!error.empty()) throw Failure("stream " + StreamNameShown(name) + ": " + error);
        return reader_.Read(stream);
    }
    return std::nullopt;
}

std::vector<std::string> Document::StreamDamage() const {
    std::vector<std::string> damage;
    for (const orlo::CompoundStream& stream : reader_.Streams()) {
        const std::string error = ErrorOf(stream);
        if (!error.empty()) damage.push_back("stream " + StreamNameShown(Utf8(stream.path)) + ": " + error);
    }
    return damage;
}

std::wstring Document::Path() const {
    std::wstring path(32768, L'\0'); // no path is longer
    const DWORD size =
        ::GetFinalPathNameByHandleW(file_.get(), path.data(), static_cast<DWORD>(path.size()), 0);
    if (size == 0 || size >= path.size()) FailBySystem("its own name can't be found");
    path.resize(size);
    return path;
}

OwnedFile OpenFile(const std::wstring& file, DWORD access, DWORD sharing) {
    const HANDLE opened = ::CreateFileW(file.c_str(), access, sharing, nullptr, OPEN_EXISTING, 0, nullptr);
    if (opened == INVALID_HANDLE_VALUE) FailBySystem("can't be opened");
    return OwnedFile(opened);
}

} // namespace suminfo

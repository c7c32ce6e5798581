// Finds streams by name.

#include "document.h"

#include <filesystem>
#include <memory>

#include "failure.h"
#include "sources.h"
#include "text.h"

namespace fs = std::filesystem;

namespace suminfo {
namespace {

orlo::CompoundReader Open(const std::string& file) {
    // Standard input may be a pipe, which cannot be read at an offset.
    if (file == kStandardStream) return orlo::ReadCompoundFile(std::make_shared<orlo::Bytes>(ReadFile(file)));
    std::error_code none; // whatever it is, opening it says more
    if (fs::is_directory(fs::u8path(file), none)) throw Failure("is a folder; use -r to search folders");
    return orlo::OpenCompoundFile(fs::u8path(file));
}

std::string ErrorOf(const orlo::CompoundStream& stream) {
    return stream.fault == orlo::ChainFault::none ? ""
                                                  : std::string("its chain of sectors ") + orlo::InWords(stream.fault);
}

bool IsPropertySet(const std::u16string& path) {
    const size_t name = path.rfind(u'/') + 1; // 0 without a storage
    return name < path.size() && path[name] == 5;
}

} // namespace

Document::Document(const std::string& file) : reader_(Open(file)) {
    if (reader_.State() == orlo::CompoundState::foreign) throw Failure("not a compound file");
}

std::vector<NamedStream> Document::PropertySets() const {
    std::vector<NamedStream> found;
    for (const orlo::CompoundStream& stream : reader_.Streams())
        if (IsPropertySet(stream.path)) found.push_back({Utf8(stream.path), reader_.Read(stream), ErrorOf(stream)});
    return found;
}

std::optional<orlo::Bytes> Document::Read(const std::string& name) const {
    const orlo::CompoundStream* stream = orlo::FindStream(reader_, name);
    if (stream == nullptr) return std::nullopt;
    const std::string error = ErrorOf(*stream);
    if (!error.empty()) throw Failure("stream " + StreamNameShown(name) + ": " + error);
    return reader_.Read(*stream);
}

std::vector<std::string> Document::StreamDamage() const {
    std::vector<std::string> damage;
    for (const orlo::CompoundStream& stream : reader_.Streams()) {
        const std::string error = ErrorOf(stream);
        if (!error.empty()) damage.push_back("stream " + StreamNameShown(Utf8(stream.path)) + ": " + error);
    }
    return damage;
}

} // namespace suminfo

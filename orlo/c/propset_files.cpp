// Reads property sets from memory, streams and compound files and writes them. A file is changed in a copy that
// replaces it.

#include <windows.h>

#include <objbase.h>

#include <algorithm>

#include "files/file_error.h"
#include "orlo/c/guarded_call.h"
#include "orlo/c/propset.h"
#include "orlo/propset/code_page.h"
#include "orlo/summary/edited_document.h"
#include "orlo/summary/summary_info.h"

using namespace orlo;

namespace {

constexpr size_t kLongest = 0x10000000; // maximum number of bytes read from a stream
void Check(HRESULT result, const char* what) {
    if (FAILED(result)) ThrowSystemError(result, what);
}

OrloPropset Open(const uint8_t* data, size_t size, std::optional<Origin> origin = std::nullopt) {
    std::vector<Finding> findings;
    std::optional<SetImage> image = ReadSetImage(data, size, findings);
    if (!image) ThrowError(kOrloDamaged, "not a property set");
    return AddSet({std::move(*image), std::move(findings), std::move(origin)});
}

Bytes Written(const OpenSet& set) {
    std::optional<Bytes> bytes = WriteSetImage(set.image);
    if (!bytes) ThrowError(kOrloNotEncodable, "a name cannot be represented in the code page of its section");
    return std::move(*bytes);
}

Bytes ReadToEnd(IStream& stream) {
    Bytes bytes;
    uint8_t part[4096];
    for (ULONG read = 1; read != 0;) {
        Check(stream.Read(part, sizeof part, &read), "the stream cannot be read");
        bytes.insert(bytes.end(), part, part + std::min<ULONG>(read, sizeof part));
        if (bytes.size() > kLongest) ThrowError(kOrloDamaged, "the stream is too long for a property set");
    }
    return bytes;
}

// Replaces the whole contents of the stream.
void WriteWhole(IStream& stream, const Bytes& bytes) {
    constexpr char kNotWritten[] = "the stream cannot be written";
    ULARGE_INTEGER size;
    size.QuadPart = bytes.size();
    Check(stream.SetSize(size), kNotWritten);
    Check(stream.Seek({}, STREAM_SEEK_SET, nullptr), kNotWritten);
    ULONG written = 0;
    Check(stream.Write(bytes.data(), static_cast<ULONG>(bytes.size()), &written), kNotWritten);
    Check(written == bytes.size() ? S_OK : STG_E_MEDIUMFULL, kNotWritten);
}

std::string StreamName(const char* name) {
    const std::string text = name != nullptr ? name : kSummaryStreamName;
    if (text.empty() || !Utf8ToCodePage(text, kCodePageUtf16))
        ThrowError(kOrloBadArgument, "the stream name is not valid");
    return text;
}

CompoundReader OpenToRead(const std::filesystem::path& path) {
    try {
        return OpenCompoundFile(path);
    } catch (const files::FileError& error) {
        const bool isMissing = error.Reason() == std::errc::no_such_file_or_directory;
        ThrowError(isMissing ? kOrloNotFound : kOrloSystemError, error.what());
    }
}

Bytes ReadStream(const std::filesystem::path& path, const std::string& name) {
    const CompoundReader reader = OpenToRead(path);
    if (reader.State() == CompoundState::foreign) ThrowError(kOrloDamaged, "not a compound file");
    const CompoundStream* stream = FindStream(reader, name);
    if (stream == nullptr) ThrowError(kOrloNotFound, "the file has no such stream");
    return reader.Read(*stream);
}

bool IsSamePlace(const Origin& origin, const std::filesystem::path& path, const std::string& stream) {
    std::error_code isMissing;
    return std::filesystem::equivalent(origin.file, path, isMissing) && IsSameName(origin.stream, stream);
}

void Save(OpenSet& set, const Bytes& bytes, const std::filesystem::path& path, const std::string& stream) {
    try {
        EditedDocument document(path, EditedDocument::IfMissing::Create);
        if (set.origin && IsSamePlace(*set.origin, path, stream) && document.Read(stream) != set.origin->bytes)
            ThrowError(kOrloChanged, "the stream has been changed since the set was read");
        document.Write(stream, bytes);
        document.Commit();
    } catch (const UnfitDocument& error) {
        ThrowError(kOrloDamaged, error.what());
    } catch (const files::FileError& error) {
        ThrowError(error.Reason() == std::errc::not_enough_memory ? kOrloOutOfMemory : kOrloSystemError, error.what());
    }
    set.origin = Origin{path, stream, bytes};
}

} // namespace

OrloResult ORLO_CALL OrloPropsetOpenMemory(const void* data, size_t size, OrloPropset* set) {
    return GuardedResult(set, "the handle",
                         [&] { return Open(&RequireNotNull(static_cast<const uint8_t*>(data), "the data"), size); });
}

OrloResult ORLO_CALL OrloPropsetOpenStream(IStream* stream, OrloPropset* set) {
    return GuardedResult(set, "the handle", [&] {
        const Bytes bytes = ReadToEnd(RequireNotNull(stream, "the stream"));
        return Open(bytes.data(), bytes.size());
    });
}

OrloResult ORLO_CALL OrloPropsetOpenFile(const wchar_t* path, const char* streamName, OrloPropset* set) {
    return GuardedResult(set, "the handle", [&] {
        const std::string stream = StreamName(streamName);
        Bytes bytes = ReadStream(&RequireNotNull(path, "the path"), stream);
        const uint8_t* data = bytes.data();
        const size_t size = bytes.size();
        return Open(data, size, Origin{path, stream, std::move(bytes)});
    });
}

OrloResult ORLO_CALL OrloPropsetSaveMemory(OrloPropset set, void* buffer, size_t* size) {
    return GuardedCall([&] {
        const Bytes bytes = Written(*RequireUndamagedSet(set));
        CopyOut(bytes.data(), bytes.size(), buffer, size);
    });
}

OrloResult ORLO_CALL OrloPropsetSaveStream(OrloPropset set, IStream* stream) {
    return GuardedCall([&] { WriteWhole(RequireNotNull(stream, "the stream"), Written(*RequireUndamagedSet(set))); });
}

OrloResult ORLO_CALL OrloPropsetSaveFile(OrloPropset set, const wchar_t* path, const char* streamName) {
    return GuardedCall([&] {
        const auto open = RequireUndamagedSet(set);
        Save(*open, Written(*open), &RequireNotNull(path, "the path"), StreamName(streamName));
    });
}

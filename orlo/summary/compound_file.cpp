// Reads compound files that other programs may have open.

#include "orlo/summary/compound_file.h"

#include <cstring>

#include "files/file_error.h"
#include "files/open_file.h"
#include "orlo/propset/code_page.h"

namespace orlo {

CompoundReader OpenCompoundFile(const std::filesystem::path& file) {
    const auto opened = std::make_shared<const files::OpenFile>(files::OpenToRead(file));
    const ReadAt read = [opened](uint64_t offset, void* buffer, size_t size) {
        return files::ReadAt(opened->get(), offset, buffer, size);
    };
    return CompoundReader(read, files::SizeOf(opened->get()));
}

CompoundReader ReadCompoundFile(std::shared_ptr<const std::vector<uint8_t>> bytes) {
    const ReadAt read = [bytes](uint64_t offset, void* buffer, size_t size) {
        if (offset > bytes->size() || size > bytes->size() - offset) return false;
        std::memcpy(buffer, bytes->data() + offset, size);
        return true;
    };
    return CompoundReader(read, bytes->size());
}

CompoundState StateOfCompoundFile(const std::filesystem::path& file) {
    try {
        return OpenCompoundFile(file).State();
    } catch (const files::FileError&) {
        return CompoundState::foreign;
    }
}

const CompoundStream* FindStream(const CompoundReader& file, std::string_view name) {
    for (const CompoundStream& stream : file.Streams()) {
        const std::string_view path(reinterpret_cast<const char*>(stream.path.data()), 2 * stream.path.size());
        const auto utf8 = CodePageToUtf8(path, kCodePageUtf16);
        if (utf8 && IsSameName(*utf8, name)) return &stream;
    }
    return nullptr;
}

} // namespace orlo

// Reads the streams of documents and the bytes of files.

#include "sources.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>

#include "failure.h"
#include "files/open_file.h"

namespace fs = std::filesystem;

namespace suminfo {

SourceSets SetsOf(const Source& source) {
    if (source.bare) return {{{"", ReadFile(source.file), ""}}, {}, {}};
    const Document document(source.file);
    return {document.PropertySets(), document.Damage(), document.StreamDamage()};
}

NamedStream SummaryOf(const Source& source) {
    if (source.bare) return {"", ReadFile(source.file), ""};
    auto bytes = Document(source.file).Read(kSummaryStream);
    if (!bytes) throw Failure("the document has no summary");
    return {kSummaryStream, std::move(*bytes), ""};
}

orlo::Bytes ReadFile(const std::string& file) {
    if (file == kStandardStream) return orlo::Bytes(std::istreambuf_iterator<char>(std::cin), {});
    const fs::path path = fs::u8path(file);
    std::error_code none; // errors are reported when it is opened
    if (fs::is_directory(path, none)) throw Failure("is a folder");
    files::OpenToRead(path); // throws with the reason
    std::ifstream stream(path, std::ios::binary);
    return orlo::Bytes(std::istreambuf_iterator<char>(stream), {});
}

} // namespace suminfo

// Streams of documents, bytes of files, files of folders.

#include "sources.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>

#include "failure.h"
#include "text.h"

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
    if (!bytes) throw Failure("it has no summary");
    return {kSummaryStream, std::move(*bytes), ""};
}

orlo::Bytes ReadFile(const std::string& file) {
    const fs::path path = PathOf(file);
    if (fs::is_directory(path)) throw Failure("is a folder");
    std::ifstream stream(path, std::ios::binary);
    if (!stream) throw Failure(fs::exists(path) ? "can't be opened" : "can't be opened: no such file");
    return orlo::Bytes(std::istreambuf_iterator<char>(stream), {});
}

std::vector<std::string> FilesOf(const std::vector<std::string>& named, bool recursive) {
    std::vector<std::string> files;
    for (const std::string& name : named) {
        std::error_code ignored;
        if (!recursive || !fs::is_directory(PathOf(name), ignored)) {
            files.push_back(name);
            continue;
        }
        std::vector<std::string> inside;
        const auto options = fs::directory_options::skip_permission_denied;
        for (fs::recursive_directory_iterator at(PathOf(name), options, ignored), end; at != end;
             at.increment(ignored)) {
            if (!at->is_regular_file(ignored)) continue;
            std::string file = ToUtf8(at->path().generic_wstring());
            if (IsCompoundFile(file)) inside.push_back(std::move(file));
        }
        std::sort(inside.begin(), inside.end());
        files.insert(files.end(), inside.begin(), inside.end());
    }
    return files;
}

} // namespace suminfo

// Reads the manifest of the streams.
#include "tests/propset/corpus.h"

#include <cctype>
#include <fstream>
#include <iterator>

using nlohmann::json;

std::vector<uint8_t> CorpusStream::Content() const {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void PrintTo(const CorpusStream& stream, std::ostream* out) {
    *out << stream.path;
}

std::vector<CorpusStream> AllCorpusStreams() {
    const std::string folder = ORLO_TEST_DATA "/propset/";
    std::ifstream manifest(folder + "manifest.json");
    std::vector<CorpusStream> streams;
    for (const json& entry : json::parse(manifest))
        streams.push_back({folder + entry["file"].get<std::string>(), entry});
    return streams;
}

std::string CorpusTestName(const std::string& path) {
    std::string name;
    for (const char c : path.substr(path.rfind('/') + 1))
        name += std::isalnum(static_cast<unsigned char>(c)) ? c : '_';
    return name;
}

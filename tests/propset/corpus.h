// The property-set streams of tests/data/propset, with their contents according to independent readers.
#pragma once

#include <nlohmann/json.hpp>
#include <ostream>
#include <string>
#include <vector>

struct CorpusStream {
    std::string path;
    nlohmann::json manifest; // contents according to independent readers

    std::vector<uint8_t> Content() const;
    bool IsReal() const { return manifest["origin"] == "real"; }
};
void PrintTo(const CorpusStream& stream, std::ostream* out);

std::vector<CorpusStream> AllCorpusStreams();
// Returns a name for a parameterized test.
std::string CorpusTestName(const std::string& path);

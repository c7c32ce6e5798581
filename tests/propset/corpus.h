// The property-set streams of tests/data/propset, with what independent readers see in them.
#pragma once

#include <nlohmann/json.hpp>
#include <ostream>
#include <string>
#include <vector>

struct CorpusStream {
    std::string path;
    nlohmann::json manifest; // what independent readers see in it

    std::vector<uint8_t> Content() const;
    bool IsReal() const { return manifest["origin"] == "real"; }
};
void PrintTo(const CorpusStream& stream, std::ostream* out);

std::vector<CorpusStream> AllCorpusStreams();
// For the name of a parameterised test.
std::string CorpusTestName(const std::string& path);

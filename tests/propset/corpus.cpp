// Reading the manifest of the streams, and values in its form.
#include "tests/propset/corpus.h"

#include <cctype>
#include <fstream>
#include <iterator>

#include "tests/propset/bytes.h"
#include "tests/support/sha256.h"

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

namespace {

json HashOf(const orlo::Bytes& bytes) {
    return {{"length", bytes.size()}, {"sha256", Sha256(bytes)}};
}

// Numbers of 64 bits are texts, so that no reader rounds them.
struct ScalarToJson {
    bool isLong;

    json operator()(std::monostate) const { return nullptr; }
    json operator()(bool truth) const { return truth; }
    json operator()(double number) const { return number; }
    json operator()(int64_t number) const { return isLong ? json(std::to_string(number)) : json(number); }
    json operator()(uint64_t number) const { return isLong ? json(std::to_string(number)) : json(number); }
    json operator()(const std::string& text) const { return text; }
    json operator()(const orlo::Bytes& bytes) const { return HashOf(bytes); }
    json operator()(const GUID& guid) const { return orlo::GuidText(guid); }
    json operator()(const orlo::ClipboardData& clip) const {
        orlo::Bytes behindTag; // the manifest counts the format in
        const bool hasFormat = clip.tag == -1 || clip.tag == -2;
        if (hasFormat) behindTag = LittleEndian(clip.format);
        json form = HashOf(std::move(behindTag) + clip.data);
        form["tag"] = clip.tag;
        if (hasFormat) form["format"] = clip.format;
        return form;
    }
};

} // namespace

json ToJson(const orlo::Value& value) {
    const uint32_t base = value.type & ~uint32_t{VT_VECTOR};
    if (value.type & VT_VECTOR) {
        json list = json::array();
        for (const orlo::Value& element : value.elements)
            list.push_back(base == VT_VARIANT ? json{{"vt", element.type}, {"value", ToJson(element)}}
                                              : ToJson(element));
        return list;
    }
    const bool isLong = base == VT_I8 || base == VT_UI8 || base == VT_CY || base == VT_FILETIME;
    return std::visit(ScalarToJson{isLong}, value.data);
}

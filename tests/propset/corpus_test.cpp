// Streams of real documents, and damaged ones: written sets are read back equal, and faults are found. tests/suminfo
// compares their values with those of independent readers.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>

#include "orlo/propset/inspect/set_image.h"
#include "orlo/propset/property_set.h"
#include "tests/propset/corpus.h"
#include "tests/propset/memory_stream.h"

using nlohmann::json;
using orlo::Finding;
using orlo::ImageProperty;
using orlo::ImageSection;
using orlo::SetImage;
using orlo::Severity;
using orlo::ValueState;

namespace {

std::optional<SetImage> Read(const std::vector<uint8_t>& bytes) {
    std::vector<Finding> findings;
    return orlo::ReadSetImage(bytes.data(), bytes.size(), findings);
}

json DictionaryOf(const ImageSection& section) {
    if (!section.dictionary) return nullptr;
    json list = json::array();
    for (const auto& entry : *section.dictionary)
        list.push_back({{"id", entry.id}, {"name", entry.name}});
    return list;
}

// The contents of an image, without offsets and data that cannot be written.
json Essence(const SetImage& image) {
    json sections = json::array();
    for (const ImageSection& section : image.sections) {
        json properties = json::array();
        for (const ImageProperty& property : section.properties)
            if (property.state != ValueState::partial)
                properties.push_back({property.id, property.type, property.bytes, static_cast<int>(property.state)});
        sections.push_back({{"format", orlo::GuidText(section.formatId)},
                            {"codePage", section.codePage ? json(*section.codePage) : json()},
                            {"dictionary", DictionaryOf(section)},
                            {"properties", properties}});
    }
    return {{"version", image.version},
            {"os", image.osVersion},
            {"class", orlo::GuidText(image.classId)},
            {"sections", sections}};
}

class Corpus : public ::testing::TestWithParam<CorpusStream> {};
INSTANTIATE_TEST_SUITE_P(Streams, Corpus, ::testing::ValuesIn(AllCorpusStreams()),
                         [](const auto& stream) { return CorpusTestName(stream.param.path); });

TEST_P(Corpus, ReadsBackWhatItWrites) {
    const std::optional<SetImage> image = Read(GetParam().Content());
    if (!image) return;
    const std::optional<orlo::Bytes> written = orlo::WriteSetImage(*image);
    ASSERT_TRUE(written);
    const std::optional<SetImage> again = Read(*written);
    ASSERT_TRUE(again);
    EXPECT_EQ(Essence(*again), Essence(*image));
    EXPECT_EQ(orlo::WriteSetImage(*again), written);
}

TEST_P(Corpus, HasTheExpectedFindings) {
    const CorpusStream& stream = GetParam();
    if (!stream.IsReal()) return;
    const std::vector<uint8_t> bytes = stream.Content();
    std::vector<Finding> findings;
    orlo::ReadSetImage(bytes.data(), bytes.size(), findings);
    Severity worst = Severity::note;
    for (const Finding& finding : findings) {
        worst = std::max(worst, finding.severity);
        EXPECT_LE(finding.offset, uint64_t{bytes.size()} + UINT32_MAX);
    }
    const json& kind = stream.manifest["class"];
    EXPECT_EQ(worst, kind == "damaged"     ? Severity::damaged
                     : kind == "irregular" ? Severity::irregular
                                           : Severity::note);
}

// The classes have the same bytes for every value with a stored form; other properties have no value.
TEST_P(Corpus, ClassesHaveTheSameBytes) {
    const std::vector<uint8_t> bytes = GetParam().Content();
    MemoryStream stream(bytes);
    CPropertySet set;
    set.ReadFromStream(&stream);
    MemoryStream out;
    const bool isWritten = set.WriteToStream(&out);
    const std::optional<SetImage> image = Read(bytes);
    if (!image || GetParam().manifest["class"] != "well-formed") return;

    ASSERT_EQ(set.GetCount(), image->sections.size());
    bool isWritable = true;
    POSITION next = set.GetList()->GetHeadPosition();
    for (const ImageSection& section : image->sections) {
        auto* read = static_cast<CPropertySection*>(set.GetList()->GetNext(next));
        for (const ImageProperty& property : section.properties) {
            CProperty* held = read->GetProperty(property.id);
            ASSERT_NE(held, nullptr);
            if ((property.type & 0xFFF) == VT_VARIANT) isWritable = false;
            const void* block = held->GetRawValue();
            EXPECT_TRUE(block == nullptr || memcmp(block, property.bytes.data(), property.bytes.size()) == 0)
                << property.id;
        }
        for (const auto& entry : section.dictionary.value_or(std::vector<orlo::DictionaryEntry>()))
            if (entry.id != 0 && std::all_of(entry.name.begin(), entry.name.end(), [](char c) { return c > 0; })) {
                DWORD id = 0;
                EXPECT_TRUE(read->GetID(entry.name.c_str(), &id)) << entry.name;
                EXPECT_EQ(id, entry.id);
            }
    }
    EXPECT_EQ(isWritten, isWritable);
    if (!isWritten) return;
    out.Rewind();
    CPropertySet again;
    ASSERT_EQ(again.ReadFromStream(&out), 1);
    MemoryStream twice;
    ASSERT_EQ(again.WriteToStream(&twice), 1);
    EXPECT_EQ(twice.Content(), out.Content());
}

// A million entries of a table, or of the list of sections, that all point to the same place: linear work ends at once,
// quadratic work would exceed the time limit.
TEST(HostileImage, WithManyEntriesForOneOffset) {
    constexpr uint32_t kMany = 1000000;
    constexpr size_t kEntry = 8, kListEntry = 20, kHeader = 28;
    const auto put = [](orlo::Bytes& bytes, size_t at, uint32_t number) { std::memcpy(&bytes[at], &number, 4); };
    const auto header = [&](size_t size, uint32_t sections) {
        orlo::Bytes bytes(size);
        put(bytes, 0, 0xFFFE);
        put(bytes, 24, sections);
        return bytes;
    };

    constexpr size_t kSection = kHeader + kListEntry, kTable = kSection + 8;
    orlo::Bytes values = header(kTable + kEntry * kMany + 4, 1); // ends with a VT_EMPTY
    put(values, kSection - 4, kSection);
    put(values, kSection + 4, kMany);
    for (uint32_t i = 0; i < kMany; ++i) {
        put(values, kTable + kEntry * i, i + 2);
        put(values, kTable + kEntry * i + 4, 8 + kEntry * kMany);
    }
    std::vector<Finding> findings;
    auto image = orlo::ReadSetImage(values.data(), values.size(), findings);
    ASSERT_TRUE(image);
    EXPECT_EQ(image->sections.at(0).properties.size(), kMany);

    orlo::Bytes sections = header(kHeader + kListEntry * kMany + 8, kMany); // ends with an empty section
    for (uint32_t i = 0; i < kMany; ++i) {
        put(sections, kHeader + kListEntry * i, i);
        put(sections, kHeader + kListEntry * i + 16, kHeader + kListEntry * kMany);
    }
    image = orlo::ReadSetImage(sections.data(), sections.size(), findings);
    ASSERT_TRUE(image);
    EXPECT_EQ(image->sections.size(), kMany);
}

} // namespace

// Real, synthetic and damaged drawings: each is opened or rejected as its manifest says, with the listed contents.

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "drawcore/src/document/contents.h"
#include "drawcore/src/dxf/extents.h"
#include "drawcore/src/dxf/reader.h"
#include "tests/dxf/test_files.h"
#include "tools/dxfprops/list_drawings.h"

namespace {

using nlohmann::json;

struct Drawing {
    json expected; // its entry of the manifest
};

void PrintTo(const Drawing& drawing, std::ostream* to) {
    *to << drawing.expected["file"];
}

std::vector<Drawing> AllDrawings() {
    std::vector<Drawing> drawings;
    for (const json& entry : json::parse(ReadBytes(kDrawings + "manifest.json")))
        drawings.push_back({entry});
    return drawings;
}

void ExpectLineTypes(const json& found, const json& expected) {
    ASSERT_EQ(found.size(), expected.size());
    for (size_t i = 0; i < found.size(); ++i) {
        EXPECT_EQ(found[i]["name"], expected[i]["name"]);
        EXPECT_DOUBLE_EQ(found[i]["pattern_length"], expected[i]["pattern_length"]);
        EXPECT_EQ(found[i]["dashes"], expected[i]["dashes"]) << found[i]["name"];
    }
}

void ExpectExtents(const drawcore::Extents& box, const json& expected, bool exactly) {
    if (expected.is_null()) return;
    ASSERT_FALSE(box.IsEmpty());
    const double x1 = expected[0][0], y1 = expected[0][1], x2 = expected[1][0], y2 = expected[1][1];
    const double tolerance = 1e-6 + 1e-9 * std::max({std::abs(x1), std::abs(y1), std::abs(x2), std::abs(y2)});
    EXPECT_LE(box.low.x, x1 + tolerance);
    EXPECT_LE(box.low.y, y1 + tolerance);
    EXPECT_GE(box.high.x, x2 - tolerance);
    EXPECT_GE(box.high.y, y2 - tolerance);
    if (!exactly) return;
    EXPECT_GE(box.low.x, x1 - tolerance);
    EXPECT_GE(box.low.y, y1 - tolerance);
    EXPECT_LE(box.high.x, x2 + tolerance);
    EXPECT_LE(box.high.y, y2 + tolerance);
}

class Manifest : public testing::TestWithParam<Drawing> {};

TEST_P(Manifest, MatchesTheReader) {
    const json& expected = GetParam().expected;
    const std::string bytes = ReadBytes(kDrawings + expected["file"].get<std::string>());
    ASSERT_EQ(bytes.size(), expected["size"]);
    dxf::Document document;
    try {
        document = dxf::Read(bytes, {});
    } catch (const dxf::ReadError& error) {
        EXPECT_NE(expected["expect"], "open") << error.what();
        EXPECT_FALSE(error.Text().empty());
        return;
    }
    EXPECT_NE(expected["expect"], "refuse");
    const json found = Describe(dxf::ContentsOf(document));
    for (const char* key : {"acadver", "entities", "blocks", "layers"})
        EXPECT_EQ(found[key], expected[key]) << key;
    ExpectLineTypes(found["linetypes"], expected["linetypes"]);
    const drawcore::Extents box = dxf::ExtentsOf(document);
    ExpectExtents(box, expected["extents"], true);
    ExpectExtents(box, expected["extents_at_least"], false);
}

INSTANTIATE_TEST_SUITE_P(Drawings, Manifest, testing::ValuesIn(AllDrawings()));

} // namespace

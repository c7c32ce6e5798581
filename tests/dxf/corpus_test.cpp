// Real, made and damaged drawings: each opens or is refused as its manifest says, with the contents it says.

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "drawcore/src/dxf/extents.h"
#include "drawcore/src/dxf/reader.h"
#include "tests/dxf/test_files.h"

namespace {

using nlohmann::json;

struct Drawing {
    std::string folder;
    json expected;
};

void PrintTo(const Drawing& drawing, std::ostream* to) {
    *to << drawing.folder << drawing.expected["file"];
}

std::vector<Drawing> AllDrawings() {
    std::vector<Drawing> drawings;
    for (const std::string& folder : DrawingFolders())
        for (const json& entry : json::parse(ReadBytes(folder + "manifest.json")))
            drawings.push_back({folder, entry});
    return drawings;
}

json LayersOf(const dxf::Document& document) {
    json layers = json::array();
    for (const dxf::Layer& layer : document.layers) {
        if (!layer.declared) continue;
        json& entry = layers.emplace_back(json{{"name", layer.name},
                                               {"color", layer.color},
                                               {"flags", layer.flags},
                                               {"linetype", layer.lineType}});
        if (layer.trueColor >= 0) entry["true_color"] = layer.trueColor;
    }
    return layers;
}

void ExpectLineTypes(const dxf::Document& document, const json& expected) {
    std::vector<dxf::LineType> declared;
    for (const dxf::LineType& type : document.lineTypes)
        if (type.declared) declared.push_back(type);
    ASSERT_EQ(declared.size(), expected.size());
    for (size_t i = 0; i < declared.size(); ++i) {
        EXPECT_EQ(declared[i].name, expected[i]["name"]);
        EXPECT_DOUBLE_EQ(declared[i].patternLength, expected[i]["pattern_length"].get<double>());
        EXPECT_EQ(declared[i].dashes, expected[i]["dashes"].get<std::vector<double>>()) << declared[i].name;
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

TEST_P(Manifest, IsMet) {
    const json& expected = GetParam().expected;
    const std::string bytes = ReadBytes(GetParam().folder + expected["file"].get<std::string>());
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
    EXPECT_EQ(json(document.entityCounts), expected["entities"]);
    EXPECT_EQ(
        std::count_if(document.blocks.begin(), document.blocks.end(), [](auto& b) { return b.declared; }),
        expected["blocks"]);
    EXPECT_EQ(LayersOf(document), expected["layers"]);
    EXPECT_EQ(json(document.header.version), expected["acadver"].is_null() ? json("") : expected["acadver"]);
    ExpectLineTypes(document, expected["linetypes"]);
    const drawcore::Extents box = dxf::ExtentsOf(document);
    ExpectExtents(box, expected["extents"], true);
    ExpectExtents(box, expected["extents_at_least"], false);
}

INSTANTIATE_TEST_SUITE_P(Drawings, Manifest, testing::ValuesIn(AllDrawings()));

} // namespace

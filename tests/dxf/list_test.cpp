// The output of dxfprops list.

#include "tools/dxfprops/list_drawings.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <sstream>

namespace {

using nlohmann::json;

const std::string kFolder = ORLO_SOURCE_DIR "/tests/data/dxf/";

TEST(List, HasOneObjectPerFile) {
    std::ostringstream out;
    EXPECT_FALSE(ListDrawings({kFolder + "made-gbk-R2004.dxf", kFolder + "bad-group-code.dxf",
                               kFolder + "bad-empty.dxf", kFolder + "bad-insert-unknown-block.dxf"},
                              out));
    const json list = json::parse(out.str());
    ASSERT_EQ(list.size(), 4u);
    EXPECT_EQ(list[0]["file"], kFolder + "made-gbk-R2004.dxf");
    EXPECT_EQ(list[0]["acadver"], "AC1018");
    EXPECT_EQ(list[0]["entities"], json::parse(R"({"INSERT": 1, "LINE": 4, "MTEXT": 1, "TEXT": 4})"));
    EXPECT_EQ(list[0]["blocks"], 3);
    EXPECT_EQ(list[0]["layers"][4],
              json::parse(R"({"name": "尺寸乗", "color": 3, "flags": 4, "linetype": "Continuous"})"));
    EXPECT_EQ(list[0]["linetypes"][3],
              json::parse(R"({"name": "STRICH", "pattern_length": 1.0, "dashes": [0.5, -0.25, 0.0, -0.25]})"));
    EXPECT_EQ(list[0]["extents"], json::parse("[[0.0, -1.0], [60.0, 20.0]]"));
    EXPECT_FALSE(list[0].contains("warnings"));
    EXPECT_EQ(list[1]["error"], "group code 'ABC' is not a number");
    EXPECT_EQ(list[1]["line"], 3507);
    EXPECT_FALSE(list[1].contains("entities"));
    EXPECT_TRUE(list[2]["line"].is_null());
    EXPECT_EQ(list[3]["warnings"][0]["text"], "block 'NO_SUCH_BLOCK' is not shown: the block does not exist");
}

TEST(List, OfIntactDrawingsSucceeds) {
    std::ostringstream out;
    EXPECT_TRUE(ListDrawings({kFolder + "made-escapes-R12.dxf"}, out));
    EXPECT_TRUE(ListDrawings({}, out));
}

} // namespace

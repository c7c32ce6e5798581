// The extents of a drawing.

#include "drawcore/src/dxf/extents.h"

#include <gtest/gtest.h>

#include "drawcore/src/dxf/reader.h"
#include "tests/dxf/drawing_text.h"
#include "tests/dxf/extents_rows.h"

namespace {

TEST(Extents, OfEveryKind) {
    for (const ExtentsRow& row : kExtentsRows) {
        const drawcore::Extents box = dxf::ExtentsOf(dxf::Read(Drawing(row.entities, kExtentsBlocks), {}));
        ASSERT_FALSE(box.IsEmpty()) << row.name;
        EXPECT_NEAR(box.low.x, row.x1, 1e-9) << row.name;
        EXPECT_NEAR(box.low.y, row.y1, 1e-9) << row.name;
        EXPECT_NEAR(box.high.x, row.x2, 1e-9) << row.name;
        EXPECT_NEAR(box.high.y, row.y2, 1e-9) << row.name;
    }
}

TEST(Extents, OfAnEmptyDrawingAreEmpty) {
    EXPECT_TRUE(dxf::ExtentsOf(dxf::Read(Drawing(""), {})).IsEmpty());
}

} // namespace

// The box of a drawing.

#include "drawcore/src/dxf/extents.h"

#include <gtest/gtest.h>

#include "drawcore/src/dxf/reader.h"
#include "tests/dxf/drawing_text.h"
#include "tests/dxf/extents_rows.h"

namespace {

TEST(Extents, OfEveryKind) {
    for (const ExtentsRow& row : kExtentsRows) {
        const dxf::Box box = dxf::Extents(dxf::Read(Drawing(row.entities, kExtentsBlocks), {}));
        ASSERT_FALSE(box.IsEmpty()) << row.name;
        EXPECT_NEAR(box.Low().x, row.x1, 1e-9) << row.name;
        EXPECT_NEAR(box.Low().y, row.y1, 1e-9) << row.name;
        EXPECT_NEAR(box.High().x, row.x2, 1e-9) << row.name;
        EXPECT_NEAR(box.High().y, row.y2, 1e-9) << row.name;
    }
}

TEST(Extents, OfNothingAreEmpty) {
    EXPECT_TRUE(dxf::Extents(dxf::Read(Drawing(""), {})).IsEmpty());
}

} // namespace

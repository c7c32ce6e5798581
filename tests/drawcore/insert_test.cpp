// Insertions: placed, mirrored, nested, inheriting, recursive, and multiplying.

#include <gtest/gtest.h>

#include <cmath>

#include <drawcore/layer.h>

#include "drawcore/kit.h"
#include "orlo/host/walk.h"

namespace {

constexpr COLORREF kRed = RGB(255, 0, 0), kGreen = RGB(0, 255, 0), kBlue = RGB(0, 0, 255), kWhite = RGB(255, 255, 255);

class Inserts : public testing::Test {
protected:
    // Creates a block of a solid square from (0, 0) to (1, 1) and one of half the size to its right.
    uint16_t FlagBlock(const char* name, uint32_t color = kRed) {
        GraphicStruct* content = GraphicNewEx(kGraphicVertices, 0, 1);
        for (GraphicStruct* square : {MakeSquare(0, 0, 1), MakeSquare(1, 0, 0.5)}) {
            SetInteger(square, kPropBrushStyle, 1);
            SetInteger(square, kPropPenColor, color);
            GraphicAdd(content, square);
        }
        return BlocksAddBlock(drawing.Table(kTableBlocks), name, content);
    }
    GraphicStruct* Insert(uint16_t block, double x, double y, double sx, double sy, double angle = 0) {
        return MakeInsert(drawing.Table(kTableBlocks), block, {x, y}, sx, sy, angle);
    }
    void Draw() { picture.Draw(drawing.Root()); }

    OwnDrawing drawing;
    Picture picture{drawing};
};

TEST_F(Inserts, ScaleRotateAndMirror) {
    const uint16_t flag = FlagBlock("FLAG");
    drawing.Add(Insert(flag, 10, 10, 20, 20));             // small square at the lower right
    drawing.Add(Insert(flag, 90, 10, -20, 20));            // mirrored: to the left
    drawing.Add(Insert(flag, 40, 60, 20, 20, 1.57079633)); // rotated by 90 degrees: above
    Draw();
    EXPECT_EQ(picture.At(20, 25), kRed);
    EXPECT_EQ(picture.At(35, 15), kRed);
    EXPECT_EQ(picture.At(35, 25), kWhite);
    EXPECT_EQ(picture.At(80, 25), kRed);
    EXPECT_EQ(picture.At(65, 15), kRed);
    EXPECT_EQ(picture.At(65, 25), kWhite);
    EXPECT_EQ(picture.At(25, 70), kRed);
    EXPECT_EQ(picture.At(35, 85), kRed);
    EXPECT_EQ(picture.At(25, 85), kWhite);
    EXPECT_NEAR(BoxOf(drawing.Root()).left, 10, 1e-6);
    EXPECT_NEAR(BoxOf(drawing.Root()).right, 90, 1e-6);
}

TEST_F(Inserts, PassColorStyleAndLayerToPartsByBlock) {
    const uint16_t green = TableEntryAdd(drawing.Table(kTableLayers), "Green", nullptr);
    LayerSet(drawing, green, kGreen, 0, 0);
    const uint16_t byBlock = FlagBlock("BYBLOCK", kColorByBlock), byLayer = FlagBlock("BYLAYER", kColorByLayer);
    // A block that inserts the first one; its own graphics have the color of the block.
    GraphicStruct* outer = GraphicNewEx(kGraphicVertices, 0, 1);
    GraphicStruct* inner = Insert(byBlock, 0, 0, 1, 1);
    SetInteger(inner, kPropPenColor, kColorByBlock);
    GraphicAdd(outer, inner);
    const uint16_t nested = BlocksAddBlock(drawing.Table(kTableBlocks), "NESTED", outer);
    int x = 0;
    for (const uint16_t block : {byBlock, nested, byLayer}) {
        GraphicStruct* insert = drawing.Add(Insert(block, x += 20, 50, 10, 10));
        SetInteger(insert, kPropPenColor, kBlue);
        SetInteger(insert, kPropLayer, green);
    }
    Draw();
    EXPECT_EQ(picture.At(25, 55), kBlue);
    EXPECT_EQ(picture.At(45, 55), kBlue) << "through two levels";
    EXPECT_EQ(picture.At(65, 55), kGreen) << "layer 0 in a block is the insertion's layer";
    LayerSet(drawing, green, kGreen, kLayerOff, 0);
    Draw();
    EXPECT_EQ(picture.Covered(), 0);
}

TEST_F(Inserts, OnALayerThatIsOffStillShowTheOtherLayersOfTheirBlock) {
    const uint16_t own = TableEntryAdd(drawing.Table(kTableLayers), "Own", nullptr);
    const uint16_t hidden = TableEntryAdd(drawing.Table(kTableLayers), "Hidden", nullptr);
    const uint16_t flag = FlagBlock("FLAG");
    SetInteger(Members(BlockGetGraphic(drawing.Table(kTableBlocks), flag))[0], kPropLayer, own);
    GraphicStruct* insert = drawing.Add(Insert(flag, 10, 10, 20, 20));
    SetInteger(insert, kPropLayer, hidden);
    LayerSet(drawing, hidden, 0, kLayerOff, 0);
    Draw();
    EXPECT_EQ(picture.At(20, 20), kRed);
    EXPECT_EQ(picture.At(35, 15), kWhite);
    LayerSet(drawing, hidden, 0, kLayerFrozen, 0);
    Draw();
    EXPECT_EQ(picture.Covered(), 0) << "frozen hides everything";
}

TEST_F(Inserts, OfADeletedBlockShowNothing) {
    const uint16_t flag = FlagBlock("FLAG");
    TableStruct* blocks = drawing.Table(kTableBlocks);
    drawing.Add(Insert(flag, 10, 10, 20, 20));
    EXPECT_EQ(BlocksFindBlock(blocks, "flag"), flag);
    BlockDispose(blocks, flag);
    EXPECT_EQ(BlocksFindBlock(blocks, "FLAG"), 0);
    EXPECT_EQ(BlockGetGraphic(blocks, flag), nullptr);
    EXPECT_FALSE(InsertSetData(TestGraphic(GraphicNewEx(kGraphicInsert, 0, 1)), blocks, flag, nullptr));
    Draw();
    EXPECT_EQ(picture.Covered(), 0);
}

TEST_F(Inserts, FollowTheirBlock) {
    const uint16_t flag = FlagBlock("FLAG");
    GraphicStruct* outer = GraphicNewEx(kGraphicVertices, 0, 1);
    GraphicAdd(outer, Insert(flag, 1, 0, 1, 1));
    const uint16_t nested = BlocksAddBlock(drawing.Table(kTableBlocks), "NESTED", outer);
    drawing.Add(Insert(nested, 10, 10, 20, 20));
    const auto right = [&] { return BoxOf(drawing.Root()).right; };
    EXPECT_NEAR(right(), 60, 1e-9);
    GraphicAdd(BlockGetGraphic(drawing.Table(kTableBlocks), flag), MakeSquare(1, 0, 2));
    EXPECT_NEAR(right(), 90, 1e-9) << "through the block between them";
    int cookie = 0;
    GraphicStruct* insert = GraphicFirst(outer, &cookie, 1, kAllGraphics);
    VertexStruct* end = GraphicVertexFirst(insert, &cookie, 0, 0xFFFF);
    end = GraphicVertexNext(insert, &cookie, 0, 0xFFFF); // end point of the x axis
    VertexSet(end, 1.5, end->y, end->z);
    EXPECT_NEAR(right(), 60, 1e-9) << "half as wide";
    BlockDispose(drawing.Table(kTableBlocks), flag);
    EXPECT_EQ(right(), 0) << "empty";
}

// Members that are in drawing coordinates, such as attributes, and the elements of an array.
TEST_F(Inserts, MoveTheirMembers) {
    for (const double flat : {1.0, 0.0}) {
        const TestGraphic insert(Insert(FlagBlock(flat > 0 ? "SOLID" : "FLAT"), 10, 10, 20, 20));
        GraphicAdd(insert, MakeSquare(20, 30, 4));
        GraphicAttach(insert, drawing);
        const auto expectBox = [&](const Box& expected) {
            EXPECT_NEAR(BoxOf(insert).left, expected.left, 1e-9);
            EXPECT_NEAR(BoxOf(insert).bottom, expected.bottom, 1e-9);
            EXPECT_NEAR(BoxOf(insert).right, expected.right, 1e-9);
            EXPECT_NEAR(BoxOf(insert).top, expected.top, 1e-9);
        };
        expectBox({10, 10, 40, 34});
        // Scaled by 2, at (100, 0), rotated by 90 degrees.
        const double rotated[4][3] = {{100, 0, 0}, {100, 40, 0}, {60, 0, 0}, {100, 0, flat}};
        int i = 0;
        for (VertexStruct* corner : orlo::host::Vertices(insert)) {
            VertexSet(corner, rotated[i][0], rotated[i][1], rotated[i][2]);
            ++i;
        }
        expectBox({52, 0, 100, 60});
    }
}

TEST_F(Inserts, RecursionEnds) {
    GraphicStruct* content = GraphicNewEx(kGraphicVertices, 0, 1);
    GraphicAdd(content, MakeSquare(0, 0, 1));
    const uint16_t self = BlocksAddBlock(drawing.Table(kTableBlocks), "SELF", content);
    GraphicAdd(content, Insert(self, 1, 0, 0.9, 0.9));
    drawing.Add(Insert(self, 10, 10, 20, 20));
    Draw();
    EXPECT_EQ(picture.Covered(), 80) << "the square, once";
}

// Thirty levels of two insertions each: a billion squares.
TEST_F(Inserts, NestedMultiplicationIsLimited) {
    uint16_t block = FlagBlock("LEVEL");
    for (int level = 0; level < 30; ++level) {
        GraphicStruct* content = GraphicNewEx(kGraphicVertices, 0, 1);
        GraphicAdd(content, Insert(block, 0, 0, 1, 1));
        GraphicAdd(content, Insert(block, 0, 0, 1, 1));
        block = BlocksAddBlock(drawing.Table(kTableBlocks), std::to_string(level).c_str(), content);
    }
    GraphicStruct* bomb = drawing.Add(Insert(block, 10, 10, 20, 20));
    Draw();
    EXPECT_EQ(picture.At(20, 20), kRed);
    EXPECT_NEAR(BoxOf(bomb).right, 40, 1e-9);
}

TEST_F(Inserts, NestingTooDeepShowsNothing) {
    uint16_t block = FlagBlock("BOTTOM");
    for (int level = 0; level < 20000; ++level) {
        GraphicStruct* content = GraphicNewEx(kGraphicVertices, 0, 1);
        GraphicAdd(content, Insert(block, 0, 0, 1, 1));
        block = BlocksAddBlock(drawing.Table(kTableBlocks), std::to_string(level).c_str(), content);
    }
    drawing.Add(Insert(block, 10, 10, 20, 20));
    Draw();
    EXPECT_EQ(picture.Covered(), 0);
}

TEST(Matrices, RotateTheAxesIntoEachOther) {
    const double quarter = 1.5707963267948966;
    const struct {
        MatrixStruct* (*make)(const MatrixStruct*, double, int);
        int from, to;
    } kRows[] = {{MatrixRotateX, 1, 2}, {MatrixRotateY, 2, 0}, {MatrixRotateZ, 0, 1}};
    for (const auto& row : kRows) {
        MatrixStruct* matrix = row.make(nullptr, quarter, 0);
        EXPECT_NEAR(matrix->at[row.from][row.to], 1, 1e-15);
        EXPECT_NEAR(matrix->at[row.to][row.from], -1, 1e-15);
        MatrixDispose(&matrix);
        EXPECT_EQ(matrix, nullptr);
    }
}

} // namespace

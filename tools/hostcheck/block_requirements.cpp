// Requirements of blocks and their insertions.

#include <cmath>
#include <cstring>

#include "picture.h"

namespace {

constexpr char kName[] = "$HOSTCHECK"; // name of a temporary block

// A temporary block with a rectangle.
class Block {
public:
    explicit Block(const Subject& s, double width = 2, double height = 2)
        : subject_(s), blocks(CALL(s.host, BlocksFromDrawing)(s.Drawing())) {
        RequireNoStub(blocks, "BlocksFromDrawing");
        Require(!CALL(s.host, BlocksFindBlock)(blocks, kName), "the block of an earlier check still exists");
        auto rectangle = s.NewRectangle(width, height);
        SetPlainAppearance(s, rectangle.get());
        contents = rectangle.get();
        char name[sizeof kName];
        std::memcpy(name, kName, sizeof name);
        id = CALL(s.host, BlocksAddBlock)(blocks, name, contents);
        std::memset(name, 'x', sizeof name - 1); // the database must have copied the name
        RequireNoStub(id != 0, "BlocksAddBlock");
        rectangle.release(); // now owned by the table
    }
    ~Block() { Remove(); }
    Block(const Block&) = delete;
    Block& operator=(const Block&) = delete;

    void Remove() {
        if (id) CALL(subject_.host, BlockDispose)(blocks, id);
        id = 0;
    }
    // A null matrix is the identity.
    Owned<GraphicStruct> NewInsertion(const MatrixStruct* matrix) const {
        auto insertion = subject_.NewGraphic(kGraphicInsert);
        RequireNoStub(CALL(subject_.host, InsertSetData)(insertion.get(), blocks, id, matrix), "InsertSetData");
        return insertion;
    }

private:
    const Subject& subject_;

public:
    TableStruct* const blocks;
    GraphicStruct* contents;
    uint16_t id = 0;
};

void IsTheBlockTable(const Subject& s) {
    TableStruct* blocks = CALL(s.host, BlocksFromDrawing)(s.Drawing());
    RequireNoStub(blocks, "BlocksFromDrawing");
    Require(blocks == s.Table(kTableBlocks), "returned a table other than %s", kTableBlocks);
    Require(!CALL(s.host, BlocksFromDrawing)(nullptr), "returned a table for null");
}

void AddsBlocks(const Subject& s) {
    const Block block(s);
    const uint16_t found = CALL(s.host, BlocksFindBlock)(block.blocks, kName);
    RequireNoStub(found != 0, "BlocksFindBlock");
    Require(found == block.id, "the block was added with identifier %u, but found with %u", block.id, found);
    Require(CALL(s.host, GraphicGetDrawing)(block.contents) == s.Drawing(),
            "the contents are not attached to the drawing");
}

void CopiesTheName(const Subject& s) {
    const Block block(s);
    char name[64] = "";
    CALL(s.host, TableEntryGetName)(block.blocks, block.id, name, sizeof name);
    Require(std::strcmp(name, kName) == 0, "the name of the new block is \"%s\" instead of \"%s\"", name, kName);
}

void ReturnsTheContents(const Subject& s) {
    const Block block(s);
    const GraphicStruct* found = CALL(s.host, BlockGetGraphic)(block.blocks, block.id);
    RequireNoStub(found, "BlockGetGraphic");
    Require(found == block.contents, "returned another graphic");
    Require(CALL(s.host, TableEntryGetData)(block.blocks, block.id) == block.contents,
            "TableEntryGetData returned another graphic");
    Require(!CALL(s.host, BlockGetGraphic)(block.blocks, 0), "returned a graphic for block 0");
}

void RejectsExistingNames(const Subject& s) {
    const Block block(s);
    const auto square = s.NewSquare(1);
    const uint16_t id = CALL(s.host, BlocksAddBlock)(block.blocks, kName, square.get());
    Require(id == 0, "returned %u for a name that already exists", id);
    Require(s.Vertices(square.get()).size() == 5, "the rejected graphic no longer has its vertices");
}

void RemovesBlocks(const Subject& s) {
    Block block(s);
    block.Remove();
    const uint16_t found = CALL(s.host, BlocksFindBlock)(block.blocks, kName);
    Require(found == 0, "the block can still be found as %u", found);
}

void RequireCorners(const Subject& s, GraphicStruct* insertion, double x, double y) {
    const auto corners = s.Vertices(insertion);
    Require(corners.size() == 4, "the insertion has %zu vertices instead of 4", corners.size());
    const double axes[4][3] = {{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {0, 0, 1}};
    for (int i = 0; i < 4; ++i)
        Require(corners[i]->x == x + axes[i][0] && corners[i]->y == y + axes[i][1] && corners[i]->z == axes[i][2],
                "vertex %d is at %g, %g, %g; expected: the origin and the end points of the axes", i, corners[i]->x,
                corners[i]->y, corners[i]->z);
}

MatrixStruct Moving(double x, double y) {
    return {{{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {x, y, 0, 1}}};
}

void PlacesInsertions(const Subject& s) {
    const Block block(s);
    const auto insertion = block.NewInsertion(nullptr);
    RequireCorners(s, insertion.get(), 0, 0);
    Require(CALL(s.host, GraphicGetDrawing)(insertion.get()) == s.Drawing(),
            "the insertion is not attached to the drawing of the table");
    const MatrixStruct matrix = Moving(10, 20);
    CALL(s.host, InsertSetData)(insertion.get(), block.blocks, block.id, &matrix);
    RequireCorners(s, insertion.get(), 10, 20);
}

double RightOf(const Subject& s, GraphicStruct* graphic) {
    return CALL(s.host, ExtentsGetX2)(CALL(s.host, GraphicGetExtentsSel)(graphic, 0));
}

void FollowsItsVertices(const Subject& s) {
    const Block block(s);
    const auto insertion = block.NewInsertion(nullptr);
    const auto corners = s.Vertices(insertion.get());
    Require(corners.size() == 4, "the insertion has %zu vertices instead of 4", corners.size());
    CALL(s.host, VertexSet)(corners[1], 3, 0, 0); // scaled by 3 along X
    CALL(s.host, GraphicSetExtentsDirty)(insertion.get(), 1);
    const double right = RightOf(s, insertion.get());
    Require(right == 6, "a block of 2 units, scaled by 3, ends at %g instead of 6", right);
}

// A rectangle of 6 by 2 units, rotated by 90 degrees: from 2, 1 to 4, 7.
void TurnsInsertions(const Subject& s) {
    const Block block(s, 6, 2);
    const MatrixStruct matrix = {{{0, 1, 0, 0}, {-1, 0, 0, 0}, {0, 0, 1, 0}, {4, 1, 0, 1}}};
    const auto insertion = block.NewInsertion(&matrix);
    const double right = RightOf(s, insertion.get());
    Require(std::fabs(right - 4) < 1e-9, "the extents of the rotated insertion end at %g instead of 4", right);
    const Measure drawn = Scene(s).Draw(insertion.get()).picture.Of();
    const RECT expected = Scene::Area(2, 1, 4, 7);
    Require(std::fabs(drawn.centerX - (expected.left + expected.right) / 2.0) < Scene::kUnit &&
                std::fabs(drawn.centerY - (expected.top + expected.bottom) / 2.0) < Scene::kUnit &&
                drawn.Height() > 2 * drawn.Width(),
            "a block of 6 by 2 units, rotated by 90 degrees, is drawn with %ld by %ld pixels at %g, %g", drawn.Width(),
            drawn.Height(), drawn.centerX, drawn.centerY);
}

void DrawsNothingWithoutItsBlock(const Subject& s) {
    Block block(s);
    const auto insertion = block.NewInsertion(nullptr);
    block.Remove();
    const int drawn = Scene(s).Draw(insertion.get()).picture.Of().count;
    Require(drawn == 0, "an insertion of a removed block draws %d pixels", drawn);
}

constexpr Requirement kRows[] = {
    {"BlocksFromDrawing", "returns the block table, and null for null", IsTheBlockTable},
    {"BlocksAddBlock", "adds a block that BlocksFindBlock finds, attached to the drawing", AddsBlocks},
    {"BlocksAddBlock", "copies the name", CopiesTheName},
    {"BlockGetGraphic", "returns the contents", ReturnsTheContents},
    {"BlocksAddBlock", "returns 0, without taking ownership, if the name exists", RejectsExistingNames},
    {"BlockDispose", "removes the block", RemovesBlocks},
    {"InsertSetData", "places the origin and the axes as the matrix specifies", PlacesInsertions},
    {"InsertSetData", "creates an insertion whose extents follow its vertices", FollowsItsVertices},
    {"InsertSetData", "creates an insertion that is drawn along its axes", TurnsInsertions},
    {"BlockDispose", "removes the block; remaining insertions draw nothing", DrawsNothingWithoutItsBlock},
};

} // namespace

const Topic kBlockRequirements = TopicOf(kRows);

// Requirements of blocks and their insertions.

#include "requirement.h"

namespace {

constexpr char kName[] = "$HOSTCHECK"; // name of a temporary block

// A temporary block with a square of 2 units.
class Block {
public:
    explicit Block(const Subject& s) : subject_(s), blocks(CALL(s.host, BlocksFromDrawing)(s.drawing)) {
        Require(blocks, "BlocksFromDrawing returned null");
        auto square = s.NewSquare(2);
        contents = square.get();
        id = CALL(s.host, BlocksAddBlock)(blocks, kName, contents);
        Require(id != 0, "BlocksAddBlock returned 0");
        square.release(); // now owned by the table
    }
    ~Block() {
        if (id) CALL(subject_.host, BlockDispose)(blocks, id);
    }
    Block(const Block&) = delete;
    Block& operator=(const Block&) = delete;

private:
    const Subject& subject_;

public:
    TableStruct* const blocks;
    GraphicStruct* contents;
    uint16_t id = 0;
};

void IsTheBlockTable(const Subject& s) {
    Require(CALL(s.host, BlocksFromDrawing)(s.drawing) == s.Table(kTableBlocks), "returned another table than %s",
            kTableBlocks);
    Require(!CALL(s.host, BlocksFromDrawing)(nullptr), "returned a table for null");
}

void AddsBlocks(const Subject& s) {
    const Block block(s);
    const uint16_t found = CALL(s.host, BlocksFindBlock)(block.blocks, kName);
    Require(found == block.id, "the block was added as %u, but found as %u", block.id, found);
    Require(CALL(s.host, GraphicGetDrawing)(block.contents) == s.drawing,
            "the contents are not attached to the drawing");
}

void ReturnsTheContents(const Subject& s) {
    const Block block(s);
    Require(CALL(s.host, BlockGetGraphic)(block.blocks, block.id) == block.contents, "returned another graphic");
    Require(CALL(s.host, TableEntryGetData)(block.blocks, block.id) == block.contents,
            "TableEntryGetData returned another graphic");
    Require(!CALL(s.host, BlockGetGraphic)(block.blocks, 0), "returned a graphic for block 0");
}

void RejectsExistingNames(const Subject& s) {
    const Block block(s);
    const auto square = s.NewSquare(1);
    const uint16_t id = CALL(s.host, BlocksAddBlock)(block.blocks, kName, square.get());
    Require(id == 0, "returned %u for a name that already exists", id);
    Require(s.Vertices(square.get()).size() == 5, "the rejected graphic has lost its vertices");
}

void RemovesBlocks(const Subject& s) {
    Block block(s);
    CALL(s.host, BlockDispose)(block.blocks, block.id);
    block.id = 0;
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

void PlacesInsertions(const Subject& s) {
    const Block block(s);
    const auto insertion = s.NewGraphic(kGraphicInsert);
    Require(CALL(s.host, InsertSetData)(insertion.get(), block.blocks, block.id, nullptr), "returned 0");
    RequireCorners(s, insertion.get(), 0, 0);
    Require(CALL(s.host, GraphicGetDrawing)(insertion.get()) == s.drawing,
            "the insertion is not attached to the drawing of the table");
    const auto by = s.NewVertex(10, 20, 0);
    const auto matrix = s.Own(CALL(s.host, MatrixOffset)(nullptr, by.get()));
    CALL(s.host, InsertSetData)(insertion.get(), block.blocks, block.id, matrix.get());
    RequireCorners(s, insertion.get(), 10, 20);
}

void FollowsItsVertices(const Subject& s) {
    const Block block(s);
    const auto insertion = s.NewGraphic(kGraphicInsert);
    CALL(s.host, InsertSetData)(insertion.get(), block.blocks, block.id, nullptr);
    const auto corners = s.Vertices(insertion.get());
    Require(corners.size() == 4, "the insertion has %zu vertices instead of 4", corners.size());
    CALL(s.host, VertexSet)(corners[1], 3, 0, 0); // scaled by 3 along X
    CALL(s.host, GraphicSetExtentsDirty)(insertion.get(), 1);
    const ExtentsStruct* extents = CALL(s.host, GraphicGetExtentsSel)(insertion.get(), 0);
    const double right = CALL(s.host, ExtentsGetX2)(extents);
    Require(right == 6, "a block of 2 units, scaled by 3, ends at %g instead of 6", right);
}

constexpr Requirement kRows[] = {
    {"BlocksFromDrawing", "returns the block table, and null for null", IsTheBlockTable},
    {"BlocksAddBlock", "adds a block that BlocksFindBlock finds, attached to the drawing", AddsBlocks},
    {"BlockGetGraphic", "returns the contents", ReturnsTheContents},
    {"BlocksAddBlock", "returns 0 for a name that exists, and does not take ownership", RejectsExistingNames},
    {"BlockDispose", "removes the block", RemovesBlocks},
    {"InsertSetData", "places the origin and the axes by the matrix", PlacesInsertions},
    {"InsertSetData", "creates an insertion whose extents follow its vertices", FollowsItsVertices},
};

} // namespace

const Topic kBlockRequirements = TopicOf(kRows);

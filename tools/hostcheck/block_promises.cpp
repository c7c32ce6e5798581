// Blocks and their insertions.

#include "promise.h"

namespace {

constexpr char kName[] = "$HOSTCHECK"; // of a block that goes again

// A block with a square of 2 units.
class Block {
public:
    explicit Block(const Subject& s) : subject_(s), blocks(CALL(s.host, BlocksFromDrawing)(s.drawing)) {
        Expect(blocks, "BlocksFromDrawing gave null");
        auto square = s.NewSquare(2);
        contents = square.get();
        id = CALL(s.host, BlocksAddBlock)(blocks, kName, contents);
        Expect(id != 0, "BlocksAddBlock gave 0");
        square.release(); // the table's
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
    Expect(CALL(s.host, BlocksFromDrawing)(s.drawing) == s.Table(kTableBlocks), "gave another table than %s",
           kTableBlocks);
    Expect(!CALL(s.host, BlocksFromDrawing)(nullptr), "gave a table for null");
}

void AddsBlocks(const Subject& s) {
    const Block block(s);
    const uint16_t found = CALL(s.host, BlocksFindBlock)(block.blocks, kName);
    Expect(found == block.id, "added under %u and found under %u", block.id, found);
    Expect(CALL(s.host, GraphicGetDrawing)(block.contents) == s.drawing,
           "the contents are not tied to the drawing");
}

void GivesTheContents(const Subject& s) {
    const Block block(s);
    Expect(CALL(s.host, BlockGetGraphic)(block.blocks, block.id) == block.contents, "gave another graphic");
    Expect(CALL(s.host, TableEntryGetData)(block.blocks, block.id) == block.contents,
           "TableEntryGetData gave another graphic");
    Expect(!CALL(s.host, BlockGetGraphic)(block.blocks, 0), "gave a graphic for block 0");
}

void RefusesTakenNames(const Subject& s) {
    const Block block(s);
    const auto square = s.NewSquare(1);
    const uint16_t id = CALL(s.host, BlocksAddBlock)(block.blocks, kName, square.get());
    Expect(id == 0, "gave %u for a name that is taken", id);
    Expect(s.Vertices(square.get()).size() == 5, "the graphic that it refused is not whole");
}

void RemovesBlocks(const Subject& s) {
    Block block(s);
    CALL(s.host, BlockDispose)(block.blocks, block.id);
    block.id = 0;
    const uint16_t found = CALL(s.host, BlocksFindBlock)(block.blocks, kName);
    Expect(found == 0, "the block is still found under %u", found);
}

void ExpectCorners(const Subject& s, GraphicStruct* insertion, double x, double y) {
    const auto corners = s.Vertices(insertion);
    Expect(corners.size() == 4, "an insertion has %zu vertices, not 4", corners.size());
    const double axes[4][3] = {{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {0, 0, 1}};
    for (int i = 0; i < 4; ++i)
        Expect(corners[i]->x == x + axes[i][0] && corners[i]->y == y + axes[i][1] &&
                   corners[i]->z == axes[i][2],
               "vertex %d is at %g, %g, %g: expected are the origin and the ends of the axes", i,
               corners[i]->x, corners[i]->y, corners[i]->z);
}

void PlacesInsertions(const Subject& s) {
    const Block block(s);
    const auto insertion = s.NewGraphic(kGraphicInsert);
    Expect(CALL(s.host, InsertSetData)(insertion.get(), block.blocks, block.id, nullptr), "gave 0");
    ExpectCorners(s, insertion.get(), 0, 0);
    Expect(CALL(s.host, GraphicGetDrawing)(insertion.get()) == s.drawing,
           "is not tied to the drawing of the table");
    const auto by = s.NewVertex(10, 20, 0);
    const auto matrix = s.Own(CALL(s.host, MatrixOffset)(nullptr, by.get()));
    CALL(s.host, InsertSetData)(insertion.get(), block.blocks, block.id, matrix.get());
    ExpectCorners(s, insertion.get(), 10, 20);
}

void FollowsItsVertices(const Subject& s) {
    const Block block(s);
    const auto insertion = s.NewGraphic(kGraphicInsert);
    CALL(s.host, InsertSetData)(insertion.get(), block.blocks, block.id, nullptr);
    const auto corners = s.Vertices(insertion.get());
    Expect(corners.size() == 4, "an insertion has %zu vertices, not 4", corners.size());
    CALL(s.host, VertexSet)(corners[1], 3, 0, 0); // three times as wide
    CALL(s.host, GraphicSetExtentsDirty)(insertion.get(), 1);
    const ExtentsStruct* extents = CALL(s.host, GraphicGetExtentsSel)(insertion.get(), 0);
    const double right = CALL(s.host, ExtentsGetX2)(extents);
    Expect(right == 6, "a block of 2 units, three times as wide, ends at %g, not at 6", right);
}

constexpr Promise kRows[] = {
    {"BlocksFromDrawing", "gives the block table, and null for null", IsTheBlockTable},
    {"BlocksAddBlock", "adds a block, ties its contents to the drawing, and BlocksFindBlock finds it",
     AddsBlocks},
    {"BlockGetGraphic", "gives the contents", GivesTheContents},
    {"BlocksAddBlock", "gives 0 for a name that is taken, and the graphic stays the caller's",
     RefusesTakenNames},
    {"BlockDispose", "removes the block", RemovesBlocks},
    {"InsertSetData", "sets the origin and the ends of the axes by the matrix", PlacesInsertions},
    {"InsertSetData", "makes an insertion that follows its vertices", FollowsItsVertices},
};

} // namespace

const Topic kBlockPromises = TopicOf(kRows);

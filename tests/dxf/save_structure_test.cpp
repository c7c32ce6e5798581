// Saving of removed, added and moved graphics, and of blocks with their contents.

#include "tests/dxf/save_fixture.h"

#include <map>

#include "drawcore/include/drawcore/layer.h"

namespace {

class SaveStructure : public SavedDrawing {};

// Returns types and extents of all graphics in order.
std::vector<double> BoxesOf(GraphicStruct* set) {
    std::vector<double> boxes;
    for (GraphicStruct* g : Members(set)) {
        double box[4] = {};
        ExtentsGetBox(GraphicGetExtentsSel(g, 0), box);
        boxes.push_back(g->bType);
        boxes.insert(boxes.end(), box, box + 4);
    }
    return boxes;
}

void ExpectNear(const std::vector<double>& a, const std::vector<double>& b) {
    ASSERT_EQ(a.size(), b.size());
    for (size_t i = 0; i < a.size(); ++i)
        ASSERT_NEAR(a[i], b[i], 1e-6 * std::max(1.0, std::fabs(b[i]))) << "number " << i;
}

void Remove(GraphicStruct* set, GraphicStruct* member) {
    GraphicDelete(set, member);
    GraphicDispose(&member);
}

TEST_F(SaveStructure, RemovesDeletedGraphics) {
    ForDrawings([&](const fs::path&, const OwnedDrawing& drawing) {
        GraphicStruct* root = DrawingGetRoot(drawing.get());
        for (const int interval : {2, 1}) { // keeps every other graphic, then none
            std::vector<GraphicStruct*> removed;
            int index = 0;
            for (GraphicStruct* g : Members(root))
                if (++index % interval == 0) removed.push_back(g);
            for (GraphicStruct* g : removed)
                Remove(root, g);
            ASSERT_EQ(Write(drawing), kSaveDone) << message;
            const OwnedDrawing read = Open(path);
            ASSERT_TRUE(read);
            ExpectNear(BoxesOf(DrawingGetRoot(read.get())), BoxesOf(root));
        }
        EXPECT_TRUE(BoxesOf(root).empty());
    });
}

TEST_F(SaveStructure, KeepsTheOrderOfReaddedGraphics) {
    const OwnedDrawing drawing = Open(kDrawings + "made-gbk-R2004.dxf");
    GraphicStruct* root = DrawingGetRoot(drawing.get());
    GraphicStruct* first = *Members(root).begin();
    GraphicDelete(root, first);
    GraphicAdd(root, first);
    ASSERT_EQ(Write(drawing), kSaveDone) << message;
    const OwnedDrawing read = Open(path);
    ExpectNear(BoxesOf(DrawingGetRoot(read.get())), BoxesOf(root));
}

// If a graphic cannot be saved, saving fails completely; without those graphics the file contains the rest.
TEST_F(SaveStructure, AppendsCopiesOfAllKinds) {
    std::map<uint32_t, int> saved;
    int rejected = 0;
    ForDrawings([&](const fs::path&, const OwnedDrawing& drawing) {
        GraphicStruct* root = DrawingGetRoot(drawing.get());
        std::vector<GraphicStruct*> examples;
        std::map<uint32_t, int> ofKind;
        for (GraphicStruct* g : Members(root))
            if (++ofKind[GraphicGetKind(g)] <= 4) examples.push_back(g);
        for (GraphicStruct* g : examples) {
            GraphicStruct* copy = GraphicAdd(root, GraphicCopyEx(g, 0, 0, 7));
            WriteProperty(copy, kPropInfo, std::string("a copy"));
            WriteProperty(copy, kPropPenColor, uint32_t{0x563412});
            const bool done = Write(drawing) == kSaveDone;
            done ? ++saved[GraphicGetKind(g)] : ++rejected;
            if (done) continue;
            EXPECT_FALSE(message.empty());
            Remove(root, copy);
        }
        ASSERT_EQ(Write(drawing), kSaveDone) << message;
        const OwnedDrawing read = Open(path);
        ASSERT_TRUE(read);
        ExpectNear(BoxesOf(DrawingGetRoot(read.get())), BoxesOf(root));
        int copies = 0;
        for (GraphicStruct* g : Members(DrawingGetRoot(read.get())))
            copies += ReadProperty<std::string>(g, kPropInfo).value_or("") == "a copy" &&
                      ReadProperty<uint32_t>(g, kPropPenColor) == 0x563412u;
        int made = 0;
        for (GraphicStruct* g : Members(root))
            made += ReadProperty<std::string>(g, kPropInfo).value_or("") == "a copy";
        EXPECT_EQ(copies, made);
    });
    EXPECT_GE(saved[kKindVertices], 79);
    EXPECT_GE(saved[kKindCurve], 30);
    EXPECT_GE(saved[kKindText], 46);
    EXPECT_GE(saved[kKindInsert], 27);
    EXPECT_LE(rejected,
              3); // one has rows, one is drawn without a pen, one is an insertion that shows nothing
}

TEST_F(SaveStructure, MovesVertices) {
    int moved = 0, rejected = 0;
    ForDrawings([&](const fs::path&, const OwnedDrawing& drawing) {
        GraphicStruct* root = DrawingGetRoot(drawing.get());
        int tried = 0;
        for (GraphicStruct* g : Members(root)) {
            if (GraphicGetKind(g) != kKindVertices || ++tried > 40) continue;
            const auto shift = [g](double by) {
                for (VertexStruct* v : Vertices(g))
                    VertexSet(v, v->x + by, v->y - by / 2, v->z + by * 2);
            };
            shift(8);
            if (Write(drawing) == kSaveDone) {
                ++moved;
                continue;
            }
            EXPECT_NE(message.find("): the file format cannot store the change of its vertices"), std::string::npos)
                << message;
            ++rejected;
            shift(-8);
        }
        ASSERT_EQ(Write(drawing), kSaveDone) << message;
        const OwnedDrawing read = Open(path);
        ASSERT_TRUE(read);
        ExpectNear(BoxesOf(DrawingGetRoot(read.get())), BoxesOf(root));
    });
    EXPECT_GE(moved, 272);
    EXPECT_LE(rejected, 16); // hatches, meshes, tilted polylines with arcs
}

// Adds a block for a style, as the viewer does, and an insertion of it.
uint16_t AddBlock(DrawingStruct* drawing, const char* name) {
    GraphicStruct* content = GraphicNewEx(kGraphicVertices, 0, 1);
    GraphicStruct* shape = GraphicAdd(content, GraphicNewEx(kGraphicVertices, 0, 1));
    for (const double x : {0.0, 1.0, 3.0})
        GraphicVertexAdd(shape, orlo::host::OwnedVertex(VertexNewEx(x, x * x, 0)).get());
    GraphicStruct* text = GraphicAdd(content, GraphicNewEx(kGraphicText, 0, 1));
    TextSetVWHAEx(text, orlo::host::OwnedVertex(VertexNewEx(1, 2, 0)).get(), 0, 3, 0.5, "100%%d \xC4");
    GraphicSetStyleName(content, "Graphic styles");
    TableStruct* blocks = BlocksFromDrawing(drawing);
    const uint16_t id = BlocksAddBlock(blocks, name, content);
    WriteProperty(shape, kPropPenColor, uint32_t{0x563412});
    WriteProperty(text, kPropTextFont, std::string("Verdana"));
    GraphicStruct* insert = GraphicAdd(DrawingGetRoot(drawing), GraphicNewEx(kGraphicInsert, 0, 1));
    InsertSetData(insert, blocks, id, nullptr);
    PutVertices(insert, Transformation::tilted);
    WriteProperty(insert, kPropStyleTree, id);
    return id;
}

TEST_F(SaveStructure, SavesBlocksAddedByTheProgram) {
    ForDrawings([&](const fs::path&, const OwnedDrawing& drawing) {
        GraphicStruct* root = DrawingGetRoot(drawing.get());
        const std::vector<double> before = BoxesOf(root);
        const uint16_t id = AddBlock(drawing.get(), "Made \xC4");
        ASSERT_EQ(Write(drawing), kSaveDone) << message;
        const OwnedDrawing read = Open(path);
        ASSERT_TRUE(read);
        ExpectNear(BoxesOf(DrawingGetRoot(read.get())), BoxesOf(root));
        TableStruct* blocks = BlocksFromDrawing(read.get());
        const uint16_t found = BlocksFindBlock(blocks, "made \xC4");
        ASSERT_NE(found, 0);
        GraphicStruct* content = BlockGetGraphic(blocks, found);
        EXPECT_STREQ(content->pszStyleName, "Graphic styles");
        ExpectNear(BoxesOf(content), BoxesOf(BlockGetGraphic(BlocksFromDrawing(drawing.get()), id)));
        std::vector<GraphicStruct*> parts;
        for (GraphicStruct* part : Members(content))
            parts.push_back(part);
        ASSERT_EQ(parts.size(), 2u);
        EXPECT_EQ(ReadProperty<uint32_t>(parts[0], kPropPenColor), 0x563412u);
        EXPECT_EQ(ReadProperty<std::string>(parts[1], kPropTextFont), "Verdana");

        // A second change to a graphic that is in the file by now; then the block is removed with what shows it.
        WriteProperty(*Members(BlockGetGraphic(BlocksFromDrawing(drawing.get()), id)).begin(), kPropInfo,
                      std::string("x"));
        ASSERT_EQ(Write(drawing), kSaveDone) << message;
        GraphicStruct* last = nullptr;
        for (GraphicStruct* g : Members(root))
            last = g;
        Remove(root, last);
        BlockDispose(BlocksFromDrawing(drawing.get()), id);
        ASSERT_EQ(Write(drawing), kSaveDone) << message;
        const OwnedDrawing without = Open(path);
        EXPECT_EQ(BlocksFindBlock(BlocksFromDrawing(without.get()), "Made \xC4"), 0);
        ExpectNear(BoxesOf(DrawingGetRoot(without.get())), before);
        EXPECT_EQ(ReadBytes(path).find("Made "), std::string::npos) << "it was removed completely";
    });
}

std::vector<uint32_t> LayersOf(DrawingStruct* drawing) {
    std::vector<uint32_t> states;
    for (const uint16_t id : orlo::host::Entries(DrawingGetTable(drawing, kTableLayers)))
        states.insert(states.end(), {LayerGetFlags(drawing, id), LayerGetColor(drawing, id)});
    return states;
}

TEST_F(SaveStructure, SavesTheStatesOfLayers) {
    ForDrawings([&](const fs::path& original, const OwnedDrawing& drawing) {
        DrawingStruct* const d = drawing.get();
        const uint16_t layer = TableEntryFirst(DrawingGetTable(d, kTableLayers), nullptr);
        const uint32_t flags = LayerGetFlags(d, layer), color = LayerGetColor(d, layer);
        const uint16_t line = LayerGetLineStyle(d, layer);
        const auto change = [&](uint32_t toColor, uint32_t toFlags) {
            LayerSet(d, layer, toColor, toFlags, line);
            const int result = Write(drawing);
            const OwnedDrawing read = Open(path);
            if (result == kSaveDone) {
                EXPECT_EQ(LayersOf(read.get()), LayersOf(d));
            }
            return result;
        };
        EXPECT_EQ(change(color, flags ^ (kLayerOff | kLayerFrozen | kLayerLocked)), kSaveDone) << message;
        EXPECT_EQ(change(RGB(255, 0, 0), flags ^ kLayerOff), kSaveDone) << message;
        if (change(0x563412, flags) != kSaveDone) {
            EXPECT_NE(message.find("\": a file of this version cannot store the color"), std::string::npos) << message;
        }
        LayerSet(d, layer, 0x563412, flags ^ kLayerLocked, line);
        EXPECT_TRUE(DrawingIsModified(d));
        EXPECT_EQ(change(color, flags), kSaveDone) << message;
        EXPECT_FALSE(DrawingIsModified(d));
        // at most a table for the layer
        EXPECT_NEAR(static_cast<double>(ReadBytes(path).size()), static_cast<double>(fs::file_size(original)), 100);
    });
}

TEST_F(SaveStructure, ReportsTheBlockThatCannotBeSaved) {
    const OwnedDrawing drawing = Open(kDrawings + "made-gbk-R2004.dxf");
    TableStruct* blocks = BlocksFromDrawing(drawing.get());
    GraphicStruct* content = BlockGetGraphic(blocks, AddBlock(drawing.get(), "Part"));
    WriteProperty(content, kPropInfo, std::string("of the whole"));
    EXPECT_EQ(Write(drawing), kSaveFailed);
    EXPECT_EQ(message, "block \"Part\": the file format cannot store properties of a group");
    WriteProperty(content, kPropInfo, std::string());
    GraphicStruct* group = GraphicAdd(content, GraphicCopyEx(content, 0, 0, 7));
    EXPECT_EQ(Write(drawing), kSaveFailed);
    EXPECT_EQ(message, "block \"Part\": the file format cannot store a group of graphics");
    Remove(content, group);
    EXPECT_EQ(Write(drawing), kSaveDone) << message;
}

TEST_F(SaveStructure, ReportsUnsavedChanges) {
    const OwnedDrawing drawing = Open(kDrawings + "acadsharp-sample-AC1032.dxf");
    DrawingStruct* const d = drawing.get();
    GraphicStruct* root = DrawingGetRoot(d);
    TableStruct* blocks = BlocksFromDrawing(d);
    GraphicStruct* part = *Members(BlockGetGraphic(blocks, BlocksFindBlock(blocks, "MyBlock"))).begin();
    uint16_t style = 0;
    GraphicStruct* added = nullptr;
    const uint32_t was = ReadProperty<uint32_t>(part, kPropPenColor).value_or(0);
    const struct {
        const char* what;
        std::function<void()> change, back;
    } kRows[] = {
        {"a step, and undo",
         [&] {
             DrawingBeginUndo(d);
             WriteProperty(*Members(root).begin(), kPropInfo, std::string("new"));
             DrawingEndUndo(d);
         },
         [&] { DrawingUndo(d); }},
        {"within a block", [&] { WriteProperty(part, kPropPenColor, uint32_t{0x563412}); },
         [&] { WriteProperty(part, kPropPenColor, was); }},
        {"a vertex of a block", [&] { VertexSet(*Vertices(part).begin(), 1, 2, 77); }, nullptr},
        {"a graphic", [&] { added = GraphicAdd(root, GraphicCopyEx(*Members(root).begin(), 0, 0, 7)); },
         [&] { Remove(root, added); }},
        {"a style",
         [&] {
             style = BlocksAddBlock(
                 blocks, "Style", GraphicCopyEx(BlockGetGraphic(blocks, BlocksFindBlock(blocks, "MyBlock")), 0, 0, 7));
         },
         [&] { BlockDispose(blocks, style); }},
    };
    EXPECT_FALSE(DrawingIsModified(d));
    for (const auto& row : kRows) {
        SCOPED_TRACE(row.what);
        row.change();
        EXPECT_TRUE(DrawingIsModified(d));
        if (row.back) {
            row.back();
            EXPECT_FALSE(DrawingIsModified(d));
            row.change();
        }
        ASSERT_EQ(Write(drawing), kSaveDone) << message;
        EXPECT_FALSE(DrawingIsModified(d));
        if (row.back) {
            row.back();
            EXPECT_TRUE(DrawingIsModified(d));
        }
        ASSERT_EQ(Write(drawing), kSaveDone) << message;
    }
    EXPECT_FALSE(DrawingIsModified(nullptr));
    EXPECT_FALSE(DrawingIsModified(OwnedDrawing(DrawingNew()).get()));
}

} // namespace

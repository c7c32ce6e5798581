// Graphics: creation, ownership, iteration with filters, extents, selections, and freeing.

#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <fstream>
#include <utility>

#include <drawcore/dxf.h>
#include <drawcore/graphic.h>
#include <drawcore/owned_drawing.h>
#include <drawcore/regen.h>

#include "drawcore/kit.h"

namespace {

using List = std::vector<GraphicStruct*>;

TEST(Graphics, OfAStyleTreeHaveCopiesInTheSameTree) {
    LeakCheck balance;
    GraphicStruct* content = GraphicNewEx(kGraphicVertices, 0, 1);
    GraphicSetStyleName(content, std::string("Doors").c_str());
    GraphicStruct* copy = GraphicCopyEx(content, 0, 0, 7);
    GraphicSetStyleName(content, "Windows");
    EXPECT_STREQ(content->pszStyleName, "Windows");
    EXPECT_STREQ(copy->pszStyleName, "Doors");
    GraphicDispose(&content);
    EXPECT_STREQ(copy->pszStyleName, "Doors");
    GraphicSetStyleName(copy, "");
    EXPECT_EQ(copy->pszStyleName, nullptr);
    GraphicDispose(&copy);
    EXPECT_TRUE(balance.HasNoLeaks());
}

TEST(Graphics, AreCreatedByType) {
    LeakCheck balance;
    for (const int type : {2, 6, 0x0B, 0x11}) {
        GraphicStruct* graphic = GraphicNewEx(type, 0, 1);
        ASSERT_NE(graphic, nullptr);
        EXPECT_EQ(graphic->bType, type);
        EXPECT_NE(graphic->dwFlags & kFlagNoParent, 0u);
        EXPECT_EQ(graphic->wRegenMethod, 0);
        GraphicDispose(&graphic);
        EXPECT_EQ(graphic, nullptr);
        GraphicDispose(&graphic); // harmless
    }
    EXPECT_EQ(GraphicNewEx(99, 0, 1), nullptr);
    EXPECT_TRUE(balance.HasNoLeaks());
}

TEST(Graphics, OwnTheirParts) {
    LeakCheck balance;
    OwnDrawing drawing;
    GraphicStruct* parent = GraphicNewEx(kGraphicVertices, 0, 1);
    EXPECT_FALSE(GraphicGetIsGroup(parent));
    GraphicStruct *a = MakeSquare(0, 0, 1), *b = MakeSquare(5, 5, 1);
    EXPECT_EQ(GraphicAdd(parent, a), a);
    EXPECT_EQ(GraphicAdd(parent, b), b);
    EXPECT_TRUE(GraphicGetIsGroup(parent));
    EXPECT_EQ(a->pParent, parent);
    EXPECT_EQ(a->dwFlags & kFlagNoParent, 0u);
    EXPECT_EQ(GraphicAdd(drawing.Root(), a), nullptr) << "has an owner already";
    GraphicAttach(parent, drawing);
    EXPECT_EQ(GraphicGetDrawing(b), static_cast<DrawingStruct*>(drawing)) << "parts are removed with their owner";
    GraphicDelete(parent, a);
    EXPECT_NE(a->dwFlags & kFlagNoParent, 0u);
    EXPECT_EQ(Members(parent), List{b});
    GraphicDelete(parent, a); // no longer a member: no effect
    GraphicDispose(&a);
    drawing.Close();
    EXPECT_EQ(GraphicGetDrawing(b), nullptr) << "the drawing was deleted";
    GraphicDispose(&parent);
    EXPECT_TRUE(balance.HasNoLeaks());
}

TEST(Graphics, PolylineWithPartsIsNotAGroup) {
    const TestGraphic shape(MakeSquare(0, 0, 1));
    GraphicAdd(shape, MakeSquare(1, 1, 1));
    EXPECT_FALSE(GraphicGetIsGroup(shape));
}

TEST(Graphics, AreIteratedByKind) {
    OwnDrawing drawing;
    GraphicStruct* line = drawing.Add(MakeLines({{0, 0}, {1, 1}}));
    GraphicStruct* circle = drawing.Add(GraphicNewEx(kGraphicPenBrush, 0, 1));
    GraphicStruct* text = drawing.Add(GraphicNewEx(kGraphicText, 0, 1));
    GraphicStruct* insert = drawing.Add(GraphicNewEx(kGraphicInsert, 0, 1));
    GraphicStruct* group = GraphicNewEx(kGraphicVertices, 0, 1);
    GraphicAdd(group, MakeSquare(0, 0, 1));
    drawing.Add(group);
    const List all = {line, circle, text, insert, group};
    GraphicStruct* root = drawing.Root();
    EXPECT_EQ(Members(root), all) << "a group counts as one";
    EXPECT_EQ(Members(root, 0xFFFFFFFF & ~4u), all);
    EXPECT_EQ(Members(root, 4), all) << "no kind is specified";
    EXPECT_EQ(Members(root, 0), all);
    EXPECT_EQ(Members(root, kKindVertices), List{line});
    EXPECT_EQ(Members(root, kKindCurve | kKindText | 4), (List{circle, text}));
    EXPECT_EQ(Members(root, kKindInsert | kKindGroup), (List{insert, group}));
    EXPECT_EQ(GraphicFirst(nullptr, &root, 1, 0), nullptr);
}

TEST(Graphics, CopyVerticesWithTheirFlags) {
    VertexStruct* vertex = VertexNewFromEx(nullptr);
    EXPECT_EQ(vertex->wFlags & 1, 1) << "a new one is drawn";
    VertexSet(vertex, 3, 4, 5);
    vertex->wFlags = 0;
    VertexStruct* copy = VertexNewFromEx(vertex);
    EXPECT_EQ(copy->z, 5);
    EXPECT_EQ(copy->wFlags, 0);
    GraphicStruct* text = GraphicNewEx(kGraphicText, 0, 1);
    EXPECT_FALSE(GraphicVertexAdd(text, vertex));
    EXPECT_FALSE(GraphicVertexAdd(nullptr, vertex));
    GraphicDispose(&text);
    VertexDispose(&vertex);
    VertexDispose(&copy);
    EXPECT_EQ(vertex, nullptr);
}

TEST(Vertices, AreIteratedInOrderAndCanBeMoved) {
    GraphicStruct* square = MakeSquare(10, 0, 5);
    int cookie = 77, count = 0;
    for (VertexStruct* v = GraphicVertexFirst(square, &cookie, 0, 0xFFFF); v;
         v = GraphicVertexNext(square, &cookie, 0, 0xFFFF))
        if (++count == 2) VertexSet(v, 90, v->y, v->z);
    EXPECT_EQ(count, 5);
    EXPECT_EQ(GraphicVertexNext(square, &cookie, 0, 0xFFFF), nullptr);
    EXPECT_EQ(BoxOf(square).right, 90);
    GraphicDispose(&square);
    EXPECT_EQ(GraphicVertexFirst(nullptr, &cookie, 0, 0xFFFF), nullptr);
}

TEST(Extents, FollowTheGraphicAndItsParts) {
    OwnDrawing drawing;
    GraphicStruct* a = drawing.Add(MakeSquare(10, 0, 5));
    const auto left = [&] { return BoxOf(drawing.Root()).left; };
    const auto right = [&] { return BoxOf(drawing.Root()).right; };
    EXPECT_EQ(left(), 10);
    EXPECT_EQ(right(), 15);
    GraphicStruct* b = drawing.Add(MakeSquare(-7, 0, 1));
    EXPECT_EQ(left(), -7);
    AddVertex(a, 99, 0);
    EXPECT_EQ(right(), 99) << "a part has grown";
    GraphicDelete(drawing.Root(), b);
    GraphicDispose(&b);
    EXPECT_EQ(left(), 10);
    GraphicStruct* circle = drawing.Add(GraphicNewEx(kGraphicPenBrush, 0, 1));
    EXPECT_NEAR(BoxOf(circle).left, -1, 1e-12);
    EXPECT_NEAR(BoxOf(circle).right, 1, 1e-12);
}

TEST(Selections, DoNotOwnTheirMembers) {
    LeakCheck balance;
    OwnDrawing drawing;
    std::vector<GraphicStruct*> lines;
    for (int i = 0; i < 5; ++i)
        lines.push_back(drawing.Add(MakeSquare(i, 0, 1)));
    GraphicStruct* selection = SelectionNew();
    for (GraphicStruct* line : lines)
        EXPECT_TRUE(SelectionAdd(selection, line));
    EXPECT_FALSE(SelectionAdd(selection, lines[2])) << "once";
    EXPECT_TRUE(SelectionRemove(selection, lines[1]));
    EXPECT_FALSE(SelectionRemove(selection, lines[1]));
    EXPECT_TRUE(SelectionRemove(selection, lines[3]));
    EXPECT_EQ(Members(selection), (List{lines[0], lines[2], lines[4]})) << "the order is unchanged";
    EXPECT_TRUE(SelectionContains(selection, lines[4]));
    EXPECT_FALSE(SelectionContains(selection, lines[3]));
    EXPECT_TRUE(SelectionRemove(selection, lines[4]));
    EXPECT_EQ(BoxOf(selection).right, 3);
    EXPECT_EQ(lines[0]->pParent, drawing.Root());
    EXPECT_FALSE(SelectionAdd(drawing.Root(), lines[0])) << "no selection";
    SelectionClear(selection);
    EXPECT_EQ(SelectionCount(selection), 0);
    SelectionAdd(selection, lines[0]);
    GraphicDispose(&selection);
    EXPECT_EQ(Members(drawing.Root()).size(), 5u) << "the drawing still owns the members";
    drawing.Close();
    EXPECT_TRUE(balance.HasNoLeaks());
}

TEST(Selections, AreCopiedAsAGroupOfCopies) {
    OwnDrawing drawing;
    const LeakCheck balance;
    GraphicStruct *a = drawing.Add(MakeLines({{0, 0}, {1, 1}})), *b = drawing.Add(MakeSquare(2, 2, 2));
    SetInteger(b, kPropBrushStyle, 3);
    GraphicStruct* selection = SelectionNew();
    SelectionAdd(selection, a);
    SelectionAdd(selection, b);
    GraphicStruct* copy = GraphicCopyEx(selection, 0, 0, 7);
    GraphicDispose(&selection);
    SetInteger(b, kPropBrushStyle, 4);
    ASSERT_TRUE(GraphicGetIsGroup(copy));
    uint32_t position;
    GraphicStruct* first = GraphicFirst(copy, &position, 1, kFilterKinds);
    GraphicStruct* second = GraphicNext(copy, &position, 1, kFilterKinds);
    EXPECT_NE(first, a);
    EXPECT_EQ(GetWhole(second, kPropBrushStyle), 3u);
    EXPECT_EQ(second->pParent, copy);
    EXPECT_EQ(BoxOf(copy).right, 4);
    GraphicDispose(&copy);
    for (GraphicStruct* graphic : {a, b}) {
        GraphicDelete(drawing.Root(), graphic);
        GraphicDispose(&graphic);
    }
    EXPECT_TRUE(balance.HasNoLeaks());
}

TEST(RegenMethods, CallTheHostProgram) {
    struct Calls {
        std::vector<GraphicStruct*> rebuilt;
        void* sheet = nullptr;
    } calls;
    const RegenMethod method = {
        &calls, [](void* context, GraphicStruct* g) { static_cast<Calls*>(context)->rebuilt.push_back(g); },
        [](void* context, GraphicStruct*, void* sheet) {
            static_cast<Calls*>(context)->sheet = sheet;
            return 42;
        }};
    void* methods = RegenMethodsNew();
    GraphicStruct* graphic = MakeSquare(0, 0, 1);
    EXPECT_TRUE(RegenMethodRegister(methods, 7, &method));
    EXPECT_FALSE(RegenMethodRegister(methods, 0, &method));
    RegenMethodRegen(methods, 7, graphic);
    RegenMethodRegen(methods, 8, graphic);
    RegenMethodRegen(nullptr, 7, graphic);
    EXPECT_EQ(calls.rebuilt, List{graphic});
    EXPECT_EQ(RegenMethodGetPropPage(methods, 7, graphic, &calls), 42);
    EXPECT_EQ(calls.sheet, &calls);
    EXPECT_EQ(RegenMethodGetPropPage(methods, 8, graphic, &calls), 0);
    GraphicDispose(&graphic);
    RegenMethodsDispose(&methods);
    EXPECT_EQ(methods, nullptr);
}

TEST(Strings, AreThoseOfTheHost) {
    char text[64];
    for (const unsigned int id : {0x704Au, 0x704Bu, 0x704Cu, 0x704Du, 0x704Eu, 0x704Fu, 0x7050u, 0x7051u, 0x7052u,
                                  0x7053u, 0x7054u, 0x7058u, 0x7059u, 0x705Au, 0x705Cu})
        EXPECT_GT(DrawCoreLoadString(id, text, sizeof text), 0) << id;
    EXPECT_EQ(DrawCoreLoadString(kStringByLayer, text, 6), 5);
    EXPECT_STREQ(text, "By La");
    EXPECT_EQ(DrawCoreLoadString(1, text, sizeof text), 0);
    EXPECT_STREQ(text, "");
    EXPECT_EQ(DrawCoreLoadString(kStringByLayer, text, 0), 0);
}

// A half circle to the right of its chord, and a segment of growing width: the data after a vertex is copied with it.
TEST(Copies, KeepArcsAndWidths) {
    const std::filesystem::path path = std::filesystem::temp_directory_path() / "orlo_copies.dxf";
    std::ofstream(path) << "0\nSECTION\n2\nENTITIES\n0\nLWPOLYLINE\n8\n0\n90\n3\n70\n0\n"
                           "10\n20\n20\n20\n42\n1\n10\n20\n20\n60\n40\n0\n41\n20\n10\n80\n20\n60\n"
                           "0\nENDSEC\n0\nEOF\n";
    const OwnedDrawing drawing(DrawingOpenDxf(path.c_str(), nullptr, nullptr, 0));
    std::filesystem::remove(path);
    ASSERT_NE(drawing, nullptr);
    GraphicStruct* original = Members(DrawingGetRoot(drawing.get())).at(0);
    const TestGraphic copy(GraphicCopyEx(original, 0, 0, 7));
    EXPECT_NEAR(BoxOf(original).right, 80, 1e-9);
    EXPECT_NEAR(BoxOf(copy).bottom, BoxOf(original).bottom, 1e-9);
    Picture picture(drawing.get());
    const auto pixels = [&](GraphicStruct* graphic) {
        picture.Draw(graphic);
        return std::pair(picture.Covered(20, 20, 45, 60), picture.Covered(60, 50, 90, 70));
    };
    const auto [arc, wide] = pixels(original);
    EXPECT_GT(arc, 60) << "longer than its chord";
    EXPECT_GT(wide, 200);
    EXPECT_EQ(pixels(copy), std::pair(arc, wide));
}

} // namespace

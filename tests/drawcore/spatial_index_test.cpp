// The spatial index of a drawing, compared with checking every graphic; a selection of all graphics has no index.

#include <gtest/gtest.h>

#include <functional>
#include <random>

#include <drawcore/layer.h>
#include <drawcore/undo.h>

#include "drawcore/kit.h"

namespace {

class SpatialIndexTest : public testing::Test {
protected:
    SpatialIndexTest() {
        block = BlocksAddBlock(drawing.Table(kTableBlocks), "Mark", MakeSquare(-1, -1, 2));
        layer = TableEntryAdd(drawing.Table(kTableLayers), "some", nullptr);
        for (int i = 0; i < kGraphics; ++i)
            Add();
    }

    double Coordinate() { return std::uniform_real_distribution<>(-200, 300)(random); }
    int Number(int below) { return std::uniform_int_distribution<>(0, below - 1)(random); }
    GraphicStruct* Any() { return all[static_cast<size_t>(Number(static_cast<int>(all.size())))]; }

    GraphicStruct* Make() {
        const double x = Coordinate(), y = Coordinate();
        switch (Number(5)) {
        case 0:
            return MakeText("text", {x, y}, 3, x);
        case 1:
            return MakeInsert(drawing.Table(kTableBlocks), block, {x, y}, 3, 2, y);
        case 2: {
            GraphicStruct* group = GraphicNewEx(kGraphicVertices, 0, 1);
            GraphicAdd(group, MakeSquare(x, y, 3));
            GraphicAdd(group, MakeLines({{x, y}, {x + 9, y + 4}}));
            return group;
        }
        case 3:
            return MakeSquare(x, y, 2);
        default:
            return MakeLines({{x, y}, {x + Number(30), y - Number(30)}});
        }
    }

    void Add() {
        all.push_back(drawing.Add(Make()));
        if (Number(3) == 0) SetInteger(all.back(), kPropLayer, layer);
    }

    void Remove() {
        const auto removed = all.begin() + Number(static_cast<int>(all.size()));
        GraphicStruct* graphic = *removed;
        all.erase(removed);
        GraphicDelete(drawing.Root(), graphic);
        GraphicDispose(&graphic);
    }

    void Move(GraphicStruct* graphic) {
        int cookie = 0;
        const double dx = Coordinate() / 10, dy = Coordinate() / 10;
        for (VertexStruct* v = GraphicVertexFirst(graphic, &cookie, 0, 0xFFFF); v;
             v = GraphicVertexNext(graphic, &cookie, 0, 0xFFFF))
            VertexSet(v, v->x + dx, v->y + dy, v->z);
    }

    // Also changes part of a group, if there is one.
    void Widen(GraphicStruct* graphic) {
        const std::vector<GraphicStruct*> parts = Members(graphic);
        GraphicStruct* widened = parts.empty() ? graphic : parts[0];
        SetInteger(widened, kPropScaleSystem, Number(2) ? uint32_t{kScaleWorld} : uint32_t{kScalePaper});
        SetReal(widened, kPropPenWidth, Number(2) ? 6 : 0.1);
    }

    void Change() {
        switch (Number(9)) {
        case 0:
            return Add();
        case 1:
            return Remove();
        case 2:
            return Widen(Any());
        case 3:
            SetReal(Any(), kPropTextSize, 1 + Number(9));
            return;
        case 4:
            LayerSet(drawing, layer, 0, Number(2) ? uint32_t{kLayerOff} : 0, 0);
            return;
        case 5:
            DrawingUndo(drawing);
            return;
        case 6:
            DrawingRedo(drawing);
            return;
        case 7:
            return Move(Number(2) ? BlockGetGraphic(drawing.Table(kTableBlocks), block) : Any());
        default:
            DrawingBeginUndo(drawing);
            for (int i = 0; i < 5; ++i)
                Number(2) ? Move(Any()) : Widen(Any());
            DrawingEndUndo(drawing);
        }
    }

    std::vector<GraphicStruct*> Within(GraphicStruct* set, const RECT& box, int crossing) {
        const TestGraphic found(SelectionNew());
        ViewportPickWindow(picture.Viewport(), set, &box, crossing, kAllGraphics, found);
        return Members(found);
    }

    std::vector<COLORREF> Drawn(GraphicStruct* set) {
        picture.Draw(set);
        return Colors();
    }

    std::vector<COLORREF> Colors() const {
        std::vector<COLORREF> colors;
        for (int y = 0; y <= 100; ++y)
            for (int x = 0; x <= 100; ++x)
                colors.push_back(picture.At(x, y));
        return colors;
    }

    void ExpectTheSame() {
        const TestGraphic walked(SelectionNew());
        for (GraphicStruct* graphic : all)
            SelectionAdd(walked, graphic);
        EXPECT_EQ(Drawn(drawing.Root()), Drawn(walked));
        for (int i = 0; i < 20; ++i) {
            const POINT p = {Number(101), Number(101)};
            EXPECT_EQ(ViewportPick(picture.Viewport(), drawing.Root(), p, 4, kAllGraphics),
                      ViewportPick(picture.Viewport(), walked, p, 4, kAllGraphics));
            const RECT box = {Number(101), Number(101), Number(101), Number(101)};
            for (const int crossing : {0, 1})
                EXPECT_EQ(Within(drawing.Root(), box, crossing), Within(walked, box, crossing));
        }
    }

    static constexpr int kGraphics = 400;
    std::mt19937 random{20};
    OwnDrawing drawing;
    Picture picture{drawing};
    uint16_t block, layer;
    std::vector<GraphicStruct*> all; // in drawing order
};

TEST_F(SpatialIndexTest, ResultsEqualASearchAfterAnyChange) {
    ViewportZoom(picture.Viewport(), {50, 50}, 1.3);
    for (int round = 0; round < 150 && !HasFailure(); ++round) {
        SCOPED_TRACE(round);
        for (int i = Number(3); i >= 0; --i)
            Change();
        ViewportPan(picture.Viewport(), Number(41) - 20, Number(41) - 20);
        if (round % 10 == 0) ViewportZoom(picture.Viewport(), {50, 50}, round % 20 ? 2 : 0.5);
        ExpectTheSame();
    }
}

// More changes than are updated one by one: the index is rebuilt.
TEST_F(SpatialIndexTest, ResultsEqualASearchAfterAChangeOfAll) {
    ExpectTheSame();
    DrawingBeginUndo(drawing);
    for (GraphicStruct* graphic : all)
        Move(graphic);
    DrawingEndUndo(drawing);
    ExpectTheSame();
    DrawingUndo(drawing);
    ExpectTheSame();
}

TEST_F(SpatialIndexTest, DrawingInTimeSlicesEqualsDrawingAtOnce) {
    for (GraphicStruct* graphic : all)
        if (Number(4) == 0) Widen(graphic);
    for (const double factor : {1.0, 1.5, 0.1}) {
        ViewportZoom(picture.Viewport(), {50, 50}, factor);
        const std::vector<COLORREF> whole = Drawn(drawing.Root());
        picture.Draw(TestGraphic(MakeLines({}))); // draws nothing
        uint32_t place = 0;
        int turns = 1;
        while (!GraphicDrawTimed(drawing.Root(), picture.Viewport(), &place, 0))
            ++turns;
        EXPECT_GT(turns, factor > 1 ? 0 : 2);
        EXPECT_EQ(whole, Colors());
    }
}

} // namespace

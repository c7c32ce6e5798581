// Undo: undoing a step reverts everything that was changed in it, and nothing else.

#include <gtest/gtest.h>

#include <functional>

#include <drawcore/undo.h>

#include "drawcore/kit.h"

namespace {

class Undo : public testing::Test {
protected:
    Undo() {
        for (int i = 0; i < 3; ++i)
            lines.push_back(drawing.Add(MakeSquare(i, 0, 1)));
        for (GraphicStruct* line : lines)
            SetReal(line, kPropPenWidth, 1);
    }
    LeakCheck balance;
    OwnDrawing drawing;
    std::vector<GraphicStruct*> lines;
};

TEST_F(Undo, RevertsACompleteStep) {
    ASSERT_TRUE(DrawingBeginUndo(drawing));
    EXPECT_FALSE(DrawingBeginUndo(drawing)) << "one is open";
    for (GraphicStruct* line : {lines[0], lines[1]}) {
        SetReal(line, kPropPenWidth, 2);
        SetReal(line, kPropPenWidth, 3);
        SetInteger(line, kPropPenColor, 0xFF);
        SetText(line, kPropInfo, "changed");
        SetInteger(line, kPropBrushStyle, 4);
    }
    GraphicSetPenStyle(lines[0], 1);
    EXPECT_EQ(DrawingUndo(drawing), 0) << "still open";
    EXPECT_EQ(DrawingEndUndo(drawing), 2);
    EXPECT_EQ(DrawingCountUndo(drawing), 1);
    EXPECT_EQ(DrawingUndo(drawing), 2);
    for (GraphicStruct* line : lines) {
        EXPECT_EQ(GetReal(line, kPropPenWidth), 1);
        EXPECT_EQ(GetWhole(line, kPropPenColor), 0xFFFFFFFD);
        EXPECT_EQ(GetText(line, kPropInfo), "");
        EXPECT_EQ(GetWhole(line, kPropBrushStyle), 0u);
        EXPECT_EQ(GetWhole(line, kPropPenStyle), 65534u);
    }
    EXPECT_EQ(DrawingUndo(drawing), 0) << "nothing left to undo";
}

// Each property separately: one that the log misses would not be undone.
TEST_F(Undo, RevertsEveryPropertyOfTheSchema) {
    GraphicStruct* const text = drawing.Add(MakeText("text", {0, 0}, 1));
    for (GraphicStruct* graphic : {lines[0], text})
        for (const PropertyInfo& property : kPropertyList) {
            const char* const name = property.name;
            if (!orlo::host::FindProperty(graphic, name)) continue;
            SCOPED_TRACE(name);
            const auto value = [&] {
                if (property.IsText()) return GetText(graphic, name);
                return std::to_string(property.IsReal() ? GetReal(graphic, name) : GetWhole(graphic, name));
            };
            const std::string before = value();
            ASSERT_TRUE(DrawingBeginUndo(drawing));
            if (property.IsText()) SetText(graphic, name, "Courier New");
            if (property.IsReal()) SetReal(graphic, name, 0.25);
            if (!property.IsText() && !property.IsReal())
                for (const uint32_t other : {0u, 1u})
                    if (value() == before) SetInteger(graphic, name, other);
            EXPECT_TRUE(value() != before || name == std::string(kPropLayer)) << "the only layer";
            DrawingEndUndo(drawing);
            DrawingUndo(drawing);
            EXPECT_EQ(value(), before);
        }
}

TEST_F(Undo, RevertsMovedVerticesAndIgnoresThoseOnlyRead) {
    const auto right = [&](size_t i) { return BoxOf(lines[i]).right; };
    ASSERT_TRUE(DrawingBeginUndo(drawing));
    int cookie = 0;
    VertexStruct* copy = VertexNewFromEx(GraphicVertexFirst(lines[1], &cookie, 0, 0xFFFF));
    for (GraphicStruct* line : lines)
        for (VertexStruct* v = GraphicVertexFirst(line, &cookie, 0, 0xFFFF); v;
             v = GraphicVertexNext(line, &cookie, 0, 0xFFFF))
            if (line == lines[0]) VertexSet(v, v->x + 50, v->y, v->z);
    VertexSet(copy, 70, 0, 0);
    VertexDispose(&copy);
    EXPECT_EQ(right(0), 51);
    EXPECT_EQ(right(1), 2) << "a copy of a vertex has no owner";
    EXPECT_EQ(right(2), 3);
    EXPECT_EQ(DrawingEndUndo(drawing), 1);
    EXPECT_EQ(DrawingUndo(drawing), 1);
    EXPECT_EQ(right(0), 1);
}

TEST_F(Undo, RevertsStepByStep) {
    for (const double width : {2.0, 3.0, 4.0}) {
        DrawingBeginUndo(drawing);
        SetReal(lines[0], kPropPenWidth, width);
        DrawingEndUndo(drawing);
    }
    for (const double width : {3.0, 2.0, 1.0}) {
        EXPECT_EQ(DrawingUndo(drawing), 1);
        EXPECT_EQ(GetReal(lines[0], kPropPenWidth), width);
    }
}

TEST_F(Undo, RedoesUntilSomethingElseIsChanged) {
    const auto step = [&](const std::function<void()>& change) {
        DrawingBeginUndo(drawing);
        change();
        return DrawingEndUndo(drawing);
    };
    const uint32_t start = DrawingGetUndoMark(drawing);
    step([&] { SetReal(lines[0], kPropPenWidth, 2); });
    const uint32_t middle = DrawingGetUndoMark(drawing);
    step([&] {
        SetReal(lines[0], kPropPenWidth, 7);
        AddVertex(lines[0], 50, 50);
        SetReal(lines[1], kPropPenWidth, 3);
    });
    const uint32_t end = DrawingGetUndoMark(drawing);
    for (int repetition = 0; repetition < 2; ++repetition) {
        EXPECT_EQ(DrawingUndo(drawing), 2);
        EXPECT_EQ(DrawingGetUndoMark(drawing), middle);
        EXPECT_EQ(DrawingUndo(drawing), 1);
        EXPECT_EQ(DrawingGetUndoMark(drawing), start);
        EXPECT_EQ(DrawingCountRedo(drawing), 2);
        EXPECT_EQ(DrawingRedo(drawing), 1);
        EXPECT_EQ(GetReal(lines[0], kPropPenWidth), 2);
        EXPECT_EQ(BoxOf(lines[0]).right, 1);
        EXPECT_EQ(DrawingRedo(drawing), 2);
        EXPECT_EQ(GetReal(lines[0], kPropPenWidth), 7);
        EXPECT_EQ(BoxOf(lines[0]).right, 50);
        EXPECT_EQ(DrawingGetUndoMark(drawing), end);
        EXPECT_EQ(DrawingRedo(drawing), 0);
    }
    DrawingUndo(drawing);
    EXPECT_EQ(step([] {}), 0) << "changes nothing";
    GraphicDelete(drawing.Root(), lines[1]);
    GraphicDispose(&lines[1]);
    EXPECT_EQ(DrawingRedo(drawing), 1) << "one of the two was removed";
    DrawingUndo(drawing);
    EXPECT_EQ(step([&] { SetReal(lines[2], kPropPenWidth, 9); }), 1);
    EXPECT_EQ(DrawingRedo(drawing), 0);
    EXPECT_NE(DrawingGetUndoMark(drawing), end) << "another state, although the number of steps is the same";
}

TEST_F(Undo, CancelRevertsOnlyTheOpenStep) {
    for (const double width : {2.0, 3.0}) {
        DrawingBeginUndo(drawing);
        SetReal(lines[0], kPropPenWidth, width);
        DrawingEndUndo(drawing);
    }
    DrawingUndo(drawing);
    int calls = 0;
    const ChangeListener listener = {&calls, [](void* context) { ++*static_cast<int*>(context); }};
    DrawingSetChangeListener(drawing, &listener);
    SetReal(lines[2], kPropPenWidth, 8);
    EXPECT_EQ(calls, 0) << "no step is open";
    DrawingBeginUndo(drawing);
    SetReal(lines[0], kPropPenWidth, 4);
    SetReal(lines[0], kPropPenWidth, 5);
    AddVertex(lines[1], 50, 50);
    EXPECT_EQ(calls, 3);
    EXPECT_EQ(DrawingCancelUndo(drawing), 2);
    EXPECT_EQ(GetReal(lines[0], kPropPenWidth), 2);
    EXPECT_EQ(BoxOf(lines[1]).right, 2);
    EXPECT_EQ(DrawingCountUndo(drawing), 1);
    EXPECT_EQ(DrawingRedo(drawing), 1);
    EXPECT_EQ(GetReal(lines[0], kPropPenWidth), 3);
    EXPECT_EQ(DrawingCancelUndo(drawing), 0) << "no step is open";
}

TEST_F(Undo, DropsAndCountsTheOldestStepsAtTheMemoryLimit) {
    const auto step = [&](double width) {
        DrawingBeginUndo(drawing);
        for (GraphicStruct* line : lines)
            SetReal(line, kPropPenWidth, width);
        EXPECT_EQ(DrawingEndUndo(drawing), 3);
        return DrawingCountDroppedUndo(drawing);
    };
    EXPECT_EQ(step(2) + step(3) + step(4), 0);
    DrawingSetUndoLimit(drawing, 1); // the last step is always kept
    EXPECT_EQ(step(5), 3);
    EXPECT_EQ(step(6), 1);
    const uint32_t end = DrawingGetUndoMark(drawing);
    EXPECT_EQ(DrawingUndo(drawing), 3);
    EXPECT_EQ(DrawingUndo(drawing), 0);
    EXPECT_EQ(GetReal(lines[2], kPropPenWidth), 5);
    EXPECT_NE(DrawingGetUndoMark(drawing), 0u) << "not the opened file";
    EXPECT_EQ(DrawingRedo(drawing), 3) << "the only one, whatever the space";
    EXPECT_EQ(DrawingGetUndoMark(drawing), end);
}

size_t HeapBytes() {
    size_t bytes = 0;
    HANDLE heaps[64];
    const DWORD count = ::GetProcessHeaps(64, heaps);
    for (DWORD i = 0; i < count && i < 64; ++i) {
        PROCESS_HEAP_ENTRY entry{};
        while (::HeapWalk(heaps[i], &entry))
            if (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) bytes += entry.cbData;
    }
    return bytes;
}

// A million graphics with ten edits must need at most a few hundred megabytes.
TEST_F(Undo, StoresOnlyWhatHasChanged) {
    constexpr int kGraphics = 10000, kSteps = 10;
    for (int i = 0; i < kGraphics; ++i)
        lines.push_back(drawing.Add(MakeSquare(i, 0, 1)));
    const size_t before = HeapBytes();
    for (int step = 1; step <= kSteps; ++step) {
        DrawingBeginUndo(drawing);
        for (GraphicStruct* line : lines)
            SetInteger(line, kPropPenColor, static_cast<uint32_t>(step));
        DrawingEndUndo(drawing);
    }
    EXPECT_LT((HeapBytes() - before) / kGraphics / kSteps, 30u) << "bytes a graphic and step";
}

// It is set when properties are written, and undone with them; graphics with the same properties may have different
// ones.
TEST_F(Undo, RevertsThePageThatWroteLast) {
    lines[0]->wLastPage = 5;
    lines[1]->wLastPage = 6;
    DrawingBeginUndo(drawing);
    for (GraphicStruct* line : lines) {
        SetReal(line, kPropPenWidth, 2);
        line->wLastPage = 9;
    }
    DrawingEndUndo(drawing);
    DrawingUndo(drawing);
    EXPECT_EQ(lines[0]->wLastPage, 5);
    EXPECT_EQ(lines[1]->wLastPage, 6);
}

// The attributes are recorded first; the shape is about to change only after the attributes have changed.
TEST_F(Undo, RevertsAttributesAndShapeOfOneGraphic) {
    DrawingBeginUndo(drawing);
    SetReal(lines[0], kPropPenWidth, 7);
    AddVertex(lines[0], 50, 50);
    EXPECT_EQ(DrawingEndUndo(drawing), 1);
    EXPECT_EQ(BoxOf(drawing.Root()).right, 50);
    EXPECT_EQ(DrawingUndo(drawing), 1);
    EXPECT_EQ(GetReal(lines[0], kPropPenWidth), 1);
    EXPECT_EQ(BoxOf(lines[0]).right, 1);
    EXPECT_EQ(BoxOf(drawing.Root()).right, 3);
}

TEST_F(Undo, RevertsAllAttributesOfAText) {
    GraphicStruct* text = drawing.Add(MakeText("Text", {0, 0}, 3));
    const double width = BoxOf(text).right;
    DrawingBeginUndo(drawing);
    SetReal(text, kPropTextSize, 30);
    SetText(text, kPropTextFont, "DejaVu Sans");
    SetInteger(text, kPropTextStyle, 2);
    SetInteger(text, kPropTextFormat, 1);
    EXPECT_EQ(DrawingEndUndo(drawing), 1);
    EXPECT_GT(BoxOf(text).right, 5 * width);
    EXPECT_EQ(DrawingUndo(drawing), 1);
    EXPECT_EQ(BoxOf(text).right, width);
    EXPECT_EQ(GetReal(text, kPropTextSize), 3);
    EXPECT_EQ(GetText(text, kPropTextFont), "Tahoma");
    EXPECT_EQ(GetWhole(text, kPropTextStyle) + GetWhole(text, kPropTextFormat), 0u);
}

TEST_F(Undo, DiscardsStepsWithoutChanges) {
    DrawingBeginUndo(drawing);
    SetReal(lines[0], kPropPenWidth, 5);
    SetReal(lines[0], kPropPenWidth, 1);
    EXPECT_FALSE(SetReal(lines[1], kPropPenWidth, -1));
    EXPECT_EQ(DrawingEndUndo(drawing), 0);
    EXPECT_EQ(DrawingCountUndo(drawing), 0);
}

TEST_F(Undo, IgnoresPreviewsAndHandlesDeletedGraphics) {
    DrawingBeginUndo(drawing);
    GraphicStruct* preview = GraphicNewEx(kGraphicVertices, 0, 1);
    GraphicAttach(preview, drawing);
    GraphicAdd(preview, MakeSquare(0, 0, 1));
    SetReal(Members(preview)[0], kPropPenWidth, 9);
    GraphicDispose(&preview);
    SetReal(lines[0], kPropPenWidth, 9);
    SetReal(lines[1], kPropPenWidth, 9);
    EXPECT_EQ(DrawingEndUndo(drawing), 2);
    GraphicDelete(drawing.Root(), lines[1]);
    GraphicDispose(&lines[1]);
    EXPECT_EQ(DrawingUndo(drawing), 1);
    EXPECT_EQ(GetReal(lines[0], kPropPenWidth), 1);
    drawing.Close();
    EXPECT_TRUE(balance.HasNoLeaks());
    EXPECT_FALSE(DrawingBeginUndo(drawing)) << "the drawing was deleted";
}

} // namespace

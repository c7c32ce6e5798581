// Edits real drawings on all pages and undoes the edits; also tests that the comparison detects differences.

#include "demo/automation/control_text.h"
#include "demo/round_trip.h"
#include "demo/viewer.h"
#include "drawcore/table.h"
#include "orlo/host/graphic.h"
#include "orlo/host/vertex.h"
#include "support/drawing_state.h"

namespace {

TEST_F(Viewer, RealDrawingsAreRestoredAfterEditingAllPages) {
    EXPECT_TRUE(RoundTrip(*frame).Check({TEST_DATA "/dxf/acadsharp-sample-AC1032.dxf",
                                         TEST_DATA "/dxf/ezdxf-insert-nested-mirrored.dxf",
                                         TEST_DATA "/dxf/kabeja-hatch_1.dxf", TEST_DATA "/dxf/bad-empty.dxf"}));
}

TEST_F(Viewer, KeysReachOnlyTheWindowThatHadTheFocus) {
    user.Wait(0);
    ::SetFocus(nullptr); // as when a window of another program is activated
    user.Key('A', UserInput::kControl);
    EXPECT_EQ(selection().Count(), 4);
    EXPECT_EQ(::GetFocus(), view());

    const HWND field =
        ::CreateWindowExA(0, "EDIT", "", WS_CHILD | WS_VISIBLE, 0, 0, 50, 20, view(), nullptr, nullptr, nullptr);
    user.MoveFocus(field);
    ::SetFocus(nullptr);
    user.Wait(0);
    user.Type("x");
    EXPECT_EQ(WindowText(field), "x");
    ::DestroyWindow(field);
    user.MoveFocus(view());

    UserInput unfocused(0); // had no focus window to restore
    ::SetFocus(nullptr);
    EXPECT_THROW(unfocused.Type("x"), std::runtime_error);
}

TEST_F(Viewer, EveryKindOfDifferenceIsDetected) {
    GraphicStruct* line = document().Selectable().front();
    const DrawingState before(document().Drawing());
    EXPECT_TRUE(before.DifferencesTo(DrawingState(document().Drawing()), 9).empty());

    int cookie = 0;
    VertexStruct* vertex = ::GraphicVertexFirst(line, &cookie, 0, 0xFFFF);
    const double x = vertex->x;
    ::VertexSet(vertex, x + 1e-12, vertex->y, vertex->z);
    const DrawingState moved(document().Drawing());
    EXPECT_TRUE(before.Differs(moved, "vertices"));
    EXPECT_FALSE(before.Differs(moved, kPropPenWidth));
    ::VertexSet(vertex, x, vertex->y, vertex->z);
    EXPECT_TRUE(before.DifferencesTo(DrawingState(document().Drawing()), 9).empty());

    document().Change([&] { ::GraphicSetPenWidth(line, 0.25); });
    const std::vector<std::string> width = before.DifferencesTo(DrawingState(document().Drawing()), 9);
    ASSERT_EQ(width.size(), 1u);
    EXPECT_EQ(width[0], "graphic 1, PenWidth: 0 mm (0) is now 6.35 mm (0.25)");
    document().Undo();

    ::TableEntryAdd(::DrawingGetTable(document().Drawing(), kTableLayers), "left over", nullptr);
    EXPECT_FALSE(before.DifferencesTo(DrawingState(document().Drawing()), 1).empty());
}

} // namespace

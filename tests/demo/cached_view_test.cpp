// The cached picture: its contents during movement, and its equality with a redrawn picture at rest.

#include "demo/viewer/cached_view.h"

#include "demo/viewer.h"

#include <random>

#include "drawcore/view.h"
#include "orlo/host/graphic.h"
#include "orlo/host/owners.h"
#include "orlo/host/vertex.h"

namespace {

// Squares filled solid, a long line through all of them, texts.
std::string Drawing() {
    std::string text = "0\nSECTION\n2\nENTITIES\n";
    const auto pair = [&](const char* code, double value) { text += code + std::to_string(value) + "\n"; };
    for (int i = 0; i < 49; ++i) {
        const double x = i % 7 * 10, y = i / 7 * 10;
        text += "0\nSOLID\n8\n0\n62\n" + std::to_string(i % 5 + 1) + "\n";
        pair("10\n", x), pair("20\n", y), pair("11\n", x + 7), pair("21\n", y);
        pair("12\n", x), pair("22\n", y + 7), pair("13\n", x + 7), pair("23\n", y + 7);
        text += "0\nTEXT\n8\n0\n62\n6\n1\nText\n40\n2\n";
        pair("10\n", x), pair("20\n", y + 8);
    }
    return text + "0\nLINE\n8\n0\n10\n-999\n20\n-800\n11\n999\n21\n1234\n0\nENDSEC\n0\nEOF\n";
}

using ViewPixels = std::vector<uint32_t>;

class MovingPicture : public ::testing::Test {
protected:
    const CSize kSize{240, 200};
    static constexpr int kEveryPictureIsSlow = 0;

    MovingPicture() {
        camera.SetWindow(kSize);
        camera.SetDrawing(document->Drawing());
        ::ViewportSetBackground(camera.Viewport(), CDrawingView::kDarkBackground);
        camera.Fit(document->Root(), 0);
        camera.CenterOn(WorldPoint{35, 35});
        camera.Zoom(28, CPoint(120, 100)); // the squares fill the picture
        Prepare(picture);
        picture.Renew();
    }

    void Prepare(CachedView& some) {
        some.SetDocument(document.get());
        some.SetBackground(CDrawingView::kDarkBackground);
        some.Resize(kSize);
    }

    ViewPixels Pixels(const CachedView& some) const {
        MemoryPicture copy;
        copy.Resize(kSize);
        copy.CopyFrom(some.Dc(), copy.Bounds());
        ViewPixels pixels;
        for (int y = 0; y < kSize.cy; ++y)
            pixels.insert(pixels.end(), copy.Row(y), copy.Row(y) + kSize.cx);
        return pixels;
    }

    ViewPixels Shown() {
        picture.Renew();
        return Pixels(picture);
    }

    ViewPixels DrawnFromScratch() {
        CachedView redrawn(camera);
        Prepare(redrawn);
        redrawn.Renew();
        return Pixels(redrawn);
    }

    void Rest() {
        while (!picture.Finish(0)) {
        }
    }

    int Number(int below) { return std::uniform_int_distribution<>(0, below - 1)(random); }

    std::mt19937 random{3};
    const DrawingFile file{Drawing().c_str()};
    const std::unique_ptr<Document> document = Document::Open(file.Path(), [](int) { return true; });
    Camera camera;
    CachedView picture{camera, kEveryPictureIsSlow};
};

TEST_F(MovingPicture, ShiftsTheOldPictureAndDrawsTheEdges) {
    const ViewPixels before = Shown();
    const CSize by(31, -17);
    picture.Pan(CSize(20, -10));
    picture.Pan(CSize(11, -7));
    const ViewPixels moved = Shown(), expected = DrawnFromScratch();
    ASSERT_TRUE(picture.IsMoved());
    ASSERT_NE(before, expected);
    for (int y = 0; y < kSize.cy; ++y)
        for (int x = 0; x < kSize.cx; ++x) {
            const int fromX = x - by.cx, fromY = y - by.cy;
            const bool isVisible = fromX >= 0 && fromX < kSize.cx && fromY >= 0 && fromY < kSize.cy;
            ASSERT_EQ(moved[static_cast<size_t>(y * kSize.cx + x)],
                      isVisible ? before[static_cast<size_t>(fromY * kSize.cx + fromX)]
                                : expected[static_cast<size_t>(y * kSize.cx + x)])
                << x << ", " << y;
        }
}

TEST_F(MovingPicture, StretchesTheOldPicture) {
    for (const double factor : {2.0, 0.5, 0.8, 1.1, 40.0, 0.02}) {
        SCOPED_TRACE(factor);
        picture.Zoom(factor, CPoint(70, 150));
        const ViewPixels moved = Shown(), expected = DrawnFromScratch();
        ASSERT_TRUE(picture.IsMoved());
        size_t same = 0;
        for (size_t i = 0; i < moved.size(); ++i)
            same += moved[i] == expected[i];
        EXPECT_GT(same * 100, moved.size() * (factor > 10 ? 80 : 90)) << "except for edges and letters";
        Rest();
    }
}

TEST_F(MovingPicture, EqualsAFreshDrawingAtRest) {
    for (int round = 0; round < 60; ++round) {
        SCOPED_TRACE(round);
        if (round % 5 == 0)
            document->Selected().Apply({document->Selectable()[static_cast<size_t>(Number(90))]},
                                       Selection::Operation::Toggle);
        if (round % 5 == 0) picture.InvalidateHighlight(picture.Bounds());
        for (int moves = Number(4); moves >= 0; --moves) {
            if (Number(3) == 0)
                picture.Zoom(Number(2) ? 1.25 : 0.8, CPoint(Number(kSize.cx), Number(kSize.cy)));
            else
                picture.Pan(CSize(Number(61) - 30, Number(61) - 30));
            if (Number(2)) picture.Renew();
            if (Number(2)) picture.Finish(0); // interrupted by the next move
        }
        Rest();
        ASSERT_FALSE(picture.IsMoved());
        ASSERT_EQ(Shown(), DrawnFromScratch());
    }
}

// The highlight is then taken from the picture. A selection that lacks only what is out of sight is drawn.
TEST_F(MovingPicture, HighlightsAllAsItHighlightsMany) {
    const auto dot = [&](double x, double y) {
        GraphicStruct* graphic = ::GraphicNewEx(kGraphicVertices, 0, 1);
        for (const double step : {0.0, 0.1})
            ::GraphicVertexAdd(graphic, orlo::host::OwnedVertex(::VertexNewEx(x + step, y, 0)).get());
        ::GraphicAdd(document->Root(), graphic);
        return graphic;
    };
    for (int i = 0; i < 1000; ++i)
        dot(Number(70), Number(70));
    GraphicStruct* distant = dot(5000, 5000);
    document->Selected().Apply(document->Selectable(), Selection::Operation::Replace);
    picture.InvalidateAll();
    const ViewPixels all = Shown();
    document->Selected().Apply({distant}, Selection::Operation::Toggle);
    EXPECT_EQ(DrawnFromScratch(), all);
    document->Selected().Apply({distant}, Selection::Operation::Add);
    picture.Pan(CSize(5, 5));
    Rest();
    EXPECT_EQ(Shown(), DrawnFromScratch());
}

TEST_F(MovingPicture, NeverShowsAnOutdatedPicture) {
    const auto paint = [&](uint32_t color) {
        document->Change([&] {
            for (GraphicStruct* graphic : document->Selectable())
                ::GraphicSetPenColor(graphic, color);
        });
        picture.InvalidateAll();
    };
    picture.Pan(CSize(20, 10));
    picture.Finish(0);
    paint(RGB(9, 200, 9));
    EXPECT_EQ(Shown(), DrawnFromScratch());
    picture.Zoom(1.25, CPoint(9, 9));
    Shown();
    document->Selected().Apply({document->Selectable()[40]}, Selection::Operation::Add);
    picture.InvalidateHighlight(CRect(0, 0, 1, 1));
    EXPECT_EQ(Shown(), DrawnFromScratch());
}

} // namespace

// Camera: fixed points of zooming and panning, and conversion between pixels and drawing units.

#include "demo/viewer/camera.h"

#include <gtest/gtest.h>

namespace {

class CameraTest : public ::testing::Test {
protected:
    CameraTest() { camera.SetWindow(CSize(801, 600)); }
    Camera camera;
};

TEST_F(CameraTest, ZoomKeepsTheAnchorFixed) {
    const CPoint anchor(123, 456);
    const WorldPoint held = camera.ToWorld(anchor);
    for (const double factor : {1.25, 3.0, 0.1}) {
        camera.Zoom(factor, anchor);
        EXPECT_NEAR(held.x, camera.ToWorld(anchor).x, 1e-9);
        EXPECT_NEAR(held.y, camera.ToWorld(anchor).y, 1e-9);
    }
}

TEST_F(CameraTest, PanMovesByWholePixels) {
    const WorldPoint seen = camera.ToWorld(CPoint(10, 20));
    camera.Pan(CSize(-7, 30));
    EXPECT_NEAR(seen.x, camera.ToWorld(CPoint(3, 50)).x, 1e-9);
    EXPECT_NEAR(seen.y, camera.ToWorld(CPoint(3, 50)).y, 1e-9);
}

TEST_F(CameraTest, PixelsAndUnitsAreInverse) {
    camera.Zoom(7.3, CPoint(11, 12));
    for (const CPoint pixel : {CPoint(0, 0), CPoint(800, 0), CPoint(400, 599), CPoint(-50, 2000)}) {
        const WorldPoint point = camera.ToWorld(pixel);
        // Half a pixel further inside, so that rounding is unambiguous.
        const WorldPoint next = camera.ToWorld(CPoint(pixel.x + 1, pixel.y + 1));
        EXPECT_TRUE(camera.ToPixels(WorldPoint{(point.x + next.x) / 2, (point.y + next.y) / 2}) == pixel);
    }
}

TEST_F(CameraTest, CenterOnCentersAPoint) {
    camera.CenterOn(WorldPoint{1e4, -3e3});
    const CPoint middle = camera.ToPixels(WorldPoint{1e4, -3e3});
    EXPECT_NEAR(400, middle.x, 1);
    EXPECT_NEAR(300, middle.y, 1);
}

} // namespace

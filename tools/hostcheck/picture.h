// A white bitmap in memory on which the database draws, and coarse measures of the result.
#pragma once

#include "requirement.h"

// A drawing is measured by the nearest of these colors, so that smoothed edges do not matter.
enum class Ink { None, Black, Red, Green, Blue };

// The pixels of one color, or of all but white. Coordinates are pixels.
struct Measure {
    int count = 0;
    RECT bounds = {LONG_MAX, LONG_MAX, -1, -1}; // right and bottom are the last pixels
    double centerX = 0, centerY = 0;            // the center of mass

    LONG Width() const { return bounds.right - bounds.left + 1; }
    LONG Height() const { return bounds.bottom - bounds.top + 1; }
};

class Picture {
public:
    static constexpr int kWidth = 200, kHeight = 100;

    Picture();
    ~Picture();
    Picture(const Picture&) = delete;
    Picture& operator=(const Picture&) = delete;

    void Clear();
    // Ink::None measures all pixels that are not white.
    Measure Of(Ink ink = Ink::None, const RECT& in = {0, 0, kWidth, kHeight}) const;

    const HDC dc;

private:
    HBITMAP bitmap_;
    HGDIOBJ previous_;
    const uint32_t* pixels_ = nullptr;
};

// A viewport on a picture that shows the square from 0, 0 to 10, 10 as large as possible within kRect: eight pixels are
// one drawing unit.
class Scene {
public:
    static constexpr RECT kRect = {10, 10, 190, 90};
    static constexpr int kUnit = 8; // pixels

    // Throws StubFound if the database does not draw at all.
    explicit Scene(const Subject& subject);

    Scene& Draw(GraphicStruct* graphic, const MatrixStruct* matrix = nullptr, int preview = 0);
    // Returns the pixels of a rectangle in drawing units.
    static RECT Area(double left, double bottom, double right, double top);

    Picture picture;

private:
    const Subject& subject_;
    Owned<ViewportStruct> viewport_;
    Owned<GraphicStruct> shown_;
};

// Sets attributes for the following drawing: a solid black outline without a filling.
void SetPlainAppearance(const Subject& subject, GraphicStruct* graphic);

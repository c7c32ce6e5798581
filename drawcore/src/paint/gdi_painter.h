// Paints traced geometry on a device context, in device pixels, and preserves its state.
//
// For speed, consecutive lines with the same pen are passed to the device in one call, and each pen is created only
// once.
#pragma once

#include <map>
#include <unordered_map>

#include "drawcore/src/graphics/gdi.h"
#include "drawcore/src/graphics/trace.h"
#include "drawcore/src/paint/path_clip.h"
#include "drawcore/src/paint/text_output.h"

namespace drawcore {

struct PaintSettings {
    Color background = kWhite; // nearly equal colors are drawn in black or white
    bool isView = false;       // light colors are darkened on a light background, except in samples
    double widestPen = 1e9;    // in pixels
};

class GdiPainter : public GeometrySink {
public:
    // Draws nothing outside of clip (device pixels).
    GdiPainter(HDC dc, const RECT& clip, const PaintSettings& settings);
    ~GdiPainter() override;

    // Returns the part of clip where geometry is needed.
    const Box& NeededBox() const { return needed_; }

    bool Needs(const Extents& box, double reach) const override;
    double DotSize() const override { return 0.75; }
    double Tolerance() const override { return 0.2; }
    double PaperInch() const override { return inch_; }
    void Stroke(const Path& path, const PenUse& use) override;
    void Fill(const Path& outlines, const BrushUse& use) override;
    void Text(const TextRow& row) override;

private:
    struct PenKey {
        Color color;
        int width; // 1 is the thinnest line
        bool roundEnds;
        bool operator<(const PenKey& other) const;
        bool operator==(const PenKey& other) const;
    };

    Color DisplayedColor(Color color);
    PenKey KeyOf(const PenUse& use);
    // lastPixel: also draws the last pixel, which the device omits for the thinnest lines.
    void AddLines(const Path& path, const PenKey& key, bool lastPixel);
    void AddDot(const Point& p, const PenKey& key);
    void AddPolyline(const Path& path, size_t line, const PenKey& key, bool lastPixel);
    void Flush();
    HPEN PenOf(const PenKey& key);
    void FillSolid(const Path& areas, Color color, bool winding);
    void FillTiles(const Path& areas, const BrushUse& use, Color ink);
    void FillAreas(const Path& areas, HBRUSH brush, Color edge, bool winding);

    HDC dc_;
    SavedDC saved_;
    const PaintSettings settings_;
    const double inch_;
    const Box clip_; // lines are clipped here regardless of needed_, because clipping may change the pixels of a line
    const Box needed_;
    std::map<PenKey, OwnedPen> pens_;
    std::unordered_map<Color, Color> shades_; // cache of displayed colors
    TextOutput texts_;

    // Lines not yet passed to the device.
    PenKey waiting_{};
    std::vector<POINT> points_;
    std::vector<DWORD> counts_;
    Path clipped_, pieces_; // working memory
};

} // namespace drawcore

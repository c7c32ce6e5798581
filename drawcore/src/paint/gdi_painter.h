// Paints what is traced on a device context, in device pixels. The device context is left as it was found.
//
// Lines of one pen that follow each other go to the device in one call, and a pen is made once per painting.
#pragma once

#include <map>
#include <optional>
#include <unordered_map>

#include "drawcore/src/graphics/gdi.h"
#include "drawcore/src/graphics/trace.h"
#include "drawcore/src/paint/path_clip.h"
#include "drawcore/src/paint/text_output.h"

namespace drawcore {

struct PaintSettings {
    Color background = kWhite;      // what is of nearly that color is drawn in its opposite
    bool isView = false;            // light colors are darkened on a light background; samples keep theirs
    std::optional<Color> highlight; // everything in that color, thicker
    double widestPen = 1e9;         // pixels
};

class GdiPainter : public GeometrySink {
public:
    // Nothing is drawn outside of clip (device pixels).
    GdiPainter(HDC dc, const RECT& clip, const PaintSettings& settings);
    ~GdiPainter() override;

    // The part of clip in which something has to be to show.
    const Box& Wanted() const { return wanted_; }

    bool Wants(const Extents& box, double reach) const override;
    double DotSize() const override { return 0.75; }
    double Tolerance() const override { return 0.2; }
    double PaperInch() const override { return inch_; }
    void Stroke(const Path& path, const PenUse& use) override;
    void Fill(const Path& outlines, const BrushUse& use) override;
    void Text(const TextRow& row) override;

private:
    struct PenKey {
        Color color;
        int width; // 1: the thinnest line
        bool roundEnds;
        bool operator<(const PenKey& other) const;
        bool operator==(const PenKey& other) const;
    };

    Color Seen(Color color);
    PenKey KeyOf(const PenUse& use);
    // lastPixel: the thinnest lines, whose last pixel the device leaves out, get it anyway.
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
    const Box clip_; // lines are cut here, whatever part of it is wanted: a cut line may pass through other pixels
    const Box wanted_;
    std::map<PenKey, OwnedPen> pens_;
    std::unordered_map<Color, Color> shades_; // of colors that have been drawn
    TextOutput texts_;

    // Lines that wait for the device.
    PenKey waiting_{};
    std::vector<POINT> points_;
    std::vector<DWORD> counts_;
    Path clipped_, pieces_; // working space
};

} // namespace drawcore

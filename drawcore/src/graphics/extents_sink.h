// Computes extents while tracing, ignoring widths and dashes.
#pragma once

#include "drawcore/src/graphics/trace.h"

namespace drawcore {

class ExtentsSink : public GeometrySink {
public:
    explicit ExtentsSink(Extents& extents) : extents_(extents) {}
    bool Needs(const Extents&, double) const override { return true; }
    double Tolerance() const override { return 0; }
    double PaperInch() const override { return 0; }
    void Stroke(const Path& path, const PenUse&) override { Add(path); }
    void Fill(const Path& outlines, const BrushUse&) override { Add(outlines); }
    void Text(const TextRow& row) override {
        for (const double x : {0.0, row.width})
            for (const double y : {-row.face->Descent(), 1.0})
                extents_.Add(row.matrix.Apply({x, y, 0}));
    }

private:
    void Add(const Path& path) {
        for (const Point& p : path.points)
            extents_.Add(Vec3{p.x, p.y, 0});
    }

    Extents& extents_;
};

} // namespace drawcore

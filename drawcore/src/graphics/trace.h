// Tracing: a graphic turned into what a device, a hit test or a box is made of - flat lines, areas and rows of text -
// with blocks opened, curves flattened, colors, styles and widths worked out.
#pragma once

#include <string_view>

#include "drawcore/src/geometry/extents.h"
#include "drawcore/src/geometry/path.h"
#include "drawcore/src/graphics/block.h"
#include "drawcore/src/graphics/graphic.h"
#include "drawcore/src/graphics/text_face.h"
#include "drawcore/src/styles/layer.h"

namespace drawcore {

// A pen with all that it inherits worked out; lengths are the sink's.
struct PenUse {
    Color color = 0;                  // plain
    double width = 0;                 // 0 is the thinnest line
    const LineStyle* style = nullptr; // null is solid
    double dashScale = 1;             // sink units per unit of the pattern
    bool fitDashes = true;            // to each segment
    bool strokes = true;              // false: no line at all
    bool roundEnds = false;           // else cut off flat
};

// An area's filling.
struct BrushUse {
    Color color = 0;
    const BrushStyle* style = nullptr; // null is solid
    Matrix pattern;                    // from the pattern's coordinates to the sink's
    bool cross = false;
    bool winding = false;
};

// One row of text. The matrix takes its box to the sink: x from 0 to width along the baseline, y from 0 to 1 from the
// baseline to the height of a capital letter.
struct TextRow {
    std::wstring_view text;
    const int* steps = nullptr; // from letter to letter, in units of the face's font; as many as letters
    const std::vector<ShapedRun>* runs = nullptr; // if not empty, the row is drawn by them, and steps does not count
    const TextFace* face = nullptr;
    Matrix matrix;
    double width = 0;
    Color color = 0;
};

// Takes what is traced, in the order of drawing.
class GeometrySink {
public:
    virtual ~GeometrySink();
    // Whether anything in that box (sink units), or so far from it, matters.
    virtual bool Wants(const Extents& box, double reach) const = 0;
    // A graphic no larger than this in both directions comes as a point.
    virtual double DotSize() const { return 0; }
    // How far a flattened curve may be from the true one.
    virtual double Tolerance() const = 0;
    // Length of an inch of paper; 0 where widths do not matter.
    virtual double PaperInch() const = 0;
    virtual void Stroke(const Path& path, const PenUse& pen) = 0;
    virtual void Fill(const Path& outlines, const BrushUse& brush) = 0;
    virtual void Text(const TextRow& row) = 0;
};

// How many graphics of blocks one tracing goes through: insertions in insertions can multiply without end.
constexpr long kTraceBudget = 1'000'000;

// What a tracing needs once: the tables of the drawing (null where there are none) and working space.
struct TraceTools {
    explicit TraceTools(const DrawingContents* drawing);

    const LayerTable* layers = nullptr;
    const LineStyleTable* lineStyles = nullptr;
    const BrushStyleTable* brushStyles = nullptr;
    const BlockTable* blocks = nullptr;
    long budget = kTraceBudget;
    Path path;
};

// How far a tracing has come.
struct Trace {
    Trace(GeometrySink& traceSink, TraceTools& traceTools, const Matrix& start = {})
        : sink(traceSink), tools(traceTools), matrix(start) {}

    GeometrySink& sink;
    TraceTools& tools;
    Matrix matrix;        // from the graphic's coordinates to the sink's
    double lineScale = 1; // of all dash patterns
    double penUnit = 0;   // above 0: pen lengths in drawing units have this length, whatever the matrix

    // What is inherited by what lies in a block.
    const Trace* outer = nullptr; // the tracing of the insertion
    const Block* block = nullptr;
    int depth = 0; // of blocks in blocks
    Id layer = kLayerZero;
    Color color = kWhite;
    const LineStyle* style = nullptr;
    double penWidth = 0; // sink units
};

// Traces the graphic and its members, as far as their layers are visible.
void TraceGraphic(const Graphic& graphic, const Trace& trace);
// The graphic without its members; false if these do not matter either.
bool TraceAlone(const Graphic& graphic, const Trace& trace);
// For the members of a graphic that is traced so.
Trace TraceOfMembers(const Graphic& graphic, const Trace& trace);

// The box of what is seen of the graphic and its members: extents without what lies on hidden layers.
Extents SeenExtents(const Graphic& graphic, const DrawingContents* drawing);

// A graphic's brush over the outlines in the tools' path; nothing without a brush.
void TraceFill(const Graphic& graphic, const Trace& trace, const PenUse& use);

// The pen of a graphic with what it inherits.
PenUse ResolvePen(const Graphic& graphic, const Trace& trace);
// The layer that counts: the insertion's for a part of a block on the layer "0".
Id EffectiveLayer(const Graphic& graphic, const Trace& trace);

} // namespace drawcore

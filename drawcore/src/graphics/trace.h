// Tracing: converts a graphic to flattened lines, areas and rows of text for drawing, hit tests or extents. Blocks are
// expanded, and colors, styles and widths are resolved.
#pragma once

#include <string_view>

#include "drawcore/src/geometry/extents.h"
#include "drawcore/src/geometry/path.h"
#include "drawcore/src/graphics/block.h"
#include "drawcore/src/graphics/graphic.h"
#include "drawcore/src/graphics/text_face.h"
#include "drawcore/src/styles/layer.h"

namespace drawcore {

// A pen with all inherited values resolved; lengths are in units of the sink.
struct PenUse {
    Color color = 0;                  // without markers
    double width = 0;                 // 0 is the thinnest line
    const LineStyle* style = nullptr; // null for solid
    double dashScale = 1;             // sink units per pattern unit
    bool fitDashes = true;            // to each segment
    bool strokes = true;              // false for no line
    bool roundEnds = false;           // otherwise flat ends
};

// The brush of an area.
struct BrushUse {
    Color color = 0;
    const BrushStyle* style = nullptr; // null for solid
    Matrix pattern;                    // from pattern to sink coordinates
    bool cross = false;
    bool winding = false;
};

// A row of text. The matrix maps its box to the sink: x from 0 to width along the baseline, y from 0 to 1 from the
// baseline to the height of a capital letter.
struct TextRow {
    std::wstring_view text;
    const int* steps = nullptr;                   // advance widths in font units, one per letter
    const std::vector<ShapedRun>* runs = nullptr; // if not empty, draw these instead of steps
    const TextFace* face = nullptr;
    Matrix matrix;
    double width = 0;
    Color color = 0;
};

// Receives the traced geometry in drawing order.
class GeometrySink {
public:
    virtual ~GeometrySink();
    // Returns whether geometry inside the box (sink units), or within the distance `reach` of it, is needed.
    virtual bool Needs(const Extents& box, double reach) const = 0;
    // Graphics up to this size in both directions are traced as points.
    virtual double DotSize() const { return 0; }
    // Returns the maximum distance between a flattened curve and the true one.
    virtual double Tolerance() const = 0;
    // Returns the length of an inch on paper, or 0 if widths are ignored.
    virtual double PaperInch() const = 0;
    virtual void Stroke(const Path& path, const PenUse& pen) = 0;
    virtual void Fill(const Path& outlines, const BrushUse& brush) = 0;
    virtual void Text(const TextRow& row) = 0;
};

// Maximum number of graphics in blocks per tracing, since nested insertions multiply.
constexpr long kTraceBudget = 1'000'000;

// Shared by a tracing: the tables of the drawing (null if missing) and working memory.
struct TraceTools {
    explicit TraceTools(const DrawingContents* drawing);

    const LayerTable* layers = nullptr;
    const LineStyleTable* lineStyles = nullptr;
    const BrushStyleTable* brushStyles = nullptr;
    const BlockTable* blocks = nullptr;
    long budget = kTraceBudget;
    Path path;
};

// The state of a tracing.
struct Trace {
    Trace(GeometrySink& traceSink, TraceTools& traceTools, const Matrix& start = {})
        : sink(traceSink), tools(traceTools), matrix(start) {}

    GeometrySink& sink;
    TraceTools& tools;
    Matrix matrix;        // from the graphic's to the sink's coordinates
    double lineScale = 1; // factor of all dash patterns
    double penUnit = 0;   // if positive, the length of a drawing unit for pens, regardless of the matrix

    // Inherited by graphics in a block.
    const Trace* outer = nullptr; // the tracing of the insertion
    const Block* block = nullptr;
    int depth = 0; // nesting depth of blocks
    Id layer = kLayerZero;
    Color color = kWhite;
    const LineStyle* style = nullptr;
    double penWidth = 0; // in sink units
};

// Traces the graphic and its members on visible layers.
void TraceGraphic(const Graphic& graphic, const Trace& trace);
// Traces the graphic without its members. Returns false if the members are not needed either.
bool TraceAlone(const Graphic& graphic, const Trace& trace);
// Returns the state for the members of the graphic.
Trace TraceOfMembers(const Graphic& graphic, const Trace& trace);

// Returns the extents of the visible graphic and members, ignoring hidden layers.
Extents VisibleExtents(const Graphic& graphic, const DrawingContents* drawing);

// Fills the outlines in the tools' path with the graphic's brush, if it has one.
void TraceFill(const Graphic& graphic, const Trace& trace, const PenUse& use);

// Returns the pen of a graphic with inherited values.
PenUse ResolvePen(const Graphic& graphic, const Trace& trace);
// Returns the effective layer: the insertion's for a graphic in a block on layer "0".
Id EffectiveLayer(const Graphic& graphic, const Trace& trace);

} // namespace drawcore

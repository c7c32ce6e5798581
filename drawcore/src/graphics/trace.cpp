// Resolves layers, colors and line styles while tracing groups and insertions.
#include "drawcore/src/graphics/trace.h"

#include <algorithm>

#include "drawcore/src/graphics/drawing_contents.h"
#include "drawcore/src/graphics/extents_sink.h"

namespace drawcore {

GeometrySink::~GeometrySink() = default;

TraceTools::TraceTools(const DrawingContents* drawing) {
    if (!drawing) return;
    layers = drawing->Layers();
    lineStyles = drawing->LineStyles();
    brushStyles = drawing->BrushStyles();
    blocks = drawing->Blocks();
}

namespace {

const Layer* LayerOf(Id id, const Trace& trace) {
    return trace.tools.layers ? trace.tools.layers->At(id) : nullptr;
}

const LineStyle* StyleOf(Id id, const Trace& trace) {
    return trace.tools.lineStyles ? trace.tools.lineStyles->At(id) : nullptr;
}

Color ResolveColor(Color color, Id layer, const Trace& trace) {
    if (IsPlainColor(color)) return color;
    if (color == kColorByBlock) return trace.color;
    const Layer* of = LayerOf(layer, trace);
    return of ? of->color : kWhite;
}

const LineStyle* ResolveStyle(uint16_t style, Id layer, const Trace& trace) {
    if (style == kLineStyleByBlock) return trace.style;
    if (style != kLineStyleByLayer) return StyleOf(style, trace);
    const Layer* of = LayerOf(layer, trace);
    return of ? StyleOf(of->lineStyle, trace) : nullptr;
}

double ResolveWidth(const Pen& pen, Id layer, const Trace& trace, double unit) {
    if (pen.width >= 0) return pen.width * (pen.scaleSystem == kScaleWorld ? unit : trace.sink.PaperInch());
    if (pen.width == kPenWidthByBlock) return trace.penWidth;
    const Layer* of = LayerOf(layer, trace);
    return of ? of->lineWidth * trace.sink.PaperInch() : 0;
}

// An insertion on a layer that is off, but not frozen, still shows the parts of its block on other layers.
bool IsShown(const Graphic& graphic, const Trace& trace) {
    const Layer* layer = LayerOf(EffectiveLayer(graphic, trace), trace);
    return !layer || (graphic.GetKind() == Kind::Insert ? !layer->frozen : layer->IsVisible());
}

void TraceDot(const Extents& box, const Trace& trace, const PenUse& use) {
    Path& path = trace.tools.path;
    path.Clear();
    path.MoveTo({(box.low.x + box.high.x) / 2, (box.low.y + box.high.y) / 2});
    trace.sink.Stroke(path, use);
}

bool ShowsAllLayers(const LayerTable& layers) {
    for (Id id = layers.First(); id; id = layers.Next(id))
        if (!layers.At(id)->IsVisible()) return false;
    return true;
}

bool IsDot(const Extents& box, const GeometrySink& sink) {
    const double size = sink.DotSize();
    return box.high.x - box.low.x < size && box.high.y - box.low.y < size;
}

} // namespace

Id EffectiveLayer(const Graphic& graphic, const Trace& trace) {
    return graphic.layer == kLayerZero ? trace.layer : graphic.layer;
}

PenUse ResolvePen(const Graphic& graphic, const Trace& trace) {
    const Pen& pen = graphic.GetPen();
    const Id layer = EffectiveLayer(graphic, trace);
    const double unit = trace.penUnit > 0 ? trace.penUnit : trace.matrix.PlanScale();
    PenUse use;
    use.color = ResolveColor(pen.color, layer, trace);
    use.width = ResolveWidth(pen, layer, trace, unit);
    use.style = ResolveStyle(pen.style, layer, trace);
    use.dashScale = pen.scale * trace.lineScale * unit;
    use.fitDashes = pen.alignment;
    use.strokes = pen.style != kLineStyleNone;
    use.roundEnds = pen.scaleSystem != kScaleWorld && !use.style; // pens on paper have round ends; widths in drawing
                                                                  // units have flat ends
    return use;
}

void TraceFill(const Graphic& graphic, const Trace& trace, const PenUse& use) {
    const Brush& brush = graphic.GetBrush();
    if (brush.style == kBrushStyleNone) return;
    BrushUse fill;
    fill.color =
        brush.color == kColorOfPen ? use.color : ResolveColor(brush.color, EffectiveLayer(graphic, trace), trace);
    if (trace.tools.brushStyles) fill.style = trace.tools.brushStyles->At(brush.style);
    fill.pattern = Matrix::Scaling({brush.scale, brush.scale, 1}) * Matrix::RotationZ(brush.angle) * trace.matrix;
    fill.cross = brush.cross;
    fill.winding = brush.drawMode == 1;
    trace.sink.Fill(trace.tools.path, fill);
}

Trace TraceOfMembers(const Graphic& graphic, const Trace& trace) {
    Trace inner = trace;
    Matrix motion;
    if (graphic.FindMotion(motion)) inner.matrix = motion * trace.matrix;
    return inner;
}

bool TraceAlone(const Graphic& graphic, const Trace& trace) {
    if (trace.depth > 0 && --trace.tools.budget < 0) return false;
    const Extents box = graphic.GetExtents().Transformed(trace.matrix);
    if (box.IsEmpty()) return false;
    const PenUse use = ResolvePen(graphic, trace);
    const double reach = std::max(use.width / 2, graphic.Reach() * trace.matrix.PlanScale());
    const bool isGroup = graphic.GetKind() == Kind::Group;
    if (!isGroup && !trace.sink.Needs(box, reach)) return false;
    if (!isGroup && IsShown(graphic, trace)) {
        if (IsDot(box, trace.sink))
            TraceDot(box, trace, use);
        else
            graphic.TraceShape(trace, use);
    }
    return true;
}

void TraceGraphic(const Graphic& graphic, const Trace& trace) {
    if (!TraceAlone(graphic, trace) || graphic.MemberCount() == 0) return;
    const Trace inner = TraceOfMembers(graphic, trace);
    for (size_t i = 0; i < graphic.MemberCount(); ++i)
        TraceGraphic(*graphic.MemberAt(i), inner);
}

Extents VisibleExtents(const Graphic& graphic, const DrawingContents* drawing) {
    if (!drawing || !drawing->Layers() || ShowsAllLayers(*drawing->Layers())) return graphic.GetExtents();
    Extents extents;
    ExtentsSink sink(extents);
    TraceTools tools(drawing);
    TraceGraphic(graphic, Trace(sink, tools));
    return extents;
}

} // namespace drawcore

// Entries of the drawing's tables by their names in the file.
#include "drawcore/src/export/look_export.h"

#include "drawcore/src/database/encoding.h"
#include "drawcore/src/export/layer_export.h"
#include "drawcore/src/graphics/text_graphic.h"
#include "drawcore/src/import/brush_import.h"
#include "drawcore/src/import/import_tables.h"

namespace drawcore {

namespace {

// Where the things of the file are in the drawing's table.
template <class Index, class Thing, class Entry>
std::map<Id, Index> InTable(const std::vector<Thing>& things, const TableOf<Entry>& table) {
    std::map<Id, Index> places;
    for (size_t i = 0; i < things.size(); ++i)
        if (const Id id = table.IdOf(HostName(things[i].name))) places.emplace(id, Index(i));
    return places;
}

} // namespace

LookExport::LookExport(const Drawing& drawing, dxf::DrawingPatch& patch) : drawing_(drawing), patch_(patch) {
    const dxf::Document& known = patch.Known();
    if (drawing.Layers()) layers_ = InTable<dxf::LayerIndex>(known.layers, *drawing.Layers());
    if (drawing.LineStyles())
        lineTypes_ = InTable<dxf::LineTypeIndex>(known.lineTypes, *drawing.LineStyles());
}

dxf::LayerIndex LookExport::LayerOf(Id id) {
    const auto found = layers_.find(id);
    if (found != layers_.end()) return found->second;
    const Layer* layer = drawing_.Layers() ? drawing_.Layers()->At(id) : nullptr;
    if (!layer) return patch_.FindLayer("0");
    const dxf::LayerIndex index = patch_.FindLayer(Utf8FromCodePage(layer->name));
    const dxf::LineTypeIndex line = LineTypeOf(layer->lineStyle);
    dxf::Layer& made = patch_.Describe(index);
    drawcore::Describe(*layer, made);
    if (line < dxf::LineTypeIndex::none) made.lineType = patch_.Known().At(line).name;
    layers_.emplace(id, index);
    return index;
}

dxf::LineTypeIndex LookExport::LineTypeOf(Id id) {
    if (id == kLineStyleNone) return dxf::LineTypeIndex::none;
    if (id == kLineStyleByLayer) return dxf::LineTypeIndex::byLayer;
    if (id == kLineStyleByBlock) return dxf::LineTypeIndex::byBlock;
    const auto found = lineTypes_.find(id);
    if (found != lineTypes_.end()) return found->second;
    const LineStyle* style = drawing_.LineStyles() ? drawing_.LineStyles()->At(id) : nullptr;
    if (!style) return dxf::LineTypeIndex::byLayer;
    const dxf::LineTypeIndex index = patch_.FindLineType(Utf8FromCodePage(style->name));
    dxf::LineType& made = patch_.Describe(index);
    made.description = Utf8FromCodePage(style->description);
    made.dashes = style->pattern;
    lineTypes_.emplace(id, index);
    return index;
}

dxf::BrushLook LookExport::BrushOf(const Brush& brush) const {
    dxf::BrushLook look;
    const BrushStyle* style = drawing_.BrushStyles() ? drawing_.BrushStyles()->At(brush.style) : nullptr;
    if (style) {
        const bool isSolid = style->lines.empty() && !style->bitmap;
        look.style = isSolid ? dxf::kSolidBrush : Utf8FromCodePage(style->name);
        look.lines = FileLines(*style);
    }
    look.color = brush.color;
    look.scale = brush.scale;
    look.angle = brush.angle;
    look.cross = brush.cross;
    look.winding = brush.drawMode != 0;
    return look;
}

dxf::TextLook LookExport::TextOf(const Graphic& graphic) {
    if (graphic.GetKind() != Kind::Text) return {};
    const TextState& state = static_cast<const TextGraphic&>(graphic).state;
    return {Utf8FromCodePage(state.font), SeenHeight(graphic), state.style, state.format};
}

dxf::Look LookExport::LookOf(const Graphic& graphic) {
    dxf::Look look;
    look.layer = LayerOf(graphic.layer);
    look.color = graphic.GetPen().color;
    look.lineType = LineTypeOf(graphic.GetPen().style);
    look.lineScale = graphic.GetPen().scale;
    look.width = graphic.GetPen().width;
    look.worldWidth = graphic.GetPen().scaleSystem == kScaleWorld;
    look.dashesFitted = graphic.GetPen().alignment;
    look.brush = BrushOf(graphic.GetBrush());
    look.text = TextOf(graphic);
    if (graphic.info) look.info = Utf8FromCodePage(*graphic.info);
    const Block* tree = drawing_.Blocks() ? drawing_.Blocks()->At(graphic.styleTree) : nullptr;
    if (tree) look.styleTree = Utf8FromCodePage(tree->name);
    return look;
}

double SeenHeight(const Graphic& text) {
    const TextState& state = static_cast<const TextGraphic&>(text).state;
    Matrix motion;
    const bool moved = text.Parent() && text.Parent()->FindMotion(motion);
    return moved ? state.height * Length(motion.Turn(state.up)) : state.height;
}

} // namespace drawcore

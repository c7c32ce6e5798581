// Finds entries of the drawing's tables by their names in the file.
#include "drawcore/src/export/appearance_export.h"

#include <algorithm>

#include "drawcore/include/drawcore/dxf_document.h"
#include "drawcore/src/database/encoding.h"
#include "drawcore/src/export/layer_export.h"
#include "drawcore/src/graphics/text_graphic.h"
#include "drawcore/src/graphics/vertex_graphic.h"
#include "drawcore/src/import/brush_import.h"
#include "drawcore/src/import/import_tables.h"

namespace drawcore {

namespace {

// Maps the objects of the file to entries of the drawing's table.
template <class Index, class Object, class Entry>
std::map<Id, Index> InTable(const std::vector<Object>& objects, const TableOf<Entry>& table) {
    std::map<Id, Index> indices;
    for (size_t i = 0; i < objects.size(); ++i)
        if (const Id id = table.IdOf(HostName(objects[i].name))) indices.emplace(id, Index(i));
    return indices;
}

} // namespace

AppearanceExport::AppearanceExport(const Drawing& drawing, dxf::DrawingPatch& patch)
    : drawing_(drawing), patch_(patch), known_(patch.Known().Tables()), tables_(ImportTables(known_, file_)),
      import_(known_, tables_, file_), comparison_(drawing, file_) {
    if (drawing.Layers()) layers_ = InTable<dxf::LayerIndex>(known_.layers, *drawing.Layers());
    if (drawing.LineStyles()) lineTypes_ = InTable<dxf::LineTypeIndex>(known_.lineTypes, *drawing.LineStyles());
}

dxf::LayerIndex AppearanceExport::LayerOf(Id id) {
    const auto found = layers_.find(id);
    if (found != layers_.end()) return found->second;
    const Layer* layer = drawing_.Layers() ? drawing_.Layers()->At(id) : nullptr;
    if (!layer) return patch_.FindLayer("0");
    const dxf::LayerIndex index = patch_.FindLayer(Utf8FromCodePage(layer->name));
    const dxf::LineTypeIndex line = LineTypeOf(layer->lineStyle);
    dxf::Layer& fileLayer = patch_.Describe(index);
    drawcore::Describe(*layer, fileLayer);
    if (line < dxf::LineTypeIndex::none) fileLayer.lineType = patch_.Known().At(line).name;
    layers_.emplace(id, index);
    return index;
}

void AppearanceExport::AddLayer(Id id) {
    if (layers_.count(id) == 0) patch_.EnsureRecord(LayerOf(id));
}

dxf::LineTypeIndex AppearanceExport::LineTypeOf(Id id) {
    if (id == kLineStyleNone) return dxf::LineTypeIndex::none;
    if (id == kLineStyleByLayer) return dxf::LineTypeIndex::byLayer;
    if (id == kLineStyleByBlock) return dxf::LineTypeIndex::byBlock;
    const auto found = lineTypes_.find(id);
    if (found != lineTypes_.end()) return found->second;
    const LineStyle* style = drawing_.LineStyles() ? drawing_.LineStyles()->At(id) : nullptr;
    if (!style) return dxf::LineTypeIndex::byLayer;
    const dxf::LineTypeIndex index = patch_.FindLineType(Utf8FromCodePage(style->name));
    dxf::LineType& fileLineType = patch_.Describe(index);
    fileLineType.description = Utf8FromCodePage(style->description);
    fileLineType.dashes = style->pattern;
    lineTypes_.emplace(id, index);
    return index;
}

// Exports properties that are more than a number or a text.
struct AppearanceExport::Row {
    const char* name;
    void (*put)(AppearanceExport& by, const Graphic& graphic, dxf::Appearance& appearance);
};

const AppearanceExport::Row AppearanceExport::kRows[] = {
    {kPropLayer, [](AppearanceExport& by, const Graphic& graphic,
                    dxf::Appearance& appearance) { appearance.layer = by.LayerOf(graphic.layer); }},
    {kPropPenStyle, [](AppearanceExport& by, const Graphic& graphic,
                       dxf::Appearance& appearance) { appearance.lineType = by.LineTypeOf(graphic.GetPen().style); }},
    {kPropPenWidth, [](AppearanceExport&, const Graphic& graphic,
                       dxf::Appearance& appearance) { appearance.width = graphic.GetPen().width; }},
    {kPropScaleSystem,
     [](AppearanceExport&, const Graphic& graphic, dxf::Appearance& appearance) {
         appearance.worldWidth = graphic.GetPen().scaleSystem == kScaleWorld;
     }},
    {kPropBrushStyle, [](AppearanceExport& by, const Graphic& graphic,
                         dxf::Appearance& appearance) { by.SetBrushStyle(graphic, appearance.brush); }},
    {kPropTextSize, [](AppearanceExport&, const Graphic& graphic,
                       dxf::Appearance& appearance) { appearance.text.height = DisplayedHeight(graphic); }},
};

void AppearanceExport::SetBrushStyle(const Graphic& graphic, dxf::BrushAppearance& appearance) const {
    const BrushStyleTable* styles = drawing_.BrushStyles();
    const BrushStyle* style = styles ? styles->At(graphic.GetBrush().style) : nullptr;
    const bool isSolid = style && style->lines.empty() && !style->bitmap;
    appearance.style = !style ? "" : isSolid ? dxf::kSolidBrush : Utf8FromCodePage(style->name);
    appearance.lines = style ? FileLines(*style) : std::vector<dxf::Hatch::PatternLine>();
}

void AppearanceExport::SetPlain(const Graphic& graphic, const PropertyInfo& info, dxf::Appearance& appearance) const {
    const StoredProperty stored = GetStored(graphic, static_cast<size_t>(&info - kPropertyList));
    if (const auto* text = std::get_if<std::string>(&stored))
        dxf::SetText(appearance, info.name, Utf8FromCodePage(*text));
    if (const auto* real = std::get_if<double>(&stored)) dxf::SetNumber(appearance, info.name, *real);
    const auto* integer = std::get_if<int64_t>(&stored);
    if (integer && info.meaning == PropertyMeaning::Block) {
        const Block* block = drawing_.Blocks() ? drawing_.Blocks()->At(static_cast<Id>(*integer)) : nullptr;
        dxf::SetText(appearance, info.name, block ? Utf8FromCodePage(block->name) : "");
    } else if (integer) {
        dxf::SetNumber(appearance, info.name, static_cast<double>(*integer));
    }
}

void AppearanceExport::Write(const Graphic& graphic, size_t offset) {
    const dxf::Entity entity = patch_.EntityAt(offset);
    VertexGraphic group;
    import_.AddTo(group, entity, false);
    if (group.MemberCount() == 0) throw dxf::SaveError("no part of it would be visible");
    const Graphic& shown = *group.MemberAt(0);
    if (shown.GetKind() != graphic.GetKind()) throw dxf::SaveError("the file would show another kind of graphic");
    dxf::Appearance appearance = dxf::AppearanceOf(known_, entity);
    for (const size_t property : comparison_.DifferentProperties(graphic, shown)) {
        const PropertyInfo& info = kPropertyList[property];
        const auto* row = std::find_if(std::begin(kRows), std::end(kRows),
                                       [&](const Row& some) { return info.name == std::string_view(some.name); });
        if (row != std::end(kRows))
            row->put(*this, graphic, appearance);
        else
            SetPlain(graphic, info, appearance);
        appearance.varied &= static_cast<uint8_t>(~dxf::VariedBit(info.name));
    }
    dxf::EntityChange wanted;
    dxf::AxisEnds ends;
    std::vector<Vec3> positions;
    const bool isMoved = comparison_.DifferentShape(graphic, shown, false) != nullptr;
    if (isMoved && graphic.GetKind() == Kind::Insert) {
        ends = static_cast<const InsertGraphic&>(graphic).Ends();
        wanted.ends = &ends;
    } else if (const auto* list = dynamic_cast<const VertexGraphic*>(&graphic); list && isMoved) {
        for (const Vertex& vertex : list->vertices)
            positions.push_back(vertex.Position());
        wanted.vertices = &positions;
    }
    patch_.Change(offset, appearance, wanted);
}

} // namespace drawcore

// Fills the tables of a drawing, and finds entries by the names of a document.
#include "drawcore/src/import/import_tables.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "drawcore/src/database/encoding.h"
#include "drawcore/src/dxf/appearance.h"
#include "drawcore/src/dxf/color_numbers.h"
#include "drawcore/src/dxf/text_decoding.h"
#include "drawcore/src/graphics/vertex_graphic.h"
#include "drawcore/src/tables/unit_variables.h"

namespace drawcore {

std::string HostName(const std::string& stored) {
    constexpr size_t kLongestName = 255;
    std::string name = CodePageFromUtf8(dxf::ToDisplayText(stored)).substr(0, kLongestName);
    return name.empty() ? "(no name)" : name;
}

namespace {

void SetLayer(Layer& layer, const dxf::Layer& from, const LineStyleTable& styles) {
    const Color color = dxf::ColorOf(std::abs(from.color), from.trueColor);
    layer.color = IsPlainColor(color) ? color : kWhite;
    layer.lineStyle = styles.IdOf(HostName(from.lineType));
    layer.lineWidth = std::max(from.lineWeight, 0) / dxf::kWeightsPerInch;
    layer.off = from.color < 0;
    layer.frozen = from.flags & dxf::kLayerIsFrozen;
    layer.locked = from.flags & dxf::kLayerIsLocked;
}

// Returns the entry with that name, adding it if needed, or 0 if the table is full.
template <class Entry, class Make>
Id FindOrAdd(TableOf<Entry>& table, const std::string& name, const Make& make) {
    const Id known = table.IdOf(name);
    return known ? known : table.Add(make(name));
}

// Returns a pattern that can be drawn, or a solid line.
std::vector<double> ValidPattern(const std::vector<double>& dashes) {
    constexpr size_t kMaxItems = 64;
    double length = 0;
    for (const double item : dashes)
        length += std::fabs(item);
    return length > 0 && dashes.size() <= kMaxItems ? dashes : std::vector<double>();
}

Id ImportLineStyle(const dxf::LineType& type, LineStyleTable& styles) {
    const Id id = FindOrAdd(styles, HostName(type.name), [&](const std::string& name) {
        const std::string description = CodePageFromUtf8(dxf::ToDisplayText(type.description));
        return std::make_unique<LineStyle>(name, description, ValidPattern(type.dashes));
    });
    return id ? id : styles.First();
}

bool IsInherited(const dxf::LineType& type) {
    const std::string name = dxf::FoldName(type.name);
    return name == "bylayer" || name == "byblock";
}

Id ImportLayer(const dxf::Layer& from, const LineStyleTable& styles, LayerTable& layers) {
    const auto make = [](const std::string& name) { return std::make_unique<Layer>(name); };
    const Id id = FindOrAdd(layers, HostName(from.name), make);
    Layer* layer = layers.At(id);
    if (!layer) return kLayerZero;
    SetLayer(*layer, from, styles);
    return id;
}

bool IsLayout(const std::string& name) {
    const std::string folded = dxf::FoldName(name);
    return folded.compare(0, 12, "*model_space") == 0 || folded.compare(0, 12, "*paper_space") == 0 ||
           folded.compare(0, 12, "$model_space") == 0 || folded.compare(0, 12, "$paper_space") == 0;
}

Id ImportBlock(const dxf::Block& from, BlockTable& blocks) {
    if (!from.declared || IsLayout(from.name)) return kNoId;
    auto block = std::make_unique<Block>(HostName(from.name), std::make_unique<VertexGraphic>());
    block->base = {from.base.x, from.base.y, from.base.z};
    block->Content().Attach(blocks.Owner());
    return blocks.Add(std::move(block));
}

} // namespace

Layer ImportedLayer(const dxf::Layer& from, const LineStyleTable& styles) {
    Layer layer(HostName(from.name));
    SetLayer(layer, from, styles);
    return layer;
}

ImportedTables ImportTables(const dxf::Document& document, Drawing& drawing) {
    ImportedTables tables;
    LineStyleTable& styles = *drawing.LineStyles();
    for (const dxf::LineType& type : document.lineTypes)
        tables.lineStyles.push_back(IsInherited(type) ? styles.First() : ImportLineStyle(type, styles));
    for (const dxf::Layer& layer : document.layers)
        tables.layers.push_back(ImportLayer(layer, styles, *drawing.Layers()));
    for (const dxf::Block& block : document.blocks)
        tables.blocks.push_back(ImportBlock(block, *drawing.Blocks()));
    StoreUnits(UnitsOf(document.header), *drawing.Units());
    if (document.header.lineTypeScale > 0) drawing.lineScale = document.header.lineTypeScale;
    return tables;
}

} // namespace drawcore

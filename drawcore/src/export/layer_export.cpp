// Exports states and colors of layers.
#include "drawcore/src/export/layer_export.h"

#include <cstdlib>
#include <tuple>

#include "drawcore/src/database/encoding.h"
#include "drawcore/src/dxf/color_numbers.h"
#include "drawcore/src/import/import_tables.h"

namespace drawcore {

namespace {

// All solid lines are equal.
Id LineOf(const Layer& layer, const LineStyleTable& styles) {
    const LineStyle* style = styles.At(layer.lineStyle);
    return style && !style->pattern.empty() ? layer.lineStyle : Id{kLineStyleNone};
}

auto StateOf(const Layer& layer, const LineStyleTable& styles) {
    return std::make_tuple(layer.off, layer.frozen, layer.locked, layer.color, LineOf(layer, styles));
}

std::string LineTypeName(const LineStyleTable& styles, Id id) {
    const LineStyle* style = styles.At(id);
    return style ? Utf8FromCodePage(style->name) : "Continuous";
}

} // namespace

void Describe(const Layer& layer, dxf::Layer& fileLayer) {
    const int color = dxf::NearestIndex(layer.color);
    fileLayer.color = color * (layer.off ? -1 : 1);
    fileLayer.trueColor = dxf::ColorOfIndex(color) == layer.color ? -1 : dxf::TrueColorOf(layer.color);
    fileLayer.flags &= ~(dxf::kLayerIsFrozen | dxf::kLayerIsLocked);
    fileLayer.flags |= (layer.frozen ? dxf::kLayerIsFrozen : 0) | (layer.locked ? dxf::kLayerIsLocked : 0);
}

std::vector<std::pair<dxf::LayerIndex, dxf::Layer>> ChangedLayers(const Drawing& drawing, const dxf::Document& known) {
    std::vector<std::pair<dxf::LayerIndex, dxf::Layer>> changed;
    const LayerTable* layers = drawing.Layers();
    const LineStyleTable* styles = drawing.LineStyles();
    for (size_t i = 0; layers && styles && i < known.layers.size(); ++i) {
        const Layer* layer = layers->At(HostName(known.layers[i].name));
        if (!layer) continue;
        const Layer was = ImportedLayer(known.layers[i], *styles);
        if (StateOf(was, *styles) == StateOf(*layer, *styles)) continue;
        dxf::Layer& wanted = changed.emplace_back(dxf::LayerIndex(i), known.layers[i]).second;
        Describe(*layer, wanted);
        if (was.color == layer->color) { // keeps its stored color numbers
            wanted.color = std::abs(known.layers[i].color) * (layer->off ? -1 : 1);
            wanted.trueColor = known.layers[i].trueColor;
        }
        if (LineOf(was, *styles) != LineOf(*layer, *styles)) wanted.lineType = LineTypeName(*styles, layer->lineStyle);
    }
    return changed;
}

} // namespace drawcore

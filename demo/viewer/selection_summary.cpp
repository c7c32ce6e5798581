// Counts and compares kinds, widths and layers of graphics.

#include "demo/viewer/selection_summary.h"

#include <algorithm>
#include <map>
#include <set>
#include <tuple>

#include "drawcore/drawing.h"
#include "drawcore/graphic.h"
#include "orlo/host/drawing.h"
#include "orlo/host/property.h"
#include "orlo/host/walk.h"
#include "orlo/host/words.h"

namespace {

struct KindName {
    uint32_t kind;
    const char* one;
};
constexpr KindName kKinds[] = {{kKindText, "text"},
                               {kKindVertices, "line"},
                               {kKindCurve, "curve"},
                               {kKindInsert, "insertion"},
                               {kKindGroup, "group"}};

using SimilarityKey = std::tuple<uint32_t, uint16_t, uint32_t>;

SimilarityKey SimilarityKeyOf(GraphicStruct* graphic) {
    const uint32_t color = orlo::host::ReadProperty<uint32_t>(graphic, kPropPenColor).value_or(0);
    return {::GraphicGetKind(graphic), LayerOf(graphic), color};
}

// Sorts by name.
std::vector<LayerCount> Named(DrawingStruct* drawing, const std::map<uint16_t, int>& counts) {
    std::vector<LayerCount> layers;
    for (const auto& [layer, count] : counts)
        layers.push_back({layer, ValueText(drawing, kPropLayer, layer), count});
    std::sort(layers.begin(), layers.end(), [](const LayerCount& a, const LayerCount& b) {
        return std::tie(a.name, a.layer) < std::tie(b.name, b.layer);
    });
    return layers;
}

template <class Test>
Graphics Those(const Graphics& graphics, Test test) {
    Graphics found;
    std::copy_if(graphics.begin(), graphics.end(), std::back_inserter(found), test);
    return found;
}

} // namespace

std::vector<KindCount> CountKinds(const Graphics& graphics) {
    std::map<uint32_t, int> counts;
    for (GraphicStruct* graphic : graphics)
        ++counts[::GraphicGetKind(graphic)];
    std::vector<KindCount> kinds;
    for (const KindName& name : kKinds)
        if (const int count = counts[name.kind]) kinds.push_back({name.kind, count});
    return kinds;
}

std::string KindText(const KindCount& kind) {
    const auto* name =
        std::find_if(std::begin(kKinds), std::end(kKinds), [&](const KindName& row) { return row.kind == kind.kind; });
    return std::to_string(kind.count) + " " + name->one + (kind.count == 1 ? "" : "s");
}

std::string KindsText(const Graphics& graphics) {
    std::string text;
    const std::vector<KindCount> kinds = CountKinds(graphics);
    for (const KindCount& kind : kinds)
        text += (text.empty() ? "" : ", ") + KindText(kind);
    return kinds.size() > 1 ? std::to_string(graphics.size()) + ": " + text : text;
}

std::string CountsText(const std::vector<ValueCount>& counts, size_t mostValues) {
    std::string text;
    for (size_t i = 0; i < std::min(counts.size(), mostValues); ++i)
        text += (i ? ", " : "") + std::to_string(counts[i].count) + " x " + counts[i].value;
    if (counts.size() > mostValues) text += " and " + std::to_string(counts.size() - mostValues) + " more";
    return text;
}

Graphics OfKind(const Graphics& graphics, uint32_t kind) {
    return Those(graphics, [&](GraphicStruct* graphic) { return ::GraphicGetKind(graphic) == kind; });
}

Graphics OnLayer(const Graphics& graphics, uint16_t layer) {
    return Those(graphics, [&](GraphicStruct* graphic) { return LayerOf(graphic) == layer; });
}

Graphics SimilarGraphics(const Graphics& graphics, const Graphics& examples) {
    std::set<SimilarityKey> wanted;
    for (GraphicStruct* graphic : examples)
        wanted.insert(SimilarityKeyOf(graphic));
    return Those(graphics, [&](GraphicStruct* graphic) { return wanted.count(SimilarityKeyOf(graphic)) > 0; });
}

std::vector<LayerCount> CountLayers(DrawingStruct* drawing, const Graphics& graphics) {
    std::map<uint16_t, int> counts;
    for (GraphicStruct* graphic : graphics)
        ++counts[LayerOf(graphic)];
    return Named(drawing, counts);
}

std::vector<LayerCount> AllLayers(DrawingStruct* drawing) {
    std::map<uint16_t, int> counts;
    for (const uint16_t layer : orlo::host::Entries(::DrawingGetTable(drawing, kTableLayers)))
        counts[layer] = 0;
    for (GraphicStruct* graphic : orlo::host::Members(::DrawingGetRoot(drawing))) {
        const auto layer = counts.find(LayerOf(graphic));
        if (layer != counts.end()) ++layer->second;
    }
    return Named(drawing, counts);
}

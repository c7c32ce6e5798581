// Lists the contents of drawings.

#include "tools/dxfprops/list_drawings.h"

#include <algorithm>
#include <filesystem>

#include <nlohmann/json.hpp>

#include "drawcore/src/dxf/extents.h"
#include "drawcore/src/dxf/reader.h"
#include "tools/dxfprops/output.h"

namespace {

using Json = nlohmann::ordered_json;

Json Layers(const dxf::Document& drawing) {
    Json list = Json::array();
    for (const dxf::Layer& layer : drawing.layers) {
        if (!layer.declared) continue;
        Json& entry = list.emplace_back(
            Json{{"name", layer.name}, {"color", layer.color}, {"flags", layer.flags}, {"linetype", layer.lineType}});
        if (layer.trueColor >= 0) entry["true_color"] = layer.trueColor;
    }
    return list;
}

Json LineTypes(const dxf::Document& drawing) {
    Json list = Json::array();
    for (const dxf::LineType& type : drawing.lineTypes)
        if (type.declared)
            list.push_back({{"name", type.name}, {"pattern_length", type.patternLength}, {"dashes", type.dashes}});
    return list;
}

Json Corners(const drawcore::Extents& box) {
    if (box.IsEmpty()) return nullptr;
    return {{box.low.x, box.low.y}, {box.high.x, box.high.y}};
}

} // namespace

Json Describe(const dxf::Document& drawing) {
    const auto blocks = std::count_if(drawing.blocks.begin(), drawing.blocks.end(), [](auto& b) { return b.declared; });
    const std::string& version = drawing.header.version;
    Json object{{"acadver", version.empty() ? Json() : Json(version)},
                {"entities", drawing.entityCounts},
                {"blocks", blocks},
                {"layers", Layers(drawing)},
                {"linetypes", LineTypes(drawing)},
                {"extents", Corners(dxf::ExtentsOf(drawing))}};
    for (const dxf::Finding& finding : drawing.findings)
        object["findings"].push_back({{"line", finding.line ? Json(finding.line) : Json()}, {"text", finding.text}});
    return object;
}

bool ListDrawings(const std::vector<std::string>& files, std::ostream& out) {
    return dxfprops::PrintArray(
        files, [](const std::string& file) { return Describe(dxf::ReadFile(std::filesystem::u8path(file), {})); }, out);
}

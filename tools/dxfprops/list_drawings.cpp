// Lists the contents of drawings.

#include "tools/dxfprops/list_drawings.h"

#include <filesystem>

#include <nlohmann/json.hpp>

#include "tools/dxfprops/output.h"

namespace {

using Json = nlohmann::ordered_json;

Json Layers(const dxf::Contents& drawing) {
    Json list = Json::array();
    for (const dxf::Contents::Layer& layer : drawing.layers) {
        Json& entry = list.emplace_back(
            Json{{"name", layer.name}, {"color", layer.color}, {"flags", layer.flags}, {"linetype", layer.lineType}});
        if (layer.trueColor >= 0) entry["true_color"] = layer.trueColor;
    }
    return list;
}

Json LineTypes(const dxf::Contents& drawing) {
    Json list = Json::array();
    for (const dxf::Contents::LineType& type : drawing.lineTypes)
        list.push_back({{"name", type.name}, {"pattern_length", type.patternLength}, {"dashes", type.dashes}});
    return list;
}

Json Corners(const std::optional<std::array<double, 4>>& box) {
    if (!box) return nullptr;
    return {{(*box)[0], (*box)[1]}, {(*box)[2], (*box)[3]}};
}

} // namespace

Json Describe(const dxf::Contents& drawing) {
    Json object{{"acadver", drawing.version.empty() ? Json() : Json(drawing.version)},
                {"entities", drawing.entityCounts},
                {"blocks", drawing.blocks},
                {"layers", Layers(drawing)},
                {"linetypes", LineTypes(drawing)},
                {"extents", Corners(drawing.box)}};
    for (const dxf::Warning& warning : drawing.warnings)
        object["warnings"].push_back({{"line", warning.line ? Json(warning.line) : Json()}, {"text", warning.text}});
    return object;
}

Json DescribeFile(const std::string& file) {
    return Describe(dxfprops::DrawingFile(file).GetContents());
}

bool ListDrawings(const std::vector<std::string>& files, std::ostream& out) {
    return dxfprops::PrintObjects(files, dxfprops::Form::json, DescribeFile, out);
}

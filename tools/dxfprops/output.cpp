// Formats results as lines and as JSON.
#include "tools/dxfprops/output.h"

#include <new>

#include <nlohmann/json.hpp>

#include "tools/dxfprops/list_drawings.h"

namespace dxfprops {

namespace {

using Json = nlohmann::ordered_json;

// Quotes the text for a command line.
std::string Quoted(const std::string& text) {
    std::string quoted = "\"";
    for (const char c : text) {
        if (c == '\n')
            quoted += "\\n";
        else if (static_cast<unsigned char>(c) < ' ' || c == '\x7F')
            quoted += '?';
        else
            quoted += c;
    }
    return quoted + "\"";
}

Json Named(const dxf::RecordName& name) {
    Json entry{{"kind", name.kind}, {"handle", name.handle.empty() ? Json() : Json(name.handle)}, {"line", name.line}};
    if (!name.block.empty()) entry["block"] = name.block;
    return entry;
}

} // namespace

void PrintSummary(const std::string& file, std::ostream& out) {
    const auto drawing = DescribeFile(file);
    out << file << "\n  version   " << drawing["acadver"].dump() << "\n  blocks    " << drawing["blocks"]
        << "\n  layers    ";
    for (const auto& layer : drawing["layers"])
        out << Quoted(layer["name"]) << " ";
    out << "\n  entities ";
    for (const auto& [kind, count] : drawing["entities"].items())
        out << " " << kind << " " << count;
    out << "\n  extents   " << drawing["extents"] << "\n";
    if (drawing.contains("findings"))
        for (const auto& finding : drawing["findings"])
            out << "  line " << finding["line"] << ": " << finding["text"].get<std::string>() << "\n";
}

void Print(const Listing& listing, std::ostream& out) {
    for (const EntityProperties& entity : listing.entities) {
        out << entity.name.Text();
        for (const auto& [property, value] : entity.values)
            out << " " << property << "=" << Quoted(value);
        out << "\n";
    }
}

void Print(const std::vector<Difference>& differences, const std::string& before, const std::string& after,
           std::ostream& out) {
    for (const Difference& difference : differences) {
        out << difference.name.Text();
        if (difference.kind != Difference::Kind::changed)
            out << " is only in " << (difference.kind == Difference::Kind::onlyBefore ? before : after);
        for (const Difference::Value& value : difference.values)
            out << " " << value.property << ": " << Quoted(value.before) << " -> " << Quoted(value.after);
        out << "\n";
    }
}

bool PrintArray(const std::vector<std::string>& files, const std::function<Json(const std::string&)>& describe,
                std::ostream& out) {
    Json list = Json::array();
    bool allRead = true;
    for (const std::string& file : files) {
        Json entry{{"file", file}};
        try {
            entry.update(describe(file));
        } catch (const dxf::ReadError& error) {
            entry.update({{"error", error.Text()}, {"line", error.Line() ? Json(error.Line()) : Json()}});
        } catch (const std::bad_alloc&) {
            entry.update({{"error", "there is not enough memory for it"}, {"line", nullptr}});
        } catch (const std::runtime_error& error) { // the drawing does not have the block
            entry.update({{"error", error.what()}, {"line", nullptr}});
        }
        allRead = allRead && !entry.contains("error");
        list.push_back(std::move(entry));
    }
    out << list.dump(2, ' ', false, Json::error_handler_t::replace) << "\n";
    return allRead;
}

Json JsonOf(const Listing& listing) {
    Json entities = Json::array();
    for (const EntityProperties& entity : listing.entities) {
        Json& entry = entities.emplace_back(Named(entity.name));
        entry["properties"] = Json::object();
        for (const auto& [property, value] : entity.values)
            entry["properties"][property] = value;
    }
    return {{"entities", entities}};
}

Json JsonOf(const std::vector<Difference>& differences) {
    Json list = Json::array();
    for (const Difference& difference : differences) {
        Json& entry = list.emplace_back(Named(difference.name));
        if (difference.kind != Difference::Kind::changed)
            entry["only_in"] = difference.kind == Difference::Kind::onlyBefore ? "before" : "after";
        for (const Difference::Value& value : difference.values)
            entry["properties"][value.property] = {{"before", value.before}, {"after", value.after}};
    }
    return {{"differences", list}};
}

} // namespace dxfprops

// Lines, JSON and CSV.
#include "tools/dxfprops/output.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <new>
#include <stdexcept>

#include <nlohmann/json.hpp>

#include "tools/cli/arguments.h"
#include "tools/cli/csv.h"
#include "tools/cli/printable.h"
#include "tools/dxfprops/list_drawings.h"

namespace dxfprops {

namespace {

using Json = nlohmann::ordered_json;

std::string Quoted(const std::string& text) {
    return '"' + cli::OneLine(text) + '"';
}

std::string Dumped(const Json& json, int indent = -1) {
    return cli::Printable(json.dump(indent, ' ', false, Json::error_handler_t::replace), "\\u%04x");
}

Json Named(const dxf::RecordName& name) {
    Json entry{{"kind", name.kind}, {"handle", name.handle.empty() ? Json() : Json(name.handle)}, {"line", name.line}};
    if (!name.block.empty()) entry["block"] = name.block;
    return entry;
}

Json JsonOf(const EntityProperties& entity) {
    Json entry = Named(entity.name);
    entry["properties"] = Json::object();
    for (const auto& [property, value] : entity.values)
        entry["properties"][property] = value;
    return entry;
}

Json JsonOf(const Difference& difference) {
    Json entry =
        difference.layer.empty() ? Named(difference.name) : Json{{"kind", "LAYER"}, {"name", difference.layer}};
    if (difference.kind != Difference::Kind::changed)
        entry["only_in"] = difference.kind == Difference::Kind::onlyBefore ? "before" : "after";
    for (const Difference::Value& value : difference.values)
        entry["properties"][value.property] = {{"before", value.before}, {"after", value.after}};
    return entry;
}

std::string LineOf(const Difference& difference, const std::string& before, const std::string& after) {
    std::string line = difference.layer.empty() ? difference.name.Text() : "LAYER " + Quoted(difference.layer);
    if (difference.kind != Difference::Kind::changed)
        line += " is only in " + (difference.kind == Difference::Kind::onlyBefore ? before : after);
    for (const Difference::Value& value : difference.values)
        line += " " + value.property + ": " + Quoted(value.before) + " -> " + Quoted(value.after);
    return line + "\n";
}

std::string LineOf(const std::string& name, const Values& values) {
    std::string line = name;
    for (const auto& [property, value] : values) {
        if (!line.empty()) line += ' ';
        line += property;
        line += '=';
        line += Quoted(value);
    }
    return line + "\n";
}

const char* ListName(ResultPrinter::Items items) {
    return items == ResultPrinter::Items::entities ? "entities"
           : items == ResultPrinter::Items::layers ? "layers"
                                                   : "differences";
}

// Throws ReadError for the object that get prints for a file that failed.
void RequireNoError(const Json& json) {
    if (!json.contains("error")) return;
    const std::string file = json.at("file").get<std::string>();
    throw dxf::ReadError(0,
                         "contains an error in place of the entities of " + file + "; remove it to apply the others");
}

EntityProperties EntityIn(const Json& json) {
    EntityProperties entity;
    entity.name.kind = json.at("kind").get<std::string>();
    if (json.at("handle").is_string()) entity.name.handle = json["handle"].get<std::string>();
    entity.name.line = json.value("line", 0u);
    entity.name.block = json.value("block", "");
    for (const auto& [property, value] : json.at("properties").items()) {
        const std::string what = "'" + property + "' of " + entity.name.Text();
        const auto name = dxf::DocumentReader::FindPropertyName(property);
        if (!name) throw dxf::ReadError(0, what + " is not a property; see dxfprops --help");
        if (!value.is_string()) throw dxf::ReadError(0, what + " is not a text; put it in quotes");
        entity.values.emplace_back(*name, value.get<std::string>());
    }
    return entity;
}

} // namespace

void PrintSummary(const std::string& file, std::ostream& out) {
    const auto drawing = DescribeFile(file);
    out << cli::OneLine(file) << "\n  version   " << drawing["acadver"].dump() << "\n  blocks    " << drawing["blocks"]
        << "\n  layers    ";
    for (const auto& layer : drawing["layers"])
        out << Quoted(layer["name"]) << " ";
    out << "\n  entities ";
    for (const auto& [kind, count] : drawing["entities"].items())
        out << " " << kind << " " << count;
    out << "\n  extents   " << drawing["extents"] << "\n";
    if (drawing.contains("warnings"))
        for (const auto& warning : drawing["warnings"])
            out << "  line " << warning["line"] << ": " << warning["text"].get<std::string>() << "\n";
}

void Print(const std::vector<Difference>& differences, const std::string& before, const std::string& after,
           std::ostream& out) {
    for (const Difference& difference : differences)
        out << LineOf(difference, before, after);
}

ResultPrinter::ResultPrinter(Form form, Items items, std::vector<std::string> columns, std::ostream& out)
    : form_(form), kind_(items), columns_(std::move(columns)), out_(out) {
    if (form == Form::json) out << "[";
    if (form != Form::csv) return;
    std::vector<std::string> headings = {"file"};
    if (items == Items::entities) headings = {"file", "kind", "handle", "line", "block"};
    headings.insert(headings.end(), columns_.begin(), columns_.end());
    headings.push_back("error");
    out << cli::CsvLine(headings);
}

ResultPrinter::~ResultPrinter() {
    if (form_ == Form::json) out_ << "\n]\n";
}

void ResultPrinter::BeginFile(const std::string& file, bool isOneOfMany) {
    file_ = file;
    items_ = 0;
    isOpen_ = false;
    if (form_ == Form::text && isOneOfMany) out_ << cli::OneLine(file) << "\n";
}

void ResultPrinter::BeginObject() {
    if (form_ == Form::json)
        out_ << (files_ == 0 ? "\n  {" : ",\n  {") << "\"file\": " << Dumped(file_) << ", " << Dumped(ListName(kind_))
             << ": [";
    ++files_;
    isOpen_ = true;
}

void ResultPrinter::AddJson(Json item) {
    if (form_ == Form::jsonLines) {
        Json line{{"file", file_}};
        line.update(item);
        out_ << Dumped(line) << "\n";
        return;
    }
    if (!isOpen_) BeginObject();
    out_ << (items_++ == 0 ? "\n    " : ",\n    ") << Dumped(item);
}

void ResultPrinter::AddCsv(const dxf::RecordName& name, const Values& values) {
    std::vector<std::string> line = {file_};
    if (kind_ == Items::entities)
        line.insert(line.end(), {name.kind, name.handle, std::to_string(name.line), name.block});
    for (const std::string& column : columns_) {
        std::string value;
        for (const auto& [property, text] : values)
            if (property == column) value = text;
        line.push_back(value);
    }
    line.emplace_back();
    out_ << cli::CsvLine(line);
}

void ResultPrinter::Add(const EntityProperties& entity) {
    if (form_ == Form::text)
        out_ << LineOf(entity.name.Text(), entity.values);
    else if (form_ == Form::csv)
        AddCsv(entity.name, entity.values);
    else
        AddJson(JsonOf(entity));
}

void ResultPrinter::Add(const Difference& difference, const std::string& before, const std::string& after) {
    if (form_ == Form::text)
        out_ << LineOf(difference, before, after);
    else
        AddJson(JsonOf(difference));
}

void ResultPrinter::Add(const dxf::Contents::Layer& layer) {
    const Values values = ValuesOf(layer);
    if (form_ == Form::text) {
        out_ << LineOf("", values);
    } else if (form_ == Form::csv) {
        AddCsv({}, values);
    } else {
        Json entry = Json::object();
        for (const auto& [name, value] : values)
            entry[name] = value;
        AddJson(std::move(entry));
    }
}

void ResultPrinter::EndFile() {
    if (form_ != Form::json) return;
    if (!isOpen_) BeginObject();
    out_ << (items_ == 0 ? "]}" : "\n  ]}");
}

void ResultPrinter::Fail(const std::string& file, const std::string& error, uint32_t line) {
    const Json what{{"file", file}, {"error", error}, {"line", line ? Json(line) : Json()}};
    if (form_ == Form::csv) {
        std::vector<std::string> values(columns_.size() + (kind_ == Items::entities ? 6 : 2));
        values.front() = file;
        values.back() = error;
        out_ << cli::CsvLine(values);
    } else if (form_ == Form::jsonLines) {
        out_ << Dumped(what) << "\n";
    } else if (form_ == Form::json) {
        if (isOpen_) EndFile();
        out_ << (files_++ == 0 ? "\n  " : ",\n  ") << Dumped(what);
    }
}

bool PrintObjects(const std::vector<std::string>& files, Form form,
                  const std::function<Json(const std::string&)>& describe, std::ostream& out) {
    Json list = Json::array();
    bool allRead = true;
    for (const std::string& file : files) {
        Json entry{{"file", file}};
        try {
            entry.update(describe(file));
        } catch (const dxf::ReadError& error) {
            entry.update({{"error", error.Text()}, {"line", error.Line() ? Json(error.Line()) : Json()}});
        } catch (const std::bad_alloc&) {
            entry.update({{"error", "not enough memory"}, {"line", nullptr}});
        }
        allRead = allRead && !entry.contains("error");
        if (form == Form::jsonLines)
            out << Dumped(entry) << "\n";
        else
            list.push_back(std::move(entry));
    }
    if (form == Form::json) out << Dumped(list, 2) << "\n";
    return allRead;
}

std::vector<std::pair<std::string, std::vector<EntityProperties>>> ReadEntities(const std::string& marked) {
    std::vector<std::pair<std::string, std::vector<EntityProperties>>> files;
    const auto entitiesOf = [&files](const Json& json) -> std::vector<EntityProperties>& {
        RequireNoError(json);
        const std::string file = json.at("file").get<std::string>();
        const auto isIt = [&file](const auto& known) { return known.first == file; };
        const auto known = std::find_if(files.rbegin(), files.rend(), isIt); // usually the last one
        return known != files.rend() ? known->second : files.emplace_back(file, std::vector<EntityProperties>()).second;
    };
    const std::string_view text = cli::WithoutMark(marked);
    try {
        const size_t first = text.find_first_not_of(" \t\r\n");
        if (first != text.npos && text[first] == '[') {
            for (const Json& file : Json::parse(text)) {
                std::vector<EntityProperties>& entities = entitiesOf(file);
                for (const Json& entity : file.at("entities"))
                    entities.push_back(EntityIn(entity));
            }
            return files;
        }
        for (size_t at = 0; at < text.size();) {
            const size_t end = std::min(text.find('\n', at), text.size());
            if (text.find_first_not_of(" \t\r", at) < end) {
                const Json line = Json::parse(text.substr(at, end - at));
                entitiesOf(line).push_back(EntityIn(line));
            }
            at = end + 1;
        }
    } catch (const Json::exception& error) {
        throw dxf::ReadError(0, std::string("not the JSON output of get: ") + error.what());
    }
    return files;
}

} // namespace dxfprops

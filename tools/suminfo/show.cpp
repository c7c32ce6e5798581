// Prints property sets as tables or as a line of JSON.

#include <algorithm>

#include "commands.h"
#include "failure.h"
#include "fields.h"
#include "json_output.h"
#include "orlo/propset/inspect/set_edit.h"
#include "orlo/propset/inspect/set_image.h"
#include "sources.h"
#include "text.h"
#include "tools/cli/csv.h"
#include "tools/cli/printable.h"
#include "value_display.h"

namespace suminfo {
namespace {

constexpr size_t kWidestName = 28;

// Returns the number of characters.
size_t Width(const std::string& utf8) {
    return static_cast<size_t>(std::count_if(utf8.begin(), utf8.end(), [](char c) { return (c & 0xC0) != 0x80; }));
}

struct Line {
    std::string name, value;
};

std::string Aligned(const std::vector<Line>& lines) {
    size_t width = 0;
    for (const Line& line : lines)
        width = std::max(width, std::min(Width(line.name), kWidestName));
    std::string table;
    for (const Line& line : lines) {
        table += "    " + line.name;
        const size_t nameWidth = Width(line.name);
        if (!line.value.empty())
            table += std::string(nameWidth < width ? width - nameWidth : 0, ' ') + "  " + line.value;
        table += "\n";
    }
    return table;
}

std::string Heading(const orlo::ImageSection& section) {
    if (const char* known = FormatName(section.formatId)) return known;
    return "section " + orlo::GuidText(section.formatId);
}

std::string SectionTable(const orlo::ImageSection& section) {
    const PropertyNames names(section);
    std::vector<Line> lines;
    for (const orlo::ImageProperty& property : section.properties)
        lines.push_back({names.Of(property.id), PropertyShown(section, property)});
    return "  " + Heading(section) + "\n" + Aligned(lines);
}

void AddTable(const NamedStream& stream, Report& report) {
    std::vector<orlo::Finding> findings;
    const auto set = orlo::ReadSetImage(stream.bytes.data(), stream.bytes.size(), findings);
    std::string& table = report.text;
    // The usual streams are identified by their sections; other streams are shown with their names.
    const bool inner = stream.name.find('/') != std::string::npos;
    if (inner || !set) table += "  " + (stream.name.empty() ? "stream" : StreamNameShown(stream.name)) + ":\n";
    if (!set) {
        table += "    no property set\n";
    } else {
        for (const orlo::ImageSection& section : set->sections)
            table += SectionTable(section);
    }
    const auto damaged = std::count_if(findings.begin(), findings.end(), [](const orlo::Finding& finding) {
        return finding.severity == orlo::Severity::damaged;
    });
    if (!stream.error.empty()) table += "    (damaged: " + stream.error + ")\n";
    if (damaged != 0) table += "    (damaged; see suminfo check)\n";
    report.clean = report.clean && stream.error.empty() && damaged == 0;
}

Report ShowTable(const Source& source) {
    Report report = {cli::OneLine(source.file) + "\n"};
    const SourceSets sets = SetsOf(source);
    if (sets.streams.empty()) report.text += "  no property sets\n";
    for (const NamedStream& stream : sets.streams)
        AddTable(stream, report);
    for (const std::string& damage : sets.damage)
        report.text += "  (damaged: " + damage + ")\n";
    report.clean = report.clean && sets.damage.empty();
    return report;
}

std::string JsonLine(const Json& json) {
    return cli::Printable(json.dump(-1, ' ', false, Json::error_handler_t::replace), "\\u%04x") + "\n";
}

Report ShowJson(const Source& source) {
    Json json = {{"file", source.file}};
    const SourceSets sets = SetsOf(source);
    Report report;
    report.clean = sets.damage.empty();
    const auto addToReport = [&report](Json stream) {
        report.clean = report.clean && !stream.contains("error") && stream["damage"].empty();
        return stream;
    };
    if (source.bare) {
        json.update(addToReport(StreamJson(sets.streams.front())));
        json["stream"] = nullptr;
    } else {
        json["damage"] = sets.damage;
        Json& list = json["property_sets"] = Json::array();
        for (const NamedStream& stream : sets.streams)
            list.push_back(addToReport(StreamJson(stream)));
    }
    report.text = JsonLine(json);
    return report;
}

// Returns the value of one property. Unlike in tables, texts are not wrapped.
std::string PropertyValue(const orlo::ImageSection& section, const orlo::ImageProperty& property) {
    orlo::Value value;
    const bool isRead =
        property.state == orlo::ValueState::complete &&
        orlo::DecodeValue(property.type, property.bytes.data(), property.bytes.size(), section.codePage, value);
    const auto* text = isRead ? std::get_if<std::string>(&value.data) : nullptr;
    return text ? *text : PropertyShown(section, property);
}

// Values that cannot be read are reported in a separate error column.
Report ShowCsv(const Source& source) {
    Report report;
    const SourceSets sets = SetsOf(source);
    const auto addError = [&](const std::string& stream, const std::string& reason) {
        report.text += cli::CsvLine({source.file, stream, "", "", "", reason});
        report.clean = false;
    };
    for (const std::string& damage : sets.damage)
        addError("", damage);
    for (const NamedStream& stream : sets.streams) {
        const std::string name = StreamNameShown(stream.name);
        std::vector<orlo::Finding> findings;
        const auto set = orlo::ReadSetImage(stream.bytes.data(), stream.bytes.size(), findings);
        if (!stream.error.empty()) addError(name, stream.error);
        for (const orlo::Finding& finding : findings)
            if (finding.severity == orlo::Severity::damaged) addError(name, finding.text);
        if (!set) continue;
        for (const orlo::ImageSection& section : set->sections) {
            const PropertyNames names(section);
            for (const orlo::ImageProperty& property : section.properties)
                report.text += cli::CsvLine(
                    {source.file, name, Heading(section), names.Of(property.id), PropertyValue(section, property), ""});
        }
    }
    return report;
}

// Searches the stream's sections for the value of a field or a custom property.
std::optional<std::string> FindValue(const NamedStream& stream, const std::string& field, const std::string& custom) {
    std::vector<orlo::Finding> findings;
    const auto set = orlo::ReadSetImage(stream.bytes.data(), stream.bytes.size(), findings);
    if (!set) return std::nullopt;
    const Field* known = field.empty() ? nullptr : FieldNamed(field);
    const orlo::ImageSection* section = set->Find(known ? known->format : kUserDefinedFormat);
    if (!section) return std::nullopt;
    const orlo::DictionaryEntry* named = known ? nullptr : orlo::FindName(*section, custom);
    if (!known && !named) return std::nullopt;
    const orlo::ImageProperty* property = section->Find(known ? known->id : named->id);
    if (!property) return std::nullopt;
    return PropertyValue(*section, *property);
}

} // namespace

Report Show(const Source& source, ReportForm form) {
    switch (form) {
    case ReportForm::json:
        return ShowJson(source);
    case ReportForm::csv:
        return ShowCsv(source);
    default:
        return ShowTable(source);
    }
}

std::string HeadingsOf(ReportForm form) {
    return form == ReportForm::csv ? cli::CsvLine({"file", "stream", "section", "property", "value", "error"}) : "";
}

std::string FailureLine(const std::string& file, const std::string& reason, ReportForm form) {
    switch (form) {
    case ReportForm::json:
        return JsonLine({{"file", file}, {"error", reason}});
    case ReportForm::csv:
        return cli::CsvLine({file, "", "", "", "", reason});
    default:
        return "";
    }
}

std::string ValueOf(const Source& source, const std::string& field, const std::string& customName) {
    for (const NamedStream& stream : SetsOf(source).streams) {
        if (stream.name.find('/') != std::string::npos) continue; // of an inner storage
        if (const auto value = FindValue(stream, field, customName)) return *value + "\n";
    }
    throw Failure(field.empty() ? "the document has no custom property '" + customName + "'"
                                : "the document has no " + field);
}

} // namespace suminfo

// Prints property sets as tables or as a line of JSON.

#include <algorithm>

#include "commands.h"
#include "fields.h"
#include "json_output.h"
#include "orlo/propset/inspect/set_image.h"
#include "sources.h"
#include "text.h"
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
        const size_t taken = Width(line.name);
        if (!line.value.empty()) table += std::string(taken < width ? width - taken : 0, ' ') + "  " + line.value;
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
    // The usual streams are identified by their sections; for others the name is shown.
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

} // namespace

Report ShowTable(const Source& source) {
    Report report = {OneLine(source.file) + "\n"};
    const SourceSets sets = SetsOf(source);
    if (sets.streams.empty()) report.text += "  no property sets\n";
    for (const NamedStream& stream : sets.streams)
        AddTable(stream, report);
    for (const std::string& damage : sets.damage)
        report.text += "  (damaged: " + damage + ")\n";
    report.clean = report.clean && sets.damage.empty();
    return report;
}

Report ShowJson(const Source& source) {
    Json json = {{"file", source.file}};
    const SourceSets sets = SetsOf(source);
    Report report;
    report.clean = sets.damage.empty();
    const auto keep = [&report](Json stream) {
        report.clean = report.clean && !stream.contains("error") && stream["damage"].empty();
        return stream;
    };
    if (source.bare) {
        json.update(keep(StreamJson(sets.streams.front())));
        json["stream"] = nullptr;
    } else {
        json["damage"] = sets.damage;
        Json& list = json["property_sets"] = Json::array();
        for (const NamedStream& stream : sets.streams)
            list.push_back(keep(StreamJson(stream)));
    }
    report.text = Printable(json.dump(-1, ' ', false, Json::error_handler_t::replace), "\\u%04x") + "\n";
    return report;
}

} // namespace suminfo

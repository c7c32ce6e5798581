// Prints the irregularities in the property sets of a file, one line each.

#include <cstdio>

#include "commands.h"
#include "orlo/propset/inspect/set_image.h"
#include "sources.h"
#include "text.h"
#include "tools/cli/printable.h"

namespace suminfo {
namespace {

const char* Word(orlo::Severity severity) {
    switch (severity) {
    case orlo::Severity::note:
        return "note";
    case orlo::Severity::irregular:
        return "irregular";
    default:
        return "damaged";
    }
}

std::string Line(const std::string& place, const orlo::Finding& finding) {
    char where[64];
    std::snprintf(where, sizeof where, ": 0x%06llX: %s %d: ", static_cast<unsigned long long>(finding.offset),
                  Word(finding.severity), static_cast<int>(finding.code));
    return place + where + finding.text + "\n";
}

} // namespace

Report Check(const Source& source) {
    Report report;
    const std::string file = cli::OneLine(source.file);
    const SourceSets sets = SetsOf(source);
    for (const auto* all : {&sets.damage, &sets.damagedStreams})
        for (const std::string& damage : *all) {
            report.text += file + ": damaged: " + damage + "\n";
            report.clean = false;
        }
    for (const NamedStream& stream : sets.streams) {
        const std::string place = file + (stream.name.empty() ? "" : ": " + StreamNameShown(stream.name));
        std::vector<orlo::Finding> findings;
        orlo::ReadSetImage(stream.bytes.data(), stream.bytes.size(), findings);
        for (const orlo::Finding& finding : findings) {
            report.text += Line(place, finding);
            report.clean = report.clean && finding.severity == orlo::Severity::note;
        }
    }
    if (report.clean) report.text += file + (sets.streams.empty() ? ": no property sets\n" : ": no irregularities\n");
    return report;
}

} // namespace suminfo

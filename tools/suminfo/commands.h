// The commands of suminfo, one function each. Each throws Failure if it cannot process a file.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "orlo/propset/inspect/value.h"

namespace suminfo {

// Stands for standard input or output in place of a file.
constexpr char kStandardStream[] = "-";

// Where property sets come from: a document, or (bare) a file that is one property-set stream.
struct Source {
    std::string file;
    bool bare = false;
};

// A parsed "name=value" argument.
struct Assignment {
    std::string name, value;
};

// A custom property with its value.
struct CustomValue {
    std::string name;
    orlo::Value value;
};

// In pixels.
struct Extent {
    int width, height;
};

struct Report {
    std::string text;
    bool clean = true; // everything could be read (show), or nothing irregular was found (check)
};

// The forms that reports are printed in.
enum class ReportForm { table, json, csv };

// Tables for a person, with the file's name above; one line of JSON; or one line for each property.
Report Show(const Source& source, ReportForm form);
// The line of headings that comes before all others; empty for forms without one.
std::string HeadingsOf(ReportForm form);
// The line in place of a file that failed; empty for tables.
std::string FailureLine(const std::string& file, const std::string& why, ReportForm form);
// The value of a field, or of the custom property if the field is empty: texts as they are, anything else as in tables.
std::string ValueOf(const Source& source, const std::string& field, const std::string& customName);
// A line for each finding, or one that says that there are none.
Report Check(const Source& source);

// A document to edit, and the file for the result: itself, or another one if `output` is not empty.
struct Target {
    std::string file, output;
};

// Change fields and custom properties: all of them or, in case of a Failure, none.
void SetFields(const Target& target, const std::vector<Assignment>& fields, const std::vector<CustomValue>& custom);
void RemoveFields(const Target& target, const std::vector<std::string>& fields, const std::vector<std::string>& custom);
// Copies the summary streams of a document to the target.
void CopySummary(const std::string& from, const Target& target);

// Draws the thumbnail to a PNG file: in its own size, or centered on white in the given size.
void SaveThumbnail(const Source& source, const std::string& png, std::optional<Extent> size);
// Saves the thumbnail as it is stored: a bitmap with the header of a file, a metafile without its extents, anything
// else byte for byte.
void SaveOriginalThumbnail(const Source& source, const std::string& output);
// Prints the sections of the summary (of all of a bare stream) as resources 1, 2, ... of a resource script.
void SaveResourceScript(const Source& source, const std::string& script);

} // namespace suminfo

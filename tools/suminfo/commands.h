// The commands of suminfo, one function each. Each throws Failure if it cannot process a file.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "orlo/propset/inspect/value.h"

namespace suminfo {

// The name of standard input or output in place of a file.
constexpr char kStandardStream[] = "-";

// The source of property sets: a document or, if `bare` is set, a file that is one property-set stream.
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

// The formats of reports.
enum class ReportForm { table, json, csv };

// Returns tables for people, preceded by the file's name, one line of JSON, or one line of CSV for each property.
Report Show(const Source& source, ReportForm form);
// Returns the line of headings, which is printed first, or an empty string for formats without one.
std::string HeadingsOf(ReportForm form);
// Returns the line that replaces the report of a file that failed, or an empty string for tables.
std::string FailureLine(const std::string& file, const std::string& reason, ReportForm form);
// Returns the value of a field or, if the field is empty, of the custom property: a text unchanged, other values in the
// format of tables.
std::string ValueOf(const Source& source, const std::string& field, const std::string& customName);
// Returns a line for each finding, or a line that states that there are none.
Report Check(const Source& source);

// A document to edit, and the file for the result: itself, or another one if `output` is not empty.
struct Target {
    std::string file, output;
};

// Change fields and custom properties: all of them or, if they throw Failure, none.
void SetFields(const Target& target, const std::vector<Assignment>& fields, const std::vector<CustomValue>& custom);
void RemoveFields(const Target& target, const std::vector<std::string>& fields, const std::vector<std::string>& custom);
// Copies the summary streams of a document to the target.
void CopySummary(const std::string& from, const Target& target);

// Draws the thumbnail to a PNG file at its own size, or centered on a white background of the given size.
void SaveThumbnail(const Source& source, const std::string& png, std::optional<Extent> size);
// Saves the thumbnail in its stored format: a bitmap with a file header, a metafile without its extents, other data
// byte for byte.
void SaveOriginalThumbnail(const Source& source, const std::string& output);
// Writes the sections of the summary (for a bare stream, all sections) as resources 1, 2, ... of a resource script.
void SaveResourceScript(const Source& source, const std::string& script);

} // namespace suminfo

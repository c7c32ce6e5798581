// The commands of suminfo, one function each. Each throws Failure if it cannot process a file.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "orlo/propset/inspect/value.h"

namespace suminfo {

// The source of property sets: a document, or (bare) a file that is a single property-set stream.
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

// Returns tables with the file name above them.
Report ShowTable(const Source& source);
// Returns one line of JSON.
Report ShowJson(const Source& source);
// Returns a line for each finding, or a line that there are none.
Report Check(const Source& source);

// Changes fields and custom properties: all of them or, in case of a Failure, none.
void SetFields(const std::string& file, const std::vector<Assignment>& fields, const std::vector<CustomValue>& custom);
void RemoveFields(const std::string& file, const std::vector<std::string>& fields,
                  const std::vector<std::string>& custom);
// Copies the summary streams of the first document to the second.
void CopySummary(const std::string& from, const std::string& to);

// Draws the thumbnail to a PNG file: in its own size, or centered on white in the given size.
void SaveThumbnail(const Source& source, const std::string& png, std::optional<Extent> size);
// Writes the sections of the summary (or of the whole bare stream) as resources 1, 2, ... of a resource script.
void SaveResourceScript(const Source& source, const std::string& script);

} // namespace suminfo

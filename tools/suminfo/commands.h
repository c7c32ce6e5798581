// What suminfo can do, one function per command. Each throws Failure when it can't do its work on a file.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "orlo/propset/inspect/value.h"

namespace suminfo {

// Where property sets come from: a document, or (bare) a file that is one property-set stream.
struct Source {
    std::string file;
    bool bare = false;
};

// "name=value" of the command line, taken apart.
struct Assignment {
    std::string name, value;
};

// A custom property with its value.
struct CustomValue {
    std::string name;
    orlo::Value value;
};

// Pixels.
struct Extent {
    int width, height;
};

struct Report {
    std::string text;
    bool clean = true; // all could be read (show), nothing irregular was found (check)
};

// Tables for a person, with the file's name above.
Report ShowTable(const Source& source);
// One line of JSON.
Report ShowJson(const Source& source);
// A line for each finding, or one that says that there are none.
Report Check(const Source& source);

// Changes fields and custom properties. All of them or, after a Failure, none.
void SetFields(const std::string& file, const std::vector<Assignment>& fields, const std::vector<CustomValue>& custom);
void RemoveFields(const std::string& file, const std::vector<std::string>& fields,
                  const std::vector<std::string>& custom);
// Gives the second document the summary streams of the first.
void CopySummary(const std::string& from, const std::string& to);

// Draws the thumbnail into a PNG file: in its own size, or in the middle of a white picture of the given one.
void SaveThumbnail(const Source& source, const std::string& png, std::optional<Extent> size);
// Prints the sections of the summary (of all of a bare stream) as resources 1, 2, ... of a resource script.
void SaveResourceScript(const Source& source, const std::string& script);

} // namespace suminfo

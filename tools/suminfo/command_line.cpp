// The commands with their options and help texts.

#include "command_line.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <sstream>

#include "console.h"
#include "exit_codes.h"
#include "failure.h"
#include "fields.h"
#include "value_input.h"

namespace suminfo {
namespace {

constexpr char kExamples[] = R"(
Examples:
  suminfo show report.doc                         what its property sets hold
  suminfo show --json -r documents/ | jq .file    every document, one line of JSON each
  find . -name '*.doc' -print0 | suminfo check @-   names from standard input, however many
  suminfo show --stream summary.bin               a property-set stream in a file of its own
  suminfo set plan.msi title="Plan B" saved=now
  suminfo set plan.msi --custom Client=text:ACME --custom Sheets=int:12
  suminfo remove plan.msi comments --custom Client
  suminfo thumbnail plan.ppt plan.png --size 200x150
  suminfo rc plan.msi plan.rc                     the summary as a resource script
  suminfo copy report.doc letter.doc              the summary of one document to another
  suminfo check -r documents/                     everything irregular, with its offset

Results: 0 done; 1 a file failed, or check found something irregular; 2 wrong command line.)";

// Splits "name=value". A parse error describes what is wrong with it.
Assignment Split(const std::string& text) {
    const size_t equals = text.find('=');
    if (equals == std::string::npos || equals == 0) throw CLI::ValidationError("'" + text + "' should be name=value");
    return {text.substr(0, equals), text.substr(equals + 1)};
}

std::vector<Assignment> ParseFields(const std::vector<std::string>& texts) {
    std::vector<Assignment> fields;
    for (const std::string& text : texts) {
        fields.push_back(Split(text));
        FieldToSet(fields.back().name); // throws for anything else
    }
    return fields;
}

std::vector<CustomValue> ParseCustom(const std::vector<std::string>& texts) {
    std::vector<CustomValue> custom;
    for (const std::string& text : texts) {
        const Assignment split = Split(text);
        try {
            custom.push_back({split.name, ParseTyped(split.value)});
        } catch (const Failure& failure) {
            throw Failure(split.name + ": " + failure.what());
        }
    }
    return custom;
}

std::optional<Extent> ParseSize(const std::string& text) {
    if (text.empty()) return std::nullopt;
    unsigned width = 0, height = 0;
    int used = 0;
    const bool read = std::sscanf(text.c_str(), "%5ux%5u%n", &width, &height, &used) == 2;
    if (!read || static_cast<size_t>(used) != text.size() || width == 0 || height == 0)
        throw CLI::ValidationError("--size", "'" + text + "' should be WIDTHxHEIGHT in pixels, as in 200x150");
    return Extent{static_cast<int>(width), static_cast<int>(height)};
}

std::string FieldNames() {
    std::string names;
    for (const Field& field : Fields())
        if (field.type != 0) names += (names.empty() ? "" : ", ") + std::string(field.name);
    return names;
}

class Parser {
public:
    Parser()
        : app_("Reads and writes the property sets of compound files: .doc .xls .ppt .msi .msg and many more.",
               "suminfo") {
        app_.allow_windows_style_options(false); // a path may begin with a slash
        app_.require_subcommand(1);
        app_.set_version_flag("--version", "suminfo " SUMINFO_VERSION);
        app_.footer(kExamples);
        AddShow();
        AddCheck();
        AddSet();
        AddRemove();
        AddThumbnail();
        AddScript();
        AddCopy();
    }

    Parsed Parse(std::vector<std::string> arguments) {
        if (!arguments.empty() && arguments.front().rfind('-', 0) != 0 && !IsCommand(arguments.front())) {
            return Wrong("'" + arguments.front() + "' is no command; suminfo --help lists them\n");
        }
        std::reverse(arguments.begin(), arguments.end()); // the order that the parser expects
        try {
            app_.parse(arguments);
            line_.fields = ParseFields(fields_);
            line_.custom = ParseCustom(custom_);
            for (const std::string& name : line_.fieldNames)
                FieldToRemove(name);
            line_.size = ParseSize(size_);
            if (line_.command == Command::set && fields_.empty() && custom_.empty())
                throw CLI::ValidationError("set", "nothing to set: name a field, as in title=\"Plan B\"");
            if (line_.command == Command::remove && line_.fieldNames.empty() && line_.customNames.empty())
                throw CLI::ValidationError("remove", "nothing to remove: name a field");
            return {line_, kDone};
        } catch (const CLI::ParseError& error) {
            std::ostringstream help, wrong;
            if (app_.exit(error, help, wrong) != 0) return Wrong(wrong.str());
            Print(stdout, help.str());
            return {std::nullopt, kDone};
        } catch (const Failure& failure) {
            return Wrong(std::string(failure.what()) + "\n");
        }
    }

private:
    static Parsed Wrong(const std::string& message) {
        Print(stderr, "suminfo: " + message);
        return {std::nullopt, kUsage};
    }
    bool IsCommand(const std::string& word) {
        const auto hasName = [&word](CLI::App* command) { return command->get_name() == word; };
        return !app_.get_subcommands(hasName).empty();
    }
    CLI::App* Add(const char* name, Command command, const char* description) {
        CLI::App* sub = app_.add_subcommand(name, description);
        sub->callback([this, command] { line_.command = command; });
        return sub;
    }
    void AddFile(CLI::App* sub) { sub->add_option("FILE", line_.file, "the document")->required(); }
    void AddBare(CLI::App* sub) {
        sub->add_flag("--stream", line_.bare, "FILE is no document but one property-set stream");
    }
    void AddFiles(CLI::App* sub) {
        sub->add_option("FILE", line_.files, "documents, and folders with -r")->required();
        sub->add_flag("-r,--recursive", line_.recursive, "look into folders, at every compound file");
        AddBare(sub);
    }

    // Takes exactly one argument per option, so that fields can follow it.
    void AddCustom(CLI::App* sub, std::vector<std::string>& values, const char* description) {
        sub->add_option("--custom", values, description)->allow_extra_args(false);
    }

    void AddShow() {
        CLI::App* sub = Add("show", Command::show, "Print what the property sets hold");
        AddFiles(sub);
        sub->add_flag("--json", line_.json, "one line of JSON for each file");
    }
    void AddCheck() {
        AddFiles(
            Add("check", Command::check, "Report everything irregular, with its offset and what readers make of it"));
    }
    void AddSet() {
        CLI::App* sub = Add("set", Command::set, "Change fields; an empty value removes one");
        sub->footer("Fields: " + FieldNames() + ".\nTypes of custom properties: " + TypeNames() +
                    ".\nDates: 2001-02-03, 2001-02-03T04:05:06Z (UTC) or now; edit-time: h:mm:ss.");
        AddFile(sub);
        sub->add_option("FIELD=VALUE", fields_, "title=\"Plan B\"");
        AddCustom(sub, custom_, "NAME=TYPE:VALUE, a custom property");
    }
    void AddRemove() {
        CLI::App* sub = Add("remove", Command::remove, "Remove fields and custom properties");
        AddFile(sub);
        sub->add_option("FIELD", line_.fieldNames, "title, thumbnail, ...");
        AddCustom(sub, line_.customNames, "the name of a custom property");
    }
    void AddThumbnail() {
        CLI::App* sub = Add("thumbnail", Command::thumbnail, "Draw the thumbnail into a PNG file");
        AddFile(sub);
        AddBare(sub);
        sub->add_option("OUT.png", line_.output, "the picture")->required();
        sub->add_option("--size", size_, "WIDTHxHEIGHT in pixels (its own size, or 256 for a metafile)");
    }
    void AddScript() {
        CLI::App* sub = Add("rc", Command::rc, "Print the summary as a resource script");
        AddFile(sub);
        AddBare(sub);
        sub->add_option("OUT.rc", line_.output, "the script")->required();
    }
    void AddCopy() {
        CLI::App* sub = Add("copy", Command::copy, "Give one document the summary of another");
        sub->add_option("FROM", line_.file, "the document with the summary")->required();
        sub->add_option("TO", line_.output, "the document that gets it")->required();
    }

    CLI::App app_;
    CommandLine line_ = {};
    std::vector<std::string> fields_, custom_;
    std::string size_;
};

} // namespace

Parsed ParseCommandLine(const std::vector<std::string>& arguments) {
    return Parser().Parse(arguments);
}

} // namespace suminfo

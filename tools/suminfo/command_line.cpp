// The commands with their options and help texts.

#include "command_line.h"

#include <CLI/CLI.hpp>
#include <algorithm>

#include "console.h"
#include "exit_codes.h"
#include "failure.h"
#include "fields.h"
#include "tools/cli/arguments.h"
#include "tools/cli/manual.h"
#include "value_input.h"

namespace suminfo {
namespace {

constexpr char kExamples[] = R"(
Examples:
  suminfo show report.doc                         what its property sets hold
  suminfo show --json -r documents/ | jq .file    every document, one line of JSON each
  suminfo show --csv -r documents/ >summaries.csv  every property, one line each
  suminfo get report.doc title                    one value, for scripts
  find . -name '*.doc' -print0 | suminfo check @-   names from standard input, however many
  suminfo show --stream summary.bin               a property-set stream in a file of its own
  suminfo set plan.msi title="Plan B" saved=now
  suminfo set -r drawings/ company=ACME           in all of them
  suminfo set - title="Plan B" <plan.doc >new.doc  in a pipe; -o FILE for a named result
  suminfo set plan.msi --custom Client=text:ACME --custom Sheets=int:12
  suminfo remove plan.msi comments --custom Client
  suminfo thumbnail plan.ppt plan.png --size 200x150
  suminfo thumbnail plan.ppt plan.wmf --original  the picture as it is stored
  suminfo rc plan.msi -                           the summary as a resource script
  suminfo copy report.doc letter.doc memo.doc     the summary of one document to others
  suminfo check -r documents/                     everything irregular, with its offset

Results: 0 done; 1 a file failed, or check found something irregular; 2 wrong command line.)";

// Splits "name=value". Throws a parse error that describes the fault.
Assignment Split(const std::string& text) {
    const size_t equals = text.find('=');
    if (equals == std::string::npos || equals == 0)
        throw CLI::ValidationError("'" + text + "' is not of the form name=value");
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
        throw CLI::ValidationError("--size", "'" + text + "' is not of the form WIDTHxHEIGHT, such as 200x150");
    return Extent{static_cast<int>(width), static_cast<int>(height)};
}

std::string FieldNames() {
    std::string names;
    for (const Field& field : Fields())
        if (field.type != 0) names += (names.empty() ? "" : ", ") + std::string(field.name);
    return names;
}

std::vector<std::string> WordsToComplete(const char* after) {
    std::vector<std::string> words;
    for (const Field& field : Fields())
        if (field.id != kCodePageId && (*after == '\0' || field.type != 0))
            words.push_back(field.name + std::string(after));
    return words;
}

// A file whose name looks like a value must be written with a folder: ./a=b.doc
bool IsAssignment(const std::string& word) {
    return word.find('=') < word.find_first_of("/\\");
}

class Parser {
public:
    Parser()
        : app_("Reads and writes the property sets of compound files: .doc .xls .ppt .msi .msg and many more",
               "suminfo") {
        cli::AddCommonOptions(
            app_, SUMINFO_VERSION,
            {{"set", WordsToComplete("=")}, {"get", WordsToComplete("")}, {"remove", WordsToComplete("")}});
        app_.footer(kExamples);
        AddShow();
        AddGet();
        AddCheck();
        AddSet();
        AddRemove();
        AddThumbnail();
        AddScript();
        AddCopy();
    }

    Parsed Parse(std::vector<std::string> arguments) {
        const cli::ParseResult result = cli::Parse(app_, std::move(arguments));
        Print(stdout, result.output);
        if (!result.error.empty()) return Wrong(result.error);
        if (!result.isParsed) return {std::nullopt, kDone};
        try {
            Complete();
            return {line_, kDone};
        } catch (const CLI::ParseError& error) {
            return Wrong("suminfo: " + std::string(error.what()) + "\n");
        } catch (const Failure& failure) {
            return Wrong("suminfo: " + std::string(failure.what()) + "\n");
        }
    }

private:
    static Parsed Wrong(const std::string& message) {
        Print(stderr, message);
        return {std::nullopt, kUsage};
    }

    // Applies rules that the parser's table cannot express.
    void Complete() {
        if (!file_.empty()) line_.files = {file_};
        switch (line_.command) {
        case Command::get:
            CompleteGet();
            break;
        case Command::set:
            return CompleteSet();
        case Command::remove:
            return CompleteRemove();
        case Command::copy:
            CompleteOutput();
            break;
        case Command::thumbnail:
            line_.size = ParseSize(size_);
            if (line_.size && line_.original)
                throw CLI::ValidationError("--size", "cannot be combined with --original");
            break;
        default:
            break;
        }
        FinishFiles();
    }

    void FinishFiles() { line_.files = cli::WithoutWildcards(line_.files); }

    void CompleteGet() {
        const bool hasField = !field_.empty();
        if (hasField == !line_.customNames.empty())
            throw CLI::ValidationError("get", "specify one field, or one property with --custom");
        if (hasField) line_.fieldNames = {FieldToRemove(field_).name};
    }

    void CompleteSet() {
        std::vector<std::string> fields;
        for (const std::string& word : words_)
            (IsAssignment(word) || FieldNamed(word) ? fields : line_.files).push_back(word);
        line_.fields = ParseFields(fields);
        line_.custom = ParseCustom(custom_);
        if (line_.fields.empty() && line_.custom.empty())
            throw CLI::ValidationError("set", "nothing to set: specify a field, such as title=\"Plan B\"");
        RequireFiles();
    }

    // Files come first: all arguments after a field are fields.
    void CompleteRemove() {
        const bool needsField = line_.customNames.empty();
        for (const std::string& word : words_) {
            const bool isLastChance = needsField && &word == &words_.back() && words_.size() > 1;
            if (FieldNamed(word) || !line_.fieldNames.empty() || isLastChance)
                line_.fieldNames.push_back(FieldToRemove(word).name);
            else
                line_.files.push_back(word);
        }
        if (line_.fieldNames.empty() && needsField)
            throw CLI::ValidationError("remove", "nothing to remove: specify a field");
        RequireFiles();
    }

    void RequireFiles() {
        if (line_.files.empty()) throw CLI::ValidationError("FILE", "no input file");
        FinishFiles();
        CompleteOutput();
    }

    // A document on standard input is edited to standard output.
    void CompleteOutput() {
        const auto& files = line_.files;
        const bool hasInput = std::find(files.begin(), files.end(), kStandardStream) != files.end();
        if (hasInput && line_.source == kStandardStream)
            throw CLI::ValidationError("TO", "standard input can be read only once");
        if (hasInput && line_.output.empty()) line_.output = kStandardStream;
        if (line_.output.empty()) return;
        if (files.size() > 1 || line_.recursive)
            throw CLI::ValidationError(hasInput ? "FILE" : "-o", "only one document can be edited to another file");
        if (line_.output == kStandardStream && IsTerminal(stdout))
            throw CLI::ValidationError("-o", "the document cannot be printed on a terminal; name a file");
    }

    CLI::App* Add(const char* name, Command command, const char* description) {
        CLI::App* sub = app_.add_subcommand(name, description);
        sub->callback([this, command] { line_.command = command; });
        return sub;
    }
    void AddBare(CLI::App* sub) {
        sub->add_flag("--stream", line_.bare, "FILE is a single property-set stream, not a document");
    }
    void AddRecursive(CLI::App* sub) {
        sub->add_flag("-r,--recursive", line_.recursive, "search folders for compound files");
    }
    void AddFile(CLI::App* sub) {
        sub->add_option("FILE", file_, "the document; - is standard input")->required();
        AddBare(sub);
    }
    void AddFiles(CLI::App* sub) {
        sub->add_option("FILE", line_.files, "documents, and folders with -r; - is standard input")->required();
        AddRecursive(sub);
        AddBare(sub);
    }

    void AddOutput(CLI::App* sub) {
        sub->add_option("-o,--output", line_.output,
                        "write the changed document to this file; - is standard output, the default if FILE is -")
            ->check(cli::NotEmpty);
    }

    // Takes exactly one argument per option, so that fields can follow it.
    void AddCustom(CLI::App* sub, std::vector<std::string>& values, const char* description) {
        sub->add_option("--custom", values, description)->allow_extra_args(false);
    }

    void AddShow() {
        CLI::App* sub = Add("show", Command::show, "Print the contents of property sets");
        AddFiles(sub);
        const auto addForm = [&](const char* name, ReportForm form, const char* description) {
            return sub->add_flag_callback(
                name, [this, form] { line_.form = form; }, description);
        };
        addForm("--json", ReportForm::json, "print one line of JSON for each file")
            ->excludes(addForm("--csv", ReportForm::csv, "print CSV: one line for each property, with a header line"));
    }
    void AddGet() {
        CLI::App* sub = Add("get", Command::get, "Print one value");
        AddFile(sub);
        sub->add_option("FIELD", field_, "title, author, ...");
        AddCustom(sub, line_.customNames, "the name of a custom property");
    }
    void AddCheck() { AddFiles(Add("check", Command::check, "Report irregularities and damage, with their offsets")); }
    void AddSet() {
        CLI::App* sub = Add("set", Command::set, "Set fields; an empty value removes the field");
        sub->footer("Fields: " + FieldNames() + ".\nTypes of custom properties: " + TypeNames() +
                    ".\nDates: 2001-02-03, 2001-02-03T04:05:06Z (UTC) or now; edit-time: h:mm:ss.");
        sub->add_option("FILE FIELD=VALUE", words_, "documents, and values such as title=\"Plan B\"");
        AddCustom(sub, custom_, "NAME=TYPE:VALUE, a custom property");
        AddRecursive(sub);
        AddOutput(sub);
    }
    void AddRemove() {
        CLI::App* sub = Add("remove", Command::remove, "Remove fields and custom properties");
        sub->add_option("FILE FIELD", words_, "documents, then title, thumbnail, ...");
        AddCustom(sub, line_.customNames, "the name of a custom property");
        AddRecursive(sub);
        AddOutput(sub);
    }
    void AddThumbnail() {
        CLI::App* sub = Add("thumbnail", Command::thumbnail, "Save the thumbnail as a picture");
        AddFile(sub);
        sub->add_option("OUT.png", line_.output, "the picture; - is standard output")->required();
        sub->add_option("--size", size_, "WIDTHxHEIGHT in pixels (default: the original size; 256 for a metafile)")
            ->check(cli::NotEmpty);
        sub->add_flag("--original", line_.original, "save the picture in its stored format instead of PNG");
    }
    void AddScript() {
        CLI::App* sub = Add("rc", Command::rc, "Save the summary as a resource script");
        AddFile(sub);
        sub->add_option("OUT.rc", line_.output, "the script; - is standard output")->required();
    }
    void AddCopy() {
        CLI::App* sub = Add("copy", Command::copy, "Copy the summary of one document to others");
        sub->add_option("FROM", line_.source, "the document with the summary")->required();
        sub->add_option("TO", line_.files, "the documents to change")->required();
        AddRecursive(sub);
        AddOutput(sub);
    }

    CLI::App app_;
    CommandLine line_ = {};
    std::vector<std::string> words_, custom_;
    std::string file_, field_, size_;
};

} // namespace

Parsed ParseCommandLine(const std::vector<std::string>& arguments) {
    return Parser().Parse(arguments);
}

} // namespace suminfo

// dxfprops: the properties of drawings on the command line. docs/dxfprops.md describes it.

#include <CLI/CLI.hpp>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <set>
#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#endif

#include <nlohmann/json.hpp>

#include "files/file_error.h"
#include "files/file_replacement.h"
#include "tools/cli/arguments.h"
#include "tools/cli/manual.h"
#include "tools/cli/printable.h"
#include "tools/cli/progress.h"
#include "tools/dxfprops/list_drawings.h"
#include "tools/dxfprops/output.h"

namespace {

using namespace dxfprops;

constexpr int kDone = 0;
constexpr int kNothing = 1; // no entity matched, or diff found differences
constexpr int kFailed = 2;  // a file failed, or the command line is invalid

constexpr char kExamples[] = R"(
Examples:
  dxfprops list plan.dxf                          print the contents; --json: as JSON
  dxfprops get plan.dxf --where kind=LINE --show PenColor,Layer
  dxfprops get plan.dxf --where 'layer~W*,PenWidth>=0.5 mm' --csv
  dxfprops set plan.dxf --where kind=LINE,layer=WALLS PenColor=red PenWidth="0.5 mm" -o thick.dxf
  dxfprops set *.dxf attribute:TITLE="Plan B" --in-place --backup
  dxfprops set plan.dxf --where BlockName=DOOR Rotation=90 --dry-run
  dxfprops set-layer plan.dxf --layer 'W*' Color=red LineWeight="0.5 mm" --in-place
  dxfprops get plan.dxf --json >plan.json         edit it, then:
  dxfprops apply plan.json --in-place
  dxfprops diff plan.dxf thick.dxf                differences, entity by entity

Exit codes: 0 success; 1 no entity matched, or diff found differences; 2 invalid command line, or a file failed.)";

// An invalid command line; what() is the reason.
using UsageError = std::invalid_argument;

struct Noun {
    const char *one, *many, *kinds; // `kinds`: what is listed if none matches
};
constexpr Noun kEntities = {"entity", "entities", "kinds"}, kLayers = {"layer", "layers", "layers"};

struct CommandLine {
    std::vector<std::string> files, where, show, rest, layers;
    std::string space, within, output, before, after;
    Form form = Form::text;
    bool isInPlace = false, isDry = false, keepsBackup = false, isNew = false, onlyProperties = false;
    bool showsProgress = false;
};

std::string Joined(const std::vector<std::string>& names) {
    std::string joined;
    for (const std::string& name : names)
        joined += (joined.empty() ? "" : ", ") + name;
    return joined;
}

std::array<double, 4> ReadBox(const std::string& text) {
    std::array<double, 4> box = {};
    int used = 0;
    const int read = std::sscanf(text.c_str(), "%lf,%lf,%lf,%lf%n", &box[0], &box[1], &box[2], &box[3], &used);
    if (read != 4 || static_cast<size_t>(used) != text.size() || !(box[0] <= box[2]) || !(box[1] <= box[3]))
        throw UsageError("--within: '" + text + "' is not of the form LEFT,BOTTOM,RIGHT,TOP");
    return box;
}

Selection SelectionOf(const CommandLine& line) {
    Selection selection;
    selection.where = ReadConditions(line.where);
    selection.space = line.space;
    const bool isBlock = line.space.rfind("block=", 0) == 0;
    if (!isBlock && !line.space.empty() && line.space != "model" && line.space != "paper" && line.space != "all")
        throw UsageError("--in: '" + line.space + "' is not one of model, paper, all, block=NAME");
    if (!line.within.empty()) selection.within = ReadBox(line.within);
    return selection;
}

bool IsConditional(const CommandLine& line) {
    return !line.where.empty() || !line.within.empty();
}

// Processes one file after the other; a failure is reported and does not stop the others.
class Run {
public:
    explicit Run(const CommandLine& line)
        : line_(line),
          progress_(line.files.size(), line.showsProgress ? DrawBar : std::function<void(const std::string&)>()) {}

    template <class Work>
    int ForEach(const std::vector<std::string>& files, ResultPrinter* printer, Work work) {
        for (const std::string& file : files) {
            file_ = file;
            try {
                if (printer) printer->BeginFile(file, files.size() > 1);
                work(file);
                if (printer) printer->EndFile();
            } catch (const dxf::ReadError& error) {
                Fail(error.what(), error.Text(), error.Line(), printer);
            } catch (const std::bad_alloc&) {
                Fail("not enough memory", "not enough memory", 0, printer);
            } catch (const std::invalid_argument&) {
                throw;                              // the command line
            } catch (const std::exception& error) { // SaveError, FileError
                Fail(error.what(), error.what(), 0, printer);
            }
            progress_.Finish();
        }
        return result_;
    }

    // From now on, failures are reported with the name of this file.
    DrawingFile Open(const std::string& file) {
        file_ = file;
        if (!line_.showsProgress) return DrawingFile(file);
        return DrawingFile(file, [this, &file](int permille) { progress_.Show(file, permille); });
    }

    // Like search programs, returns a separate exit code if nothing was found.
    int ResultOf(const Matches& matches, const Noun& noun, bool isConditional) {
        if (result_ != kDone || matches.count > 0 || !isConditional) return result_;
        std::cerr << "dxfprops: no " << noun.one << " matches";
        for (const std::vector<std::string>& conditions : {line_.where, line_.layers})
            for (const std::string& condition : conditions)
                std::cerr << " " << condition;
        if (!line_.within.empty()) std::cerr << " --within " << line_.within;
        if (!matches.kinds.empty())
            std::cerr << "; existing " << noun.kinds << ": " << Joined({matches.kinds.begin(), matches.kinds.end()});
        std::cerr << "\n";
        return kNothing;
    }

private:
    static void DrawBar(const std::string& bar) { std::cerr << bar << std::flush; }
    void Fail(const std::string& message, const std::string& text, uint32_t at, ResultPrinter* printer) {
        progress_.Hide();
        std::cerr << "dxfprops: " << cli::OneLine(file_) << ": " << message << "\n";
        if (printer) printer->Fail(file_, text, at);
        result_ = kFailed;
    }

    const CommandLine& line_;
    cli::Progress progress_;
    std::string file_; // that is being processed
    int result_ = kDone;
};

int List(const CommandLine& line) {
    if (line.form == Form::json || line.form == Form::jsonLines)
        return PrintObjects(line.files, line.form, DescribeFile, std::cout) ? kDone : kFailed;
    return Run(line).ForEach(line.files, nullptr, [](const std::string& file) { PrintSummary(file, std::cout); });
}

int Get(const CommandLine& line) {
    const Selection selection = SelectionOf(line);
    std::vector<std::string> show;
    for (const std::string& name : line.show)
        show.push_back(RequireName(name, false));
    Run run(line);
    Matches matches;
    int result = kDone;
    {
        ResultPrinter printer(line.form, ResultPrinter::Items::entities,
                              show.empty() ? dxf::DocumentReader::PropertyNames() : show, std::cout);
        result = run.ForEach(line.files, &printer, [&](const std::string& file) {
            const Matches found = ForEachEntity(run.Open(file), selection, show,
                                                [&](const EntityProperties& entity) { printer.Add(entity); });
            matches.count += found.count;
            matches.kinds.insert(found.kinds.begin(), found.kinds.end());
        });
    }
    return result != kDone ? result : run.ResultOf(matches, kEntities, IsConditional(line));
}

// Returns whether the word is "NAME=VALUE" with the name of a property or of an attribute.
bool IsAssignment(const std::string& word) {
    const std::string name = word.substr(0, word.find('='));
    const std::string prefix = kAttribute;
    const bool isAttribute = dxf::IsSameName(name.substr(0, prefix.size()), prefix) && name.size() > prefix.size();
    return word.find('=') != word.npos && (isAttribute || dxf::DocumentReader::FindPropertyName(name));
}

std::pair<std::string, std::string> SplitAssignment(const std::string& word) {
    const size_t equals = word.find('=');
    return {word.substr(0, equals), word.substr(equals + 1)};
}

// Separates files from assignments. A word with "=" that is neither is a mistake in a name, unless there is such a
// file.
template <class IsValue, class Require>
Values TakeValues(CommandLine& line, IsValue isValue, Require require) {
    Values values;
    for (const std::string& word : line.rest) {
        if (isValue(word))
            values.push_back(SplitAssignment(word));
        else
            line.files.push_back(word);
    }
    for (const std::string& file : line.files)
        if (file.find('=') != file.npos && !std::filesystem::exists(std::filesystem::u8path(file)))
            require(SplitAssignment(file).first);
    line.files = cli::WithoutWildcards(line.files);
    return values;
}

void RequireOneInput(const CommandLine& line) {
    const auto isInput = [](const std::string& name) { return name == kStandardStream; };
    const auto count = std::count_if(line.files.begin(), line.files.end(), isInput);
    if (count + isInput(line.before) + isInput(line.after) > 1)
        throw UsageError("standard input can be read only once");
}

void RequireTarget(const CommandLine& line) {
    RequireOneInput(line);
    if (line.files.empty()) throw UsageError("no input file");
    const int targets = !line.output.empty() + line.isInPlace + line.isDry;
    if (targets != 1) throw UsageError("specify the output: -o OUT, --in-place or --dry-run");
    if (!line.output.empty() && line.files.size() > 1)
        throw UsageError("-o requires a single input file; see --in-place");
    const bool isFromInput = std::count(line.files.begin(), line.files.end(), kStandardStream) != 0;
    if (line.isInPlace && isFromInput) throw UsageError("--in-place requires a file, not standard input; use -o OUT");
}

// Changes each file by the call and reports the counts.
template <class Change>
int ChangeFiles(const CommandLine& line, const Noun& noun, bool isConditional, Change change) {
    Run run(line);
    Matches matches;
    const int result = run.ForEach(line.files, nullptr, [&](const std::string& file) {
        const DrawingFile drawing = run.Open(file);
        const Target target = {line.isInPlace ? file : line.output, line.isDry, line.keepsBackup};
        const SetResult set = change(drawing, target, file);
        matches.count += set.matches.count;
        matches.kinds.insert(set.matches.kinds.begin(), set.matches.kinds.end());
        for (const std::string& note : set.notes)
            std::cerr << "dxfprops: " << cli::OneLine(file) << ": note: " << note << "\n";
        Print(set.differences, "the drawing", "the changed drawing", std::cout);
        std::ostream& out = line.output == kStandardStream ? std::cerr : std::cout;
        out << cli::OneLine(file) << ": " << set.changed << " " << (set.changed == 1 ? noun.one : noun.many)
            << (line.isDry ? " would change\n" : " changed\n");
    });
    return result != kDone ? result : run.ResultOf(matches, noun, isConditional);
}

int Set(CommandLine& line) {
    const Values values = TakeValues(line, IsAssignment, [](const std::string& name) { RequireName(name, false); });
    if (values.empty()) throw UsageError("nothing to set: specify a property, such as PenColor=red");
    RequireTarget(line);
    const Selection selection = SelectionOf(line);
    const bool isConditional = IsConditional(line) || std::any_of(values.begin(), values.end(), [](const auto& value) {
                                   return !dxf::DocumentReader::FindPropertyName(value.first);
                               });
    return ChangeFiles(line, kEntities, isConditional,
                       [&](const DrawingFile& drawing, const Target& target, const std::string&) {
                           return SetProperties(drawing, selection, values, target);
                       });
}

std::string TextOf(const std::string& file) {
    if (file == kStandardStream) return std::string(std::istreambuf_iterator<char>(std::cin), {});
    return dxf::ReadBytes(std::filesystem::u8path(file));
}

int Apply(CommandLine& line) {
    const auto drawings = ReadEntities(TextOf(line.before));
    for (const auto& [file, entities] : drawings)
        line.files.push_back(file);
    RequireTarget(line);
    return ChangeFiles(
        line, kEntities, false, [&](const DrawingFile& drawing, const Target& target, const std::string& file) {
            const auto found =
                std::find_if(drawings.begin(), drawings.end(), [&](const auto& some) { return some.first == file; });
            return ApplyProperties(drawing, found->second, target);
        });
}

int Diff(const CommandLine& line) {
    size_t count = 0;
    int result = kDone;
    Run run(line);
    {
        ResultPrinter printer(line.form, ResultPrinter::Items::differences, {}, std::cout);
        result = run.ForEach({line.after}, &printer, [&](const std::string& after) {
            const Compared compared = line.onlyProperties ? Compared::properties : Compared::all;
            const DrawingFile before =
                run.Open(line.before); // opened first, so that a failure is reported with its name
            const auto differences = FindDifferences(before, run.Open(after), compared);
            for (const Difference& difference : differences)
                printer.Add(difference, line.before, after);
            count = differences.size();
        });
    }
    return result != kDone ? result : count > 0 ? kNothing : kDone;
}

int ListLayers(const CommandLine& line) {
    const std::vector<std::string> columns = {"Name",    "On",    "Frozen",   "Locked",
                                              "Plotted", "Color", "LineType", "LineWeight"};
    ResultPrinter printer(line.form, ResultPrinter::Items::layers, columns, std::cout);
    Run run(line);
    return run.ForEach(line.files, &printer, [&](const std::string& file) {
        const DrawingFile drawing = run.Open(file);
        for (const dxf::Contents::Layer& layer : drawing.GetContents().layers)
            printer.Add(layer);
    });
}

bool ReadSwitch(const std::string& text) {
    for (const char* yes : {"yes", "on", "true", "1"})
        if (dxf::IsSameName(text, yes)) return true;
    for (const char* no : {"no", "off", "false", "0"})
        if (dxf::IsSameName(text, no)) return false;
    throw UsageError("'" + text + "' is not yes or no");
}

// The values that set-layer accepts.
struct LayerField {
    const char* name;
    void (*set)(dxf::LayerValues&, const std::string&);
};
constexpr LayerField kLayerFields[] = {
    {"On", [](dxf::LayerValues& values, const std::string& text) { values.isOn = ReadSwitch(text); }},
    {"Frozen", [](dxf::LayerValues& values, const std::string& text) { values.isFrozen = ReadSwitch(text); }},
    {"Locked", [](dxf::LayerValues& values, const std::string& text) { values.isLocked = ReadSwitch(text); }},
    {"Plotted", [](dxf::LayerValues& values, const std::string& text) { values.isPlotted = ReadSwitch(text); }},
    {"Color", [](dxf::LayerValues& values, const std::string& text) { values.color = text; }},
    {"LineType", [](dxf::LayerValues& values, const std::string& text) { values.lineType = text; }},
    {"LineWeight", [](dxf::LayerValues& values, const std::string& text) { values.lineWeight = text; }},
    {"Name", [](dxf::LayerValues& values, const std::string& text) { values.name = text; }},
};

const LayerField* FindLayerField(const std::string& name) {
    for (const LayerField& field : kLayerFields)
        if (dxf::IsSameName(field.name, name)) return &field;
    return nullptr;
}

std::vector<std::string> LayerFieldNames() {
    std::vector<std::string> names;
    for (const LayerField& field : kLayerFields)
        names.emplace_back(field.name);
    return names;
}

int SetLayer(CommandLine& line) {
    const auto isValue = [](const std::string& word) {
        return word.find('=') != word.npos && FindLayerField(SplitAssignment(word).first);
    };
    dxf::LayerValues wanted;
    const Values values = TakeValues(line, isValue, [](const std::string& name) {
        throw UsageError("'" + name + "' is not one of " + Joined(LayerFieldNames()));
    });
    for (const auto& [name, text] : values)
        FindLayerField(name)->set(wanted, text);
    if (line.layers.empty()) throw UsageError("specify a layer: --layer NAME");
    if (values.empty() && !line.isNew) throw UsageError("nothing to set: specify a value, such as Color=red");
    RequireTarget(line);
    return ChangeFiles(line, kLayers, true, [&](const DrawingFile& drawing, const Target& target, const std::string&) {
        return SetLayers(drawing, line.layers, wanted, line.isNew, target);
    });
}

std::vector<std::string> WithEquals(std::vector<std::string> names) {
    for (std::string& name : names)
        name += '=';
    return names;
}

// The commands with their options and help texts.
class Parser {
public:
    Parser() : app_("Reads and sets the properties of entities in DXF drawings", "dxfprops") {
        const std::vector<std::string> names = dxf::DocumentReader::PropertyNames();
        cli::AddCommonOptions(
            app_, DXFPROPS_VERSION,
            {{"get", names}, {"set", WithEquals(names)}, {"set-layer", WithEquals(LayerFieldNames())}});
        app_.footer("Properties: " + Joined(names) + ".\n" + kExamples);
        AddReaders();
        AddWriters();
    }

    int Execute(const std::vector<std::string>& arguments) {
        const cli::ParseResult result = cli::Parse(app_, arguments);
        std::cout << result.output;
        std::cerr << result.error;
        if (!result.isParsed) return result.error.empty() ? kDone : kFailed;
        try {
            line_.files = cli::WithoutWildcards(line_.files);
            RequireOneInput(line_);
            return command_(line_);
        } catch (const UsageError& error) {
            std::cerr << "dxfprops: " << error.what() << "\n";
        } catch (const dxf::ReadError& error) { // a list of values
            std::cerr << "dxfprops: " << line_.before << ": " << error.what() << "\n";
        }
        return kFailed;
    }

private:
    template <class Command>
    CLI::App* Add(const char* name, const char* description, Command command) {
        CLI::App* sub = app_.add_subcommand(name, description);
        sub->callback([this, command] { command_ = command; });
        sub->add_flag("--progress", line_.showsProgress, "show a progress bar on stderr");
        return sub;
    }
    void AddFiles(CLI::App* sub) { sub->add_option("FILE", line_.files, "drawings; - is standard input")->required(); }
    void AddForms(CLI::App* sub, bool hasCsv) {
        std::vector<CLI::Option*> forms;
        const auto add = [&](const char* name, Form form, const char* description) {
            CLI::Option* option = sub->add_flag_callback(
                name, [this, form] { line_.form = form; }, description);
            for (CLI::Option* other : forms)
                option->excludes(other);
            forms.push_back(option);
        };
        add("--json", Form::json, "print a JSON array");
        add("--json-lines", Form::jsonLines, "print a JSON object per line");
        if (hasCsv) add("--csv", Form::csv, "print CSV, with a header line");
    }
    void AddSelection(CLI::App* sub) {
        sub->add_option("--where", line_.where,
                        "kind, handle, block or a property, compared with = != < <= > >= or ~ (wildcards); A|B: one "
                        "of several values; conditions separated by commas or repeated: all must match")
            ->allow_extra_args(false);
        sub->add_option("--in", line_.space, "model (the default), paper, all, or block=NAME")->check(cli::NotEmpty);
        sub->add_option("--within", line_.within, "LEFT,BOTTOM,RIGHT,TOP: entities inside this box")
            ->check(cli::NotEmpty);
    }
    void AddTarget(CLI::App* sub) {
        sub->add_option("-o", line_.output, "output file; - is standard output")->check(cli::NotEmpty);
        sub->add_flag("--in-place", line_.isInPlace, "overwrite each input file");
        sub->add_flag("--dry-run", line_.isDry, "print the changes without writing them");
        sub->add_flag("--backup", line_.keepsBackup, "keep the previous contents as FILE.bak");
    }

    void AddReaders() {
        CLI::App* list = Add("list", "Print the contents of drawings", [](CommandLine& line) { return List(line); });
        AddFiles(list);
        AddForms(list, false);
        CLI::App* get = Add("get", "Print the properties of entities", [](CommandLine& line) { return Get(line); });
        AddFiles(get);
        get->add_option("--show", line_.show, "print only these properties")->delimiter(',')->allow_extra_args(false);
        AddForms(get, true);
        AddSelection(get);
        CLI::App* layers = Add("layers", "Print layers", [](CommandLine& line) { return ListLayers(line); });
        AddFiles(layers);
        AddForms(layers, true);
        CLI::App* diff = Add("diff", "Print differences", [](CommandLine& line) { return Diff(line); });
        diff->add_option("BEFORE", line_.before, "a drawing")->required();
        diff->add_option("AFTER", line_.after, "the drawing to compare it with")->required();
        diff->add_flag("--only-properties", line_.onlyProperties,
                       "compare only properties, not texts, positions and other coordinates");
        AddForms(diff, false);
    }
    void AddWriters() {
        CLI::App* set = Add("set", "Set properties of entities", [](CommandLine& line) { return Set(line); });
        set->add_option("FILE PROPERTY=VALUE", line_.rest,
                        "drawings and values; attribute:TAG=VALUE sets attributes of insertions")
            ->required();
        AddSelection(set);
        AddTarget(set);
        CLI::App* layer = Add("set-layer", "Change layers", [](CommandLine& line) { return SetLayer(line); });
        layer->add_option("FILE NAME=VALUE", line_.rest, "drawings, and values of " + Joined(LayerFieldNames()))
            ->required();
        layer->add_option("--layer", line_.layers, "name of a layer; * and ? are wildcards")->allow_extra_args(false);
        layer->add_flag("--new", line_.isNew, "add layers that do not exist");
        AddTarget(layer);
        CLI::App* apply =
            Add("apply", "Apply edited output of get --json", [](CommandLine& line) { return Apply(line); });
        apply->add_option("FILE.json", line_.before, "the values; - is standard input")->required();
        AddTarget(apply);
    }

    CLI::App app_;
    CommandLine line_;
    std::function<int(CommandLine&)> command_;
};

int RunWith(const std::vector<std::string>& words) {
    files::RemoveTemporaryFileOnInterrupt();
    std::ios::sync_with_stdio(false);
    const cli::PrintableBuffer out(std::cout, stdout), errors(std::cerr, stderr);
    try {
        const int result = Parser().Execute(cli::WithListedArguments(words));
        if (std::cout.flush()) return result;
        std::cerr << "dxfprops: cannot write the output\n";
        return kFailed;
    } catch (const files::FileError& unreadable) {
        std::cerr << "dxfprops: cannot read the list of arguments: " << unreadable.what() << "\n";
        return kFailed;
    }
}

} // namespace

#ifdef _WIN32
int wmain(int count, wchar_t** words) {
    for (FILE* stream : {stdin, stdout, stderr})
        ::_setmode(::_fileno(stream), _O_BINARY);
    std::vector<std::string> arguments;
    for (int i = 1; i < count; ++i)
        arguments.push_back(std::filesystem::path(words[i]).u8string());
    return RunWith(arguments);
}
#else
int main(int count, char** words) {
    return RunWith({words + 1, words + count});
}
#endif

// dxfprops: the properties of drawings on the command line. docs/dxfprops.md describes it.

#include <CLI/CLI.hpp>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <iostream>
#include <set>
#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#endif

#include <nlohmann/json.hpp>

#include "files/file_replacement.h"
#include "tools/dxfprops/list_drawings.h"
#include "tools/dxfprops/output.h"

namespace {

using namespace dxfprops;

constexpr int kDone = 0;
constexpr int kFailed = 1; // a file failed, nothing matched, or diff found differences
constexpr int kUsage = 2;

constexpr char kExamples[] = R"(
Examples:
  dxfprops list plan.dxf                          what it holds; --json: as JSON
  dxfprops get plan.dxf --where kind=LINE --show PenColor,Layer
  dxfprops set plan.dxf --where kind=LINE,layer=WALLS PenColor=red PenWidth="0.5 mm" -o thick.dxf
  dxfprops set *.dxf --where PenColor=red PenColor="By Layer" --in-place
  dxfprops diff plan.dxf thick.dxf                what differs, entity by entity

Results: 0 done; 1 a file failed, nothing meets --where, or diff found differences; 2 wrong command line.)";

struct CommandLine {
    std::vector<std::string> files, where, show, rest;
    std::string output, before, after;
    bool json = false, inPlace = false;
};

// The number of matches of --where in all files.
struct Matches {
    size_t count = 0;
    std::set<std::string> kinds; // kinds in files without matches

    void Add(size_t found, const std::set<std::string>& others) {
        count += found;
        kinds.insert(others.begin(), others.end());
    }
};

// Like in grep, finding nothing has its own exit code.
int ResultOf(int result, const CommandLine& line, const Matches& matches) {
    if (result != kDone || line.where.empty() || matches.count > 0) return result;
    std::cerr << "dxfprops: nothing meets";
    for (const std::string& condition : line.where)
        std::cerr << " " << condition;
    const char* separator = "; there are entities of the kinds ";
    for (const std::string& kind : matches.kinds) {
        std::cerr << separator << kind;
        separator = ", ";
    }
    std::cerr << "\n";
    return kFailed;
}

std::string AllNames() {
    std::string names;
    for (const std::string& name : DrawingFile::PropertyNames())
        names += (names.empty() ? "" : ", ") + name;
    return names;
}

std::string Known(const std::string& name, bool alsoConditions) {
    for (const char* condition : {kKind, kHandle, kBlock})
        if (alsoConditions && CLI::detail::to_lower(name) == condition) return condition;
    if (const auto known = DrawingFile::FindPropertyName(name)) return *known;
    throw CLI::ValidationError("'" + name + "' is none of " + (alsoConditions ? "kind, handle, block, " : "") +
                               AllNames());
}

std::vector<Condition> Assignments(const std::vector<std::string>& texts, bool alsoConditions) {
    std::vector<Condition> made;
    for (const std::string& text : texts) {
        const size_t equals = text.find('=');
        if (equals == text.npos || equals == 0) throw CLI::ValidationError("'" + text + "' should be name=value");
        made.push_back({Known(text.substr(0, equals), alsoConditions), text.substr(equals + 1)});
    }
    return made;
}

// Processes the files in order. A failure is reported and does not stop the others.
template <class Work>
int ForEach(const std::vector<std::string>& files, Work work) {
    int result = kDone;
    for (const std::string& file : files) {
        try {
            work(file);
        } catch (const std::bad_alloc&) {
            std::cerr << "dxfprops: " << file << ": there is not enough memory for it\n";
            result = kFailed;
        } catch (const std::exception& error) { // ReadError, SaveError, or an error of the file system
            std::cerr << "dxfprops: " << file << ": " << error.what() << "\n";
            result = kFailed;
        }
    }
    return result;
}

int List(const CommandLine& line) {
    if (line.json) return ListDrawings(line.files, std::cout) ? kDone : kFailed;
    return ForEach(line.files, [](const std::string& file) { PrintSummary(file, std::cout); });
}

int Get(const CommandLine& line) {
    const std::vector<Condition> where = Assignments(line.where, true);
    for (const std::string& name : line.show)
        Known(name, false);
    Matches matches;
    const auto list = [&](const std::string& file) {
        Listing listing = ListProperties(file, where, line.show);
        matches.Add(listing.entities.size(), listing.kinds);
        return listing;
    };
    const auto print = [&](const std::string& file) {
        const Listing listing = list(file);
        if (line.files.size() > 1) std::cout << file << "\n";
        Print(listing, std::cout);
    };
    if (!line.json) return ResultOf(ForEach(line.files, print), line, matches);
    const auto describe = [&](const std::string& file) { return JsonOf(list(file)); };
    return ResultOf(PrintArray(line.files, describe, std::cout) ? kDone : kFailed, line, matches);
}

int Set(CommandLine& line) {
    std::vector<std::string> values;
    for (std::string& word : line.rest) // files come first; NAME=VALUE with the name of a property is a value
        (DrawingFile::FindPropertyName(word.substr(0, word.find('='))) && word.find('=') != word.npos ? values
                                                                                                      : line.files)
            .push_back(std::move(word));
    for (const std::string& file :
         line.files) // NAME=VALUE with an unknown name is an error, unless a file has that name
        if (file.find('=') != file.npos && !std::filesystem::exists(std::filesystem::u8path(file)))
            Known(file.substr(0, file.find('=')), false);
    const std::vector<Condition> where = Assignments(line.where, true), wanted = Assignments(values, false);
    if (line.files.empty()) throw CLI::ValidationError("set", "no file is named");
    if (wanted.empty()) throw CLI::ValidationError("set", "nothing to set: name a property, as in PenColor=red");
    if (line.inPlace == !line.output.empty())
        throw CLI::ValidationError("set", "say where the drawing goes: -o OUT or --in-place");
    if (!line.output.empty() && line.files.size() > 1)
        throw CLI::ValidationError("set", "-o takes one file; --in-place takes many");
    Matches matches;
    const int result = ForEach(line.files, [&](const std::string& file) {
        const SetResult set = SetProperties(file, where, wanted, line.inPlace ? file : line.output);
        matches.Add(set.matched, set.kinds);
        for (const std::string& note : set.notes)
            std::cerr << "dxfprops: " << file << ": note: " << note << "\n";
        (line.output == kStandardOutput ? std::cerr : std::cout)
            << file << ": " << set.changed << (set.changed == 1 ? " entity changed\n" : " entities changed\n");
    });
    return ResultOf(result, line, matches);
}

int Diff(const CommandLine& line) {
    size_t count = 0;
    const auto find = [&](const std::string& after) {
        std::vector<Difference> differences = FindDifferences(line.before, after);
        count = differences.size();
        return differences;
    };
    const auto print = [&](const std::string& after) { Print(find(after), line.before, after, std::cout); };
    const auto describe = [&](const std::string& after) { return JsonOf(find(after)); };
    const int result = !line.json                                      ? ForEach({line.after}, print)
                       : PrintArray({line.after}, describe, std::cout) ? kDone
                                                                       : kFailed;
    return count > 0 ? kFailed : result;
}

int Run(std::vector<std::string> arguments) {
    files::RemoveTemporaryFileOnInterrupt();
    CLI::App usage{"Reads and sets the properties of entities in DXF drawings.", "dxfprops"};
    CommandLine line;
    usage.allow_windows_style_options(false);
    usage.require_subcommand(1);
    usage.footer("Properties: " + AllNames() + ".\n" + kExamples);
    const auto where = [&line](CLI::App* command) {
        command
            ->add_option("--where", line.where,
                         "kind=LINE, layer=WALLS, handle=2F, or a property; all have to hold; block=NAME: in "
                         "that block")
            ->delimiter(',')
            ->allow_extra_args(false);
    };
    CLI::App* list = usage.add_subcommand("list", "Print what drawings hold");
    list->add_option("FILE", line.files, "drawings")->required();
    list->add_flag("--json", line.json, "as JSON");
    CLI::App* get = usage.add_subcommand("get", "Print the properties of entities");
    get->add_option("FILE", line.files, "drawings")->required();
    get->add_option("--show", line.show, "these properties alone")->delimiter(',')->allow_extra_args(false);
    get->add_flag("--json", line.json, "as JSON");
    where(get);
    CLI::App* set = usage.add_subcommand("set", "Set properties of entities");
    set->add_option("FILE PROPERTY=VALUE", line.rest, "drawings, and what is set")->required();
    set->add_option("-o", line.output, "the file that the drawing is written into; - is standard output");
    set->add_flag("--in-place", line.inPlace, "each drawing is written into its own file");
    where(set);
    CLI::App* diff = usage.add_subcommand("diff", "Print which properties differ");
    diff->add_option("BEFORE", line.before, "a drawing")->required();
    diff->add_option("AFTER", line.after, "another one")->required();
    diff->add_flag("--json", line.json, "as JSON");
    try {
        std::reverse(arguments.begin(), arguments.end()); // the order that the parser expects
        usage.parse(arguments);
        return list->parsed() ? List(line) : get->parsed() ? Get(line) : set->parsed() ? Set(line) : Diff(line);
    } catch (const CLI::ParseError& error) {
        return usage.exit(error) ? kUsage : kDone;
    }
}

} // namespace

#ifdef _WIN32
int wmain(int count, wchar_t** words) {
    for (FILE* stream : {stdout, stderr})
        ::_setmode(::_fileno(stream), _O_BINARY);
    std::vector<std::string> arguments;
    for (int i = 1; i < count; ++i)
        arguments.push_back(std::filesystem::path(words[i]).u8string());
    return Run(std::move(arguments));
}
#else
int main(int count, char** words) {
    return Run({words + 1, words + count});
}
#endif

// suminfo: property sets of documents on the command line. docs/suminfo.md describes it.

#include <cstdio>
#include <exception>
#include <iostream>
#include <string>
#include <vector>

#include "command_line.h"
#include "commands.h"
#include "console.h"
#include "exit_codes.h"
#include "failure.h"
#include "file_list.h"
#include "files/file_replacement.h"
#include "progress.h"
#include "text.h"
#ifdef _WIN32
#include "orlo/win/encoded_text.h"
#endif

namespace {

using namespace suminfo;

// Processes one file. Returns false if that failed, which was reported.
template <typename Work>
bool Try(const std::string& file, Progress& progress, Work work) {
    const auto say = [&progress](const std::string& name, const std::exception& failure) {
        progress.MakeWayFor(stderr);
        Print(stderr, "suminfo: " + OneLine(name) + ": " + failure.what() + "\n");
        return false;
    };
    try {
        work();
        return true;
    } catch (const Failure& failure) {
        return say(failure.File().empty() ? file : failure.File(), failure);
    } catch (const std::exception& failure) {
        return say(file, failure);
    }
}

Report ReportOn(const CommandLine& line, const Source& source) {
    if (line.command == Command::check) return Check(source);
    return line.json ? ShowJson(source) : ShowTable(source);
}

// Runs show and check: processes one file after the other and reports failures in order.
int ReportAll(const CommandLine& line) {
    const FileList list = FilesOf(line.files, line.recursive);
    for (const FileList::Unreadable& unreadable : list.unreadable)
        Print(stderr, "suminfo: " + OneLine(unreadable.name) + ": " + unreadable.why + "\n");
    const bool tables = line.command == Command::show && !line.json;
    Progress progress(list.files.size());
    bool clean = list.unreadable.empty(), first = true;
    for (const std::string& file : list.files) {
        progress.Next(file);
        const auto work = [&] {
            const Report report = ReportOn(line, {file, line.bare});
            progress.MakeWayFor(stdout);
            Print(stdout, (tables && !first ? "\n" : "") + report.text);
            first = false;
            clean = clean && report.clean;
        };
        clean = Try(file, progress, work) && clean;
    }
    return clean ? kDone : kFailed;
}

void RunOn(const CommandLine& line, const std::string& file) {
    switch (line.command) {
    case Command::set:
        return SetFields(file, line.fields, line.custom);
    case Command::remove:
        return RemoveFields(file, line.fieldNames, line.customNames);
    case Command::thumbnail:
        return SaveThumbnail({file, line.bare}, line.output, line.size);
    case Command::rc:
        return SaveResourceScript({file, line.bare}, line.output);
    default:
        return CopySummary(file, line.output);
    }
}

int Run(const std::vector<std::string>& arguments) {
    const Parsed parsed = ParseCommandLine(arguments);
    if (!parsed.line) return parsed.exitCode;
    const CommandLine& line = *parsed.line;
    if (line.command == Command::show || line.command == Command::check) return ReportAll(line);
    Progress none(1);
    return Try(line.file, none, [&] { RunOn(line, line.file); }) ? kDone : kFailed;
}

// "@-" reads arguments from standard input, each terminated by a NUL, for more names than fit on a command line.
int RunWith(const std::vector<std::string>& words) {
    PrepareStreams();
    files::RemoveTemporaryFileOnInterrupt();
    std::vector<std::string> arguments;
    for (const std::string& word : words) {
        if (word != "@-") {
            arguments.push_back(word);
            continue;
        }
        for (std::string argument; std::getline(std::cin, argument, '\0');)
            arguments.push_back(argument);
    }
    return Run(arguments);
}

} // namespace

#ifdef _WIN32
int wmain(int count, wchar_t** words) {
    std::vector<std::string> arguments;
    for (int i = 1; i < count; ++i)
        arguments.push_back(orlo::Narrow(words[i], CP_UTF8));
    return RunWith(arguments);
}
#else
int main(int count, char** words) {
    return RunWith({words + 1, words + count});
}
#endif

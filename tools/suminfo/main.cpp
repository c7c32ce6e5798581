// suminfo: property sets of documents on the command line. docs/suminfo.md describes it.

#include <cstdio>
#include <exception>
#include <new>
#include <string>
#include <vector>

#include "command_line.h"
#include "commands.h"
#include "console.h"
#include "exit_codes.h"
#include "failure.h"
#include "file_list.h"
#include "files/file_error.h"
#include "files/file_replacement.h"
#include "text.h"
#include "tools/cli/arguments.h"
#include "tools/cli/printable.h"
#include "tools/cli/progress.h"
#ifdef _WIN32
#include "orlo/win/encoded_text.h"
#endif

namespace {

using namespace suminfo;

// Reports failures on stderr and, in machine-readable formats, also in place of the file's report.
class FailureReport {
public:
    FailureReport(ReportForm form, cli::Progress& progress) : form_(form), progress_(progress) {}

    void Add(const std::string& file, const std::string& reason) {
        progress_.Hide();
        Print(stderr, "suminfo: " + cli::OneLine(file) + ": " + reason + "\n");
        Print(stdout, FailureLine(file, reason, form_));
    }

    // Returns false if the work failed.
    template <typename Work>
    bool Try(const std::string& file, Work work) {
        try {
            work();
            return true;
        } catch (const Failure& failure) {
            Add(failure.File().empty() ? file : failure.File(), failure.what());
        } catch (const std::bad_alloc&) {
            Add(file, "not enough memory");
        } catch (const std::exception& failure) {
            Add(file, failure.what());
        }
        return false;
    }

private:
    ReportForm form_;
    cli::Progress& progress_;
};

// Runs the command on one file. Returns the text to print, and whether the file has no irregularities.
Report RunOn(const CommandLine& line, const std::string& file) {
    const Source source = {file, line.bare};
    const Target target = {file, line.output};
    switch (line.command) {
    case Command::show:
        return Show(source, line.form);
    case Command::check:
        return Check(source);
    case Command::get:
        return {ValueOf(source, line.fieldNames.empty() ? "" : line.fieldNames[0],
                        line.customNames.empty() ? "" : line.customNames[0])};
    case Command::set:
        SetFields(target, line.fields, line.custom);
        break;
    case Command::remove:
        RemoveFields(target, line.fieldNames, line.customNames);
        break;
    case Command::thumbnail:
        line.original ? SaveOriginalThumbnail(source, line.output) : SaveThumbnail(source, line.output, line.size);
        break;
    case Command::rc:
        SaveResourceScript(source, line.output);
        break;
    case Command::copy:
        CopySummary(line.source, target);
        break;
    }
    return {};
}

// Processes one file after the other; a failure does not stop the others.
int Run(const std::vector<std::string>& arguments) {
    const Parsed parsed = ParseCommandLine(arguments);
    if (!parsed.line) return parsed.exitCode;
    const CommandLine& line = *parsed.line;
    const FileList list = FilesOf(line.files, line.recursive);
    const bool hasBar = list.files.size() > 1 && IsTerminal(stderr);
    const auto draw = [](const std::string& bar) { Print(stderr, bar); };
    cli::Progress progress(list.files.size(), hasBar ? std::function<void(const std::string&)>(draw) : nullptr);
    FailureReport failures(line.form, progress);
    Print(stdout, HeadingsOf(line.form));
    for (const FileList::Unreadable& unreadable : list.unreadable)
        failures.Add(unreadable.name, unreadable.reason);
    const bool hasTables = line.command == Command::show && line.form == ReportForm::table;
    bool isClean = list.unreadable.empty(), isFirst = true;
    for (const std::string& file : list.files) {
        progress.Show(file);
        const auto work = [&] {
            const Report report = RunOn(line, file);
            if (IsTerminal(stdout)) progress.Hide();
            Print(stdout, (hasTables && !isFirst ? "\n" : "") + report.text);
            isFirst = false;
            isClean = isClean && report.clean;
        };
        isClean = failures.Try(file, work) && isClean;
        progress.Finish();
    }
    return isClean ? kDone : kFailed;
}

int RunWith(const std::vector<std::string>& words) {
    PrepareStreams();
    files::RemoveTemporaryFileOnInterrupt();
    try {
        return Run(cli::WithListedArguments(words));
    } catch (const files::FileError& unreadable) {
        Print(stderr, std::string("suminfo: cannot read the list of arguments: ") + unreadable.what() + "\n");
        return kUsage;
    }
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

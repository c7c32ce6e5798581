// Command-line programs: the time that suminfo and gsf need to start and show one document, and for each further one.

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "bench/paired_timer.h"
#include "bench/propset/propset_bench.h"

namespace {

constexpr int kRounds = 41;
constexpr size_t kMany = 400;

using Words = std::vector<std::string>;

// Discards the output.
void Run(const Words& command) {
    std::vector<char*> words;
    for (const std::string& word : command)
        words.push_back(const_cast<char*>(word.c_str())); // the system's interface is not const-correct
    words.push_back(nullptr);
    posix_spawn_file_actions_t silent;
    ::posix_spawn_file_actions_init(&silent);
    for (const int output : {STDOUT_FILENO, STDERR_FILENO})
        ::posix_spawn_file_actions_addopen(&silent, output, "/dev/null", O_WRONLY, 0);
    pid_t child = 0;
    int status = 0;
    if (::posix_spawnp(&child, words[0], &silent, nullptr, words.data(), environ) == 0) ::waitpid(child, &status, 0);
    ::posix_spawn_file_actions_destroy(&silent);
}

// Repeats one intact document, since gsf stops at a document that it cannot read.
Words Over(Words command, size_t documents) {
    const std::string document = ORLO_TEST_DATA "/ole/testEXCEL-custom-props--fff0cb.xls";
    command.insert(command.end(), documents, document);
    return command;
}

void PrintAgainstGsf(const std::string& name, const Words& ours) {
    const Words gsf = {"gsf", "list"};
    const auto compare = [&](size_t documents) {
        return Compare(
            kRounds, [&] { Run(Over(ours, documents)); }, [&] { Run(Over(gsf, documents)); });
    };
    const Pair one = compare(1), many = compare(kMany);
    Print((name + "_start").c_str(), one.ratio, "times_gsf_list");
    Print((name + "_start_time").c_str(), one.seconds * 1e3, "ms");
    const double each = (many.seconds - one.seconds) / (kMany - 1);
    Print((name + "_document").c_str(), each / ((many.baseline - one.baseline) / (kMany - 1)), "times_gsf_list");
    Print((name + "_document_time").c_str(), each * 1e6, "us");
}

} // namespace

void BenchPrograms() {
    for (const char* command : {"show", "check"})
        PrintAgainstGsf(std::string("suminfo_") + command, {ORLO_SUMINFO, command});
    PrintAgainstGsf("run_suminfo", {ORLO_ROOT "/run", "suminfo", "show"});
}

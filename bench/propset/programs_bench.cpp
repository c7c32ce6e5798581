// Command-line programs: the time that suminfo and gsf need to start and show one document, and for each further one;
// the time and memory that dxfprops needs for a million entities.

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "bench/paired_timer.h"
#include "bench/propset/propset_bench.h"

namespace {

constexpr int kRounds = 41;
constexpr size_t kMany = 400;

using Words = std::vector<std::string>;

// Discards the output. Returns the most memory that the program had, in bytes.
double Run(const Words& command) {
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
    rusage used = {};
    if (::posix_spawnp(&child, words[0], &silent, nullptr, words.data(), environ) == 0)
        ::wait4(child, &status, 0, &used);
    ::posix_spawn_file_actions_destroy(&silent);
    return static_cast<double>(used.ru_maxrss) * 1024;
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

constexpr int kEntities = 1000000;

// Of ten entities, seven are lines, two are circles and one is a text.
void WriteDrawing(const std::filesystem::path& file) {
    std::ofstream out(file);
    out << "0\nSECTION\n2\nHEADER\n9\n$ACADVER\n1\nAC1015\n0\nENDSEC\n0\nSECTION\n2\nENTITIES\n";
    for (int i = 0; i < kEntities; ++i) {
        const char* kind = i % 10 < 7 ? "LINE" : i % 10 < 9 ? "CIRCLE" : "TEXT";
        out << "0\n" << kind << "\n5\n" << std::hex << 1000 + i << std::dec << "\n100\nAcDbEntity\n8\nWALLS\n";
        out << "10\n" << i % 1000 << ".125\n20\n" << i / 1000 << ".25\n30\n0.0\n";
        if (i % 10 < 7) out << "11\n" << i % 1000 + 2 << ".5\n21\n" << i / 1000 + 1 << ".75\n31\n0.0\n";
        if (i % 10 >= 7) out << "40\n2.5\n";
        if (i % 10 == 9) out << "1\nText " << i << "\n";
    }
    out << "0\nENDSEC\n0\nEOF\n";
}

// Reading is measured by listing. Setting a property of one entity reads twice, since the result is verified, and
// writes a copy.
void PrintDrawings() {
    namespace fs = std::filesystem;
    constexpr int kFewRounds = 5;
    const fs::path folder = fs::temp_directory_path() / ("orlo_bench_" + std::to_string(::getpid()));
    fs::create_directory(folder);
    const std::string drawing = folder / "drawing.dxf", changed = folder / "changed.dxf", copy = folder / "copy.dxf";
    WriteDrawing(drawing);
    const Words read = {ORLO_DXFPROPS, "list", drawing}, get = {ORLO_DXFPROPS, "get", drawing};
    const Words setOne = {ORLO_DXFPROPS, "set", drawing, "--where", "handle=3E8", "PenColor=red", "-o", changed};
    const Pair set = Compare(
        kFewRounds, [&] { Run(setOne); },
        [&] {
            Run(read);
            Run(read);
            fs::remove(copy);
            fs::copy_file(drawing, copy);
        });
    Print("dxfprops_set_one", set.ratio, "times_two_readings_and_a_copy");
    Print("dxfprops_set_one_time", set.seconds, "s");
    const Pair got = Compare(
        kFewRounds, [&] { Run(get); }, [&] { Run(read); });
    Print("dxfprops_get", got.ratio, "times_reading");
    Print("dxfprops_read_time", got.baseline, "s");
    Print("dxfprops_get_memory", Run(get) / Run(read), "times_reading");
    fs::remove_all(folder);
}

} // namespace

void BenchPrograms() {
    for (const char* command : {"show", "check"})
        PrintAgainstGsf(std::string("suminfo_") + command, {ORLO_SUMINFO, command});
    PrintAgainstGsf("run_suminfo", {ORLO_ROOT "/run", "suminfo", "show"});
    PrintDrawings();
}

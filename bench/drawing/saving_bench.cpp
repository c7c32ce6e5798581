// Opening and saving a drawing of a million entities, against opening it and copying its file: time and memory.

#include "bench/drawing/drawing_bench.h"

#include <cstdio>
#include <filesystem>
#include <string>

#include <windows.h>

#include <psapi.h>

#include "bench/paired_timer.h"
#include "drawcore/drawing.h"
#include "drawcore/dxf.h"
#include "orlo/host/property.h"
#include "orlo/host/walk.h"

namespace {

namespace fs = std::filesystem;

constexpr int kEntities = 1000000;
constexpr int kRounds = 3;

// Lines on two layers, in the format of current programs.
void WriteDrawing(const fs::path& path) {
    FILE* file = ::_wfopen(path.c_str(), L"wb");
    std::fputs("  0\nSECTION\n  2\nHEADER\n  9\n$ACADVER\n  1\nAC1015\n  0\nENDSEC\n  0\nSECTION\n  2\nENTITIES\n",
               file);
    for (int i = 0; i < kEntities; ++i)
        std::fprintf(file,
                     "  0\nLINE\n  5\n%X\n330\n1F\n100\nAcDbEntity\n  8\nL%d\n100\nAcDbLine\n 10\n%d.25\n "
                     "20\n%d.5\n 30\n0.0\n"
                     " 11\n%d.75\n 21\n1.5\n 31\n0.0\n",
                     i + 0x100, i / 1000 % 2, i, i % 1000, i + 1);
    std::fputs("  0\nENDSEC\n  0\nEOF\n", file);
    std::fclose(file);
}

DrawingStruct* Open(const fs::path& path) {
    char message[256] = "";
    DrawingStruct* drawing = ::DrawingOpenDxf(path.c_str(), nullptr, message, sizeof message);
    if (drawing == nullptr) std::printf("%s\n", message);
    return drawing;
}

void OpenAndSave(const fs::path& from, const fs::path& to, bool change) {
    DrawingStruct* drawing = Open(from);
    char message[256] = "";
    if (change)
        orlo::host::WriteProperty(*orlo::host::Members(::DrawingGetRoot(drawing)).begin(), kPropPenColor,
                                  uint32_t{255});
    if (::DrawingSaveDxf(drawing, to.c_str(), 0, nullptr, message, sizeof message) != kSaveDone)
        std::printf("%s\n", message);
    ::DrawingDispose(&drawing);
}

void OpenAndCopy(const fs::path& from, const fs::path& to) {
    DrawingStruct* drawing = Open(from);
    ::DrawingDispose(&drawing);
    ::CopyFileW(from.c_str(), to.c_str(), FALSE);
}

double PeakMemory() {
    PROCESS_MEMORY_COUNTERS counters = {};
    ::GetProcessMemoryInfo(::GetCurrentProcess(), &counters, sizeof counters);
    return static_cast<double>(counters.PeakWorkingSetSize);
}

} // namespace

void BenchSaving() {
    const fs::path from = fs::temp_directory_path() / "bench_million.dxf",
                   to = fs::temp_directory_path() / "bench_saved.dxf";
    WriteDrawing(from);
    const auto baseline = [&] { OpenAndCopy(from, to); };
    const Pair unchanged = Compare(
        kRounds, [&] { OpenAndSave(from, to, false); }, baseline);
    Print("drawing_save_unchanged", unchanged.ratio, "of_open_and_copy");
    Print("drawing_memory_unchanged", PeakMemory() / static_cast<double>(fs::file_size(from)), "of_the_file");
    const Pair changed = Compare(
        kRounds, [&] { OpenAndSave(from, to, true); }, baseline);
    Print("drawing_save_changed", changed.ratio, "of_open_and_copy");
    Print("drawing_memory_changed", PeakMemory() / static_cast<double>(fs::file_size(from)), "of_the_file");
    fs::remove(from);
    fs::remove(to);
}

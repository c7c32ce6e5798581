// Sets of 10 to 100,000 properties with a dictionary: reading, looking all of them up, writing, and how each grows.

#include <string>
#include <vector>

#include "bench/paired_timer.h"
#include "bench/propset/propset_bench.h"
#include "orlo/propset/property_set.h"
#include "tests/propset/memory_stream.h"

namespace {

constexpr GUID kFormat = {1, 2, 3, {4, 5, 6, 7, 8, 9, 10, 11}};

std::string NameOf(DWORD id) {
    return "property " + std::to_string(id);
}

void Fill(CPropertySet& set, DWORD count) {
    CPropertySection* section = set.AddSection(kFormat);
    for (DWORD id = 2; id < count + 2; ++id) {
        char text[] = "Ground floor";
        if (id % 2 == 0)
            section->Set(id, text, VT_LPSTR);
        else
            section->Set(id, &id, VT_I4);
        section->SetName(id, NameOf(id).c_str());
    }
}

// All of them by ID, by name, and their names by ID. The sum keeps the compiler from leaving it out.
DWORD LookUpAll(CPropertySection& section, const std::vector<std::string>& names) {
    DWORD sum = 0;
    CString name;
    for (DWORD id = 2; id < names.size() + 2; ++id) {
        DWORD found = 0;
        section.GetID(names[id - 2].c_str(), &found);
        section.GetName(id, name);
        sum += found + static_cast<DWORD>(name.GetLength()) + (section.Get(id) != nullptr ? 1 : 0);
    }
    return sum;
}

struct Times {
    double read, lookUp, write;
};

Times Measure(DWORD count) {
    CPropertySet set;
    Fill(set, count);
    std::vector<std::string> names;
    for (DWORD id = 2; id < count + 2; ++id)
        names.push_back(NameOf(id));
    MemoryStream stream;
    set.WriteToStream(&stream);
    const DWORD repeats = count < 1000 ? 1000 : count < 100000 ? 20 : 1;
    std::vector<double> reads, lookUps, writes;
    volatile DWORD sink = 0;
    for (int round = 0; round < 7; ++round) {
        reads.push_back(Seconds([&] {
            for (DWORD i = 0; i < repeats; ++i) {
                stream.Rewind();
                CPropertySet read;
                read.ReadFromStream(&stream);
            }
        }));
        lookUps.push_back(Seconds([&] {
            for (DWORD i = 0; i < repeats; ++i)
                sink = sink + LookUpAll(*set.GetSection(kFormat), names);
        }));
        writes.push_back(Seconds([&] {
            for (DWORD i = 0; i < repeats; ++i) {
                stream.Rewind();
                set.WriteToStream(&stream);
            }
        }));
    }
    return {Median(reads) / repeats, Median(lookUps) / repeats, Median(writes) / repeats};
}

void PrintLine(const char* what, DWORD count, double value, const char* unit) {
    Print(("propset_" + std::string(what) + "_" + std::to_string(count)).c_str(), value, unit);
}

} // namespace

void BenchGrowth() {
    Times before{};
    for (const DWORD count : {10u, 100u, 1000u, 10000u, 100000u}) {
        const Times now = Measure(count);
        PrintLine("read", count, now.read * 1e6, "us");
        PrintLine("look_up_all", count, now.lookUp * 1e6, "us");
        PrintLine("write", count, now.write * 1e6, "us");
        if (count > 10) {
            PrintLine("read_growth_to", count, now.read / before.read, "times_for_10_times_as_many");
            PrintLine("look_up_growth_to", count, now.lookUp / before.lookUp, "times_for_10_times_as_many");
            PrintLine("write_growth_to", count, now.write / before.write, "times_for_10_times_as_many");
        }
        before = now;
    }
}

// Sets of 10 to 1,000,000 properties with a dictionary: reading, looking all of them up, writing, and how each grows.

#include <algorithm>
#include <iterator>
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

// A set of so many properties, with what it takes to use it.
struct Sized {
    explicit Sized(DWORD size) : count(size), repeats(size < 10000 ? 10000 / size : 1) {
        Fill(set, count);
        for (DWORD id = 2; id < count + 2; ++id)
            names.push_back(NameOf(id));
        set.WriteToStream(&stream);
    }

    DWORD count, repeats;
    CPropertySet set;
    std::vector<std::string> names;
    MemoryStream stream;
};

void Read(Sized& sized) {
    sized.stream.Rewind();
    CPropertySet read;
    read.ReadFromStream(&sized.stream);
}

void LookUp(Sized& sized) {
    static volatile DWORD sink = 0;
    sink = sink + LookUpAll(*sized.set.GetSection(kFormat), sized.names);
}

void Write(Sized& sized) {
    sized.stream.Rewind();
    sized.set.WriteToStream(&sized.stream);
}

// Seconds of one time: the least of some, as others slow this machine down and nobody speeds it up.
double Measure(Sized& sized, void (*work)(Sized&)) {
    double least = 0;
    for (int round = 0; round < 9; ++round) {
        const double seconds = Seconds([&] {
            for (DWORD i = 0; i < sized.repeats; ++i)
                work(sized);
        });
        least = round == 0 ? seconds : std::min(least, seconds);
    }
    return least / sized.repeats;
}

} // namespace

// The last step shows whether time goes on growing faster than the set, or did so only where the set left the
// processor's caches.
void BenchGrowth() {
    constexpr struct {
        const char* name;
        void (*work)(Sized&);
    } works[] = {{"read", Read}, {"look_up_all", LookUp}, {"write", Write}};
    double before[std::size(works)] = {};
    for (const DWORD count : {10u, 100u, 1000u, 10000u, 100000u, 1000000u}) {
        Sized sized(count);
        for (size_t i = 0; i < std::size(works); ++i) {
            const double now = Measure(sized, works[i].work);
            const std::string line = "propset_" + std::string(works[i].name) + "_" + std::to_string(count);
            Print(line.c_str(), now * 1e6, "us");
            if (count > 10) Print((line + "_growth").c_str(), now / before[i], "times_for_10_times_as_many");
            before[i] = now;
        }
    }
}

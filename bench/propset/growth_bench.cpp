// Sets of 10 to 1,000,000 properties with a dictionary: growth of the time for reading, looking up and writing all of
// them. The baseline uses the list and maps of the standard library, which are affected equally by caches and
// allocator.

#include <algorithm>
#include <cstring>
#include <iterator>
#include <list>
#include <memory>
#include <string>
#include <unordered_map>
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

// Looks up all properties by ID and by name, and all names by ID. Returns a sum so that the compiler does not remove
// the loop.
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

constexpr size_t kValueSize = 20; // of a type and a text

// The same number of objects with one block each, and their names.
class PlainSet {
public:
    explicit PlainSet(const std::vector<std::string>& names) {
        for (const std::string& name : names) {
            const auto id = static_cast<DWORD>(places_.size()) + 2;
            auto block = std::make_unique<uint8_t[]>(kValueSize);
            std::memset(block.get(), 1, kValueSize);
            values_.push_back({id, std::move(block)});
            places_.emplace(id, std::prev(values_.end()));
            ids_.emplace(name, id);
            names_.emplace(id, name);
        }
    }

    DWORD LookUpAll(const std::vector<std::string>& names) const {
        DWORD sum = 0;
        for (const std::string& name : names) {
            const DWORD id = ids_.find(name)->second;
            sum += static_cast<DWORD>(names_.find(id)->second.size()) + places_.find(id)->second->block[0];
        }
        return sum;
    }

    void Write(std::vector<uint8_t>& stream) const {
        std::vector<uint8_t> image;
        for (const Value& value : values_)
            image.insert(image.end(), value.block.get(), value.block.get() + kValueSize);
        for (const auto& [name, id] : ids_)
            image.insert(image.end(), name.begin(), name.end());
        stream.resize(image.size());
        std::memcpy(stream.data(), image.data(), image.size());
    }

private:
    struct Value {
        DWORD id;
        std::unique_ptr<uint8_t[]> block;
    };
    std::list<Value> values_;
    std::unordered_map<DWORD, std::list<Value>::const_iterator> places_;
    std::unordered_map<std::string, DWORD> ids_;
    std::unordered_map<DWORD, std::string> names_;
};

std::vector<std::string> NamesOf(DWORD count) {
    std::vector<std::string> names;
    for (DWORD id = 2; id < count + 2; ++id)
        names.push_back(NameOf(id));
    return names;
}

// A set of that many properties, with the data to use it.
struct Sized {
    explicit Sized(DWORD size)
        : count(size), repeats(size < 10000 ? 10000 / size : 1), names(NamesOf(size)), plain(names) {
        Fill(set, count);
        set.WriteToStream(&stream);
    }

    DWORD count, repeats;
    CPropertySet set;
    std::vector<std::string> names;
    MemoryStream stream;
    PlainSet plain;
    std::vector<uint8_t> plainStream;
};

void Read(Sized& sized) {
    sized.stream.Rewind();
    CPropertySet read;
    read.ReadFromStream(&sized.stream);
}

void ReadPlain(Sized& sized) {
    const PlainSet read(sized.names);
}

volatile DWORD sink = 0;

void LookUp(Sized& sized) {
    sink = sink + LookUpAll(*sized.set.GetSection(kFormat), sized.names);
}

void Write(Sized& sized) {
    sized.stream.Rewind();
    sized.set.WriteToStream(&sized.stream);
}

void LookUpPlain(Sized& sized) {
    sink = sink + sized.plain.LookUpAll(sized.names);
}

void WritePlain(Sized& sized) {
    sized.plain.Write(sized.plainStream);
}

// Returns the minimum of several measurements, since other processes can only slow it down.
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

// The last step shows whether time always grows faster than the set, or only when the set exceeds the processor's
// caches.
void BenchGrowth() {
    constexpr struct {
        const char* name;
        void (*work)(Sized&);
        void (*baseline)(Sized&);
    } works[] = {{"read", Read, ReadPlain}, {"look_up_all", LookUp, LookUpPlain}, {"write", Write, WritePlain}};
    Pair before[std::size(works)] = {};
    for (const DWORD count : {10u, 100u, 1000u, 10000u, 100000u, 1000000u}) {
        Sized sized(count);
        for (size_t i = 0; i < std::size(works); ++i) {
            const double own = Measure(sized, works[i].work), base = Measure(sized, works[i].baseline);
            const std::string line = "propset_" + std::string(works[i].name) + "_" + std::to_string(count);
            Print(line.c_str(), own * 1e6, "us");
            const Pair now = {own / base, own, base};
            if (count > 10) PrintGrowth(line, before[i], now);
            before[i] = now;
        }
    }
}

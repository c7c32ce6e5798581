// bench_propset_system [system]: reads and writes real summaries with the library and with the system's property
// storage, by size. Uses only summaries that the system can read: it fails on vectors of texts.

#include <ole2.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "bench/paired_timer.h"
#include "orlo/propset/inspect/set_image.h"
#include "orlo/propset/property_set.h"
#include "tests/propset/corpus.h"

namespace {

constexpr GUID kSummary = {0xF29F85E0, 0x4FF9, 0x1068, {0xAB, 0x91, 0x08, 0x00, 0x2B, 0x27, 0xB3, 0xD9}};

struct Release {
    void operator()(IUnknown* object) const { object->Release(); }
};
template <class Interface>
using Com = std::unique_ptr<Interface, Release>;

// One summary in the representation of each side. The stream is in memory, so that the set is measured rather than the
// compound file.
struct Sample {
    ~Sample() {
        for (PROPVARIANT& value : values)
            ::PropVariantClear(&value);
    }
    size_t size = 0;
    Com<IStream> stream;
    CPropertySet set;
    std::vector<PROPSPEC> ids;
    std::vector<PROPVARIANT> values;
};

bool IsReadableBySystem(const std::vector<uint8_t>& bytes) {
    std::vector<orlo::Finding> findings;
    const auto image = orlo::ReadSetImage(bytes.data(), bytes.size(), findings);
    if (!image || image->Find(kSummary) == nullptr) return false;
    for (const auto& property : image->Find(kSummary)->properties)
        if (property.type & VT_VECTOR) return false;
    return true;
}

Com<IStream> MemoryStream() {
    IStream* stream = nullptr;
    ::CreateStreamOnHGlobal(nullptr, TRUE, &stream);
    return Com<IStream>(stream);
}

void Rewind(IStream* stream) {
    LARGE_INTEGER start;
    start.QuadPart = 0;
    stream->Seek(start, STREAM_SEEK_SET, nullptr);
}

// Reads the set and accesses every value.
void ReadByUs(Sample& sample) {
    Rewind(sample.stream.get());
    CPropertySet set;
    set.ReadFromStream(sample.stream.get());
    CObList* properties = set.GetSection(kSummary)->GetList();
    for (POSITION next = properties->GetHeadPosition(); next != nullptr;)
        static_cast<CProperty*>(properties->GetNext(next))->Get();
}

Com<IPropertyStorage> Open(Sample& sample) {
    Rewind(sample.stream.get());
    IPropertyStorage* properties = nullptr;
    ::StgOpenPropStg(sample.stream.get(), kSummary, PROPSETFLAG_DEFAULT, 0, &properties);
    return Com<IPropertyStorage>(properties);
}

void ReadBySystem(Sample& sample) {
    const Com<IPropertyStorage> properties = Open(sample);
    std::vector<PROPVARIANT> values(sample.ids.size());
    properties->ReadMultiple(static_cast<ULONG>(values.size()), sample.ids.data(), values.data());
    for (PROPVARIANT& value : values)
        ::PropVariantClear(&value);
}

void WriteByUs(Sample& sample) {
    sample.set.WriteToStream(MemoryStream().get());
}

void WriteBySystem(Sample& sample) {
    const Com<IStream> stream = MemoryStream();
    IPropertyStorage* storage = nullptr;
    ::StgCreatePropStg(stream.get(), kSummary, nullptr, PROPSETFLAG_ANSI, 0, &storage);
    const Com<IPropertyStorage> properties(storage);
    properties->WriteMultiple(static_cast<ULONG>(sample.ids.size()), sample.ids.data(), sample.values.data(), 2);
    properties->Commit(STGC_DEFAULT);
}

// Returns null if the system cannot read the summary.
std::unique_ptr<Sample> MakeSample(const std::vector<uint8_t>& bytes) {
    auto sample = std::make_unique<Sample>();
    sample->size = bytes.size();
    sample->stream = MemoryStream();
    sample->stream->Write(bytes.data(), static_cast<ULONG>(bytes.size()), nullptr);
    Rewind(sample->stream.get());
    sample->set.ReadFromStream(sample->stream.get());
    const Com<IPropertyStorage> properties = Open(*sample);
    IEnumSTATPROPSTG* all = nullptr;
    if (!properties || FAILED(properties->Enum(&all))) return nullptr;
    const Com<IEnumSTATPROPSTG> owned(all);
    for (STATPROPSTG found; all->Next(1, &found, nullptr) == S_OK;) {
        ::CoTaskMemFree(found.lpwstrName);
        PROPSPEC id;
        id.ulKind = PRSPEC_PROPID;
        id.propid = found.propid;
        sample->ids.push_back(id);
    }
    sample->values.resize(sample->ids.size());
    properties->ReadMultiple(static_cast<ULONG>(sample->ids.size()), sample->ids.data(), sample->values.data());
    return sample;
}

} // namespace

int main(int argc, char** argv) {
    const auto isMine = [](const char* name) { return std::strcmp(name, "system") == 0; };
    if (argc > 1 && std::none_of(argv + 1, argv + argc, isMine)) return 0;
    ::OleInitialize(nullptr);
    std::vector<std::unique_ptr<Sample>> all;
    for (const CorpusStream& stream : AllCorpusStreams()) {
        const std::vector<uint8_t> bytes = stream.Content();
        if (stream.manifest["stream"] != "\\005SummaryInformation" || stream.manifest["class"] != "well-formed" ||
            !IsReadableBySystem(bytes))
            continue;
        if (auto sample = MakeSample(bytes)) all.push_back(std::move(sample));
    }

    const struct {
        const char* name;
        size_t from, to;
    } classes[] = {{"to_512", 0, 513}, {"to_4095", 513, 4096}, {"4096", 4096, 4097}, {"above", 4097, SIZE_MAX}};
    double logarithms = 0;
    int measured = 0;
    for (const auto& size : classes) {
        std::vector<Sample*> samples;
        for (const auto& sample : all)
            if (sample->size >= size.from && sample->size < size.to) samples.push_back(sample.get());
        if (samples.empty()) continue;
        const auto over = [&samples](void (*work)(Sample&)) {
            return [&samples, work] {
                for (Sample* sample : samples)
                    work(*sample);
            };
        };
        const auto print = [&](const char* what, void (*ours)(Sample&), void (*theirs)(Sample&)) {
            const double faster = 1 / Compare(101, over(ours), over(theirs)).ratio;
            Print((std::string("propset_") + what + "_summary_" + size.name).c_str(), faster,
                  "times_as_fast_as_the_system");
            logarithms += std::log(faster);
            ++measured;
        };
        print("read", ReadByUs, ReadBySystem);
        print("write", WriteByUs, WriteBySystem);
    }
    if (measured > 0) Print("propset_summary_mean", std::exp(logarithms / measured), "times_as_fast_as_the_system");
}

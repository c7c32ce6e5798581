// bench_propset_system [system]: reads real summaries out of compound files by the library and by the system's own property
// storage, by size class. Only those that the system can read: it fails on vectors of texts.

#include <ole2.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "bench/paired_timer.h"
#include "orlo/propset/property_set.h"
#include "orlo/propset/set_image.h"
#include "tests/propset/corpus.h"

namespace {

constexpr GUID kSummary = {0xF29F85E0, 0x4FF9, 0x1068, {0xAB, 0x91, 0x08, 0x00, 0x2B, 0x27, 0xB3, 0xD9}};
const wchar_t* const kStreamName = L"\005SummaryInformation";
constexpr DWORD kMode = STGM_READWRITE | STGM_SHARE_EXCLUSIVE;

struct Release {
    void operator()(IUnknown* object) const { object->Release(); }
};
template <class Interface>
using Com = std::unique_ptr<Interface, Release>;

// A compound file in memory with one summary.
struct Sample {
    size_t size;
    Com<IStorage> storage;
    Com<IPropertySetStorage> sets;
};

bool IsReadableBySystem(const std::vector<uint8_t>& bytes) {
    std::vector<orlo::Finding> findings;
    const auto image = orlo::ReadSetImage(bytes.data(), bytes.size(), findings);
    if (!image || image->Find(kSummary) == nullptr) return false;
    for (const auto& property : image->Find(kSummary)->properties)
        if (property.type & VT_VECTOR) return false;
    return true;
}

std::unique_ptr<Sample> MakeSample(const std::vector<uint8_t>& bytes) {
    auto sample = std::make_unique<Sample>();
    sample->size = bytes.size();
    ILockBytes* memory = nullptr;
    IStorage* storage = nullptr;
    IStream* stream = nullptr;
    void* sets = nullptr;
    ::CreateILockBytesOnHGlobal(nullptr, TRUE, &memory);
    const Com<ILockBytes> ownedMemory(memory);
    ::StgCreateDocfileOnILockBytes(memory, kMode | STGM_CREATE, 0, &storage);
    sample->storage.reset(storage);
    storage->CreateStream(kStreamName, kMode | STGM_CREATE, 0, 0, &stream);
    stream->Write(bytes.data(), static_cast<ULONG>(bytes.size()), nullptr);
    stream->Release();
    storage->QueryInterface(IID_IPropertySetStorage, &sets);
    sample->sets.reset(static_cast<IPropertySetStorage*>(sets));
    return sample;
}

// Every property's value, touched.
size_t ReadByUs(const Sample& sample) {
    IStream* stream = nullptr;
    if (FAILED(
            sample.storage->OpenStream(kStreamName, nullptr, STGM_READ | STGM_SHARE_EXCLUSIVE, 0, &stream)))
        return 0;
    const Com<IStream> owned(stream);
    CPropertySet set;
    set.ReadFromStream(stream);
    size_t count = 0;
    CPropertySection* section = set.GetSection(kSummary);
    for (POSITION next = section->GetList()->GetHeadPosition(); next != nullptr; ++count)
        static_cast<CProperty*>(section->GetList()->GetNext(next))->Get();
    return count;
}

size_t ReadBySystem(const Sample& sample) {
    IPropertyStorage* properties = nullptr;
    if (FAILED(sample.sets->Open(kSummary, STGM_READ | STGM_SHARE_EXCLUSIVE, &properties))) return 0;
    const Com<IPropertyStorage> owned(properties);
    IEnumSTATPROPSTG* all = nullptr;
    if (FAILED(properties->Enum(&all))) return 0;
    const Com<IEnumSTATPROPSTG> ownedAll(all);
    size_t count = 0;
    STATPROPSTG found;
    while (all->Next(1, &found, nullptr) == S_OK) {
        ::CoTaskMemFree(found.lpwstrName);
        PROPSPEC spec;
        spec.ulKind = PRSPEC_PROPID;
        spec.propid = found.propid;
        PROPVARIANT value{};
        properties->ReadMultiple(1, &spec, &value);
        ::PropVariantClear(&value);
        ++count;
    }
    return count;
}

} // namespace

int main(int argc, char** argv) {
    const auto isMine = [](const char* name) { return std::strcmp(name, "system") == 0; };
    if (argc > 1 && std::none_of(argv + 1, argv + argc, isMine)) return 0;
    ::OleInitialize(nullptr);
    std::vector<std::unique_ptr<Sample>> all;
    for (const CorpusStream& stream : AllCorpusStreams()) {
        const std::vector<uint8_t> bytes = stream.Content();
        if (stream.manifest["stream"] != "\\005SummaryInformation" ||
            stream.manifest["class"] != "well-formed" || !IsReadableBySystem(bytes))
            continue;
        auto sample = MakeSample(bytes);
        if (ReadBySystem(*sample) > 0) all.push_back(std::move(sample));
    }

    const struct {
        const char* name;
        size_t from, to;
    } classes[] = {
        {"to_512", 0, 513}, {"to_4095", 513, 4096}, {"4096", 4096, 4097}, {"above", 4097, SIZE_MAX}};
    double logarithms = 0;
    int measured = 0;
    for (const auto& size : classes) {
        std::vector<const Sample*> samples;
        for (const auto& sample : all)
            if (sample->size >= size.from && sample->size < size.to) samples.push_back(sample.get());
        if (samples.empty()) continue;
        const auto over = [&samples](size_t (*read)(const Sample&)) {
            return [&samples, read] {
                for (const Sample* sample : samples)
                    read(*sample);
            };
        };
        const Pair pair = Compare(21, over(ReadByUs), over(ReadBySystem));
        Print((std::string("propset_summary_") + size.name).c_str(), 1 / pair.ratio,
              "times_as_fast_as_the_system");
        logarithms += std::log(1 / pair.ratio);
        ++measured;
    }
    if (measured > 0)
        Print("propset_summary_mean", std::exp(logarithms / measured), "times_as_fast_as_the_system");
}

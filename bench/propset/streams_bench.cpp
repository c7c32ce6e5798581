// Reading and writing the streams of real documents, by size, against libgsf and against copying the bytes.

#include <gsf/gsf-doc-meta-data.h>
#include <gsf/gsf-input-memory.h>
#include <gsf/gsf-msole-utils.h>
#include <gsf/gsf-output-memory.h>
#include <gsf/gsf-utils.h>
#undef TRUE // also defined by the framework
#undef FALSE

#include <memory>
#include <string>
#include <vector>

#include "bench/paired_timer.h"
#include "bench/propset/propset_bench.h"
#include "orlo/propset/inspect/set_image.h"
#include "orlo/propset/property_set.h"
#include "tests/propset/corpus.h"
#include "tests/propset/memory_stream.h"

namespace {

constexpr int kRounds = 31;

struct ObjectUnref {
    void operator()(void* object) const { g_object_unref(object); }
};
template <class Type>
using Owned = std::unique_ptr<Type, ObjectUnref>;

// Returns null if libgsf cannot read the set.
Owned<GsfDocMetaData> GsfRead(const std::vector<uint8_t>& bytes) {
    const Owned<GsfInput> input(gsf_input_memory_new(bytes.data(), static_cast<gsf_off_t>(bytes.size()), FALSE));
    Owned<GsfDocMetaData> data(gsf_doc_meta_data_new());
    GError* error = gsf_doc_meta_data_read_from_msole(data.get(), input.get());
    if (error == nullptr) return data;
    g_error_free(error);
    return nullptr;
}

void GsfWrite(const GsfDocMetaData* data, bool isDocument) {
    const Owned<GsfOutput> output(gsf_output_memory_new());
    gsf_doc_meta_data_write_to_msole(data, output.get(), isDocument);
    gsf_output_close(output.get());
}

// One stream in the representation of each library.
struct Sample {
    std::vector<uint8_t> bytes;
    bool isDocument; // the document summary rather than the summary
    MemoryStream stream;
    CPropertySet set;
    orlo::SetImage image;
    Owned<GsfDocMetaData> gsf;
    bool isWritable; // by the library's classes
};

std::vector<std::unique_ptr<Sample>> IntactSamples() {
    std::vector<std::unique_ptr<Sample>> samples;
    for (const CorpusStream& stream : AllCorpusStreams()) {
        const std::string name = stream.manifest["stream"];
        const bool isSummary = name == "\\005SummaryInformation" || name == "\\005DocumentSummaryInformation";
        if (!isSummary || stream.manifest["class"] != "well-formed") continue;
        auto sample = std::make_unique<Sample>();
        sample->bytes = stream.Content();
        sample->isDocument = name != "\\005SummaryInformation";
        sample->stream = MemoryStream(sample->bytes);
        sample->set.ReadFromStream(&sample->stream);
        std::vector<orlo::Finding> findings;
        sample->image = *orlo::ReadSetImage(sample->bytes.data(), sample->bytes.size(), findings);
        sample->gsf = GsfRead(sample->bytes);
        MemoryStream out;
        sample->isWritable = sample->set.WriteToStream(&out);
        if (sample->gsf) samples.push_back(std::move(sample));
    }
    return samples;
}

using Samples = std::vector<Sample*>;

// Repeats the work until one measurement takes a few milliseconds.
template <class Work>
auto Repeated(const Samples& samples, Work work) {
    return [&samples, work] {
        for (size_t i = 0; i < 400; i += samples.size())
            for (Sample* sample : samples)
                work(*sample);
    };
}

void ReadSet(Sample& sample) {
    sample.stream.Rewind();
    CPropertySet set;
    set.ReadFromStream(&sample.stream);
}

void ReadImage(Sample& sample) {
    std::vector<orlo::Finding> findings;
    orlo::ReadSetImage(sample.bytes.data(), sample.bytes.size(), findings);
}

void WriteSet(Sample& sample) {
    MemoryStream out;
    sample.set.WriteToStream(&out);
}

void WriteImage(Sample& sample) {
    orlo::WriteSetImage(sample.image);
}
void GsfReadAgain(Sample& sample) {
    GsfRead(sample.bytes);
}
void GsfWriteAgain(Sample& sample) {
    GsfWrite(sample.gsf.get(), sample.isDocument);
}
void Copy(Sample& sample) {
    std::vector<uint8_t> copy(sample.bytes);
    volatile uint8_t sink = copy[copy.size() / 2];
    static_cast<void>(sink);
}

template <class Ours, class Theirs>
void PrintFaster(const std::string& name, const Samples& samples, Ours ours, Theirs theirs) {
    const Pair pair = Compare(kRounds, Repeated(samples, ours), Repeated(samples, theirs));
    Print(("propset_" + name).c_str(), 1 / pair.ratio, "times_as_fast_as_libgsf");
}

template <class Ours>
void PrintAgainstCopy(const std::string& name, const Samples& samples, Ours ours) {
    const Pair pair = Compare(kRounds, Repeated(samples, ours), Repeated(samples, Copy));
    Print(("propset_" + name).c_str(), pair.ratio, "times_a_copy");
}

void IgnoreMessage(const gchar*, GLogLevelFlags, const gchar*, gpointer) {}

} // namespace

void BenchStreams() {
    gsf_init();
    g_log_set_default_handler(IgnoreMessage, nullptr);
    const auto all = IntactSamples();
    const struct {
        const char* name;
        size_t from, to;
    } classes[] = {{"to_512", 0, 513}, {"to_4095", 513, 4096}, {"4096", 4096, 4097}, {"above", 4097, SIZE_MAX}};
    for (const auto& size : classes) {
        Samples samples, writable;
        for (const auto& sample : all) {
            if (sample->bytes.size() < size.from || sample->bytes.size() >= size.to) continue;
            samples.push_back(sample.get());
            if (sample->isWritable) writable.push_back(sample.get());
        }
        const std::string name = size.name;
        Print(("propset_streams_" + name).c_str(), static_cast<double>(samples.size()), "streams");
        if (samples.empty()) continue;
        PrintFaster("read_" + name, samples, ReadSet, GsfReadAgain);
        PrintFaster("inspect_" + name, samples, ReadImage, GsfReadAgain);
        PrintFaster("write_image_" + name, samples, WriteImage, GsfWriteAgain);
        PrintAgainstCopy("read_" + name + "_against_copy", samples, ReadSet);
        if (writable.empty()) continue;
        PrintFaster("write_" + name, writable, WriteSet, GsfWriteAgain);
        PrintAgainstCopy("write_" + name + "_against_copy", writable, WriteSet);
    }
    gsf_shutdown();
}

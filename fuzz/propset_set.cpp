// Whole streams: a set that SetImage accepts is written and read back equal; a set that the classes accept can be
// written; neither uses excessive memory or time.

#include <cstdlib>

#include "orlo/propset/inspect/set_image.h"
#include "orlo/propset/property_set.h"
#include "tests/propset/memory_stream.h"

namespace {

void Require(bool holds) {
    if (!holds) std::abort();
}

void Inspect(const uint8_t* data, size_t size) {
    std::vector<orlo::Finding> findings;
    const auto image = orlo::ReadSetImage(data, size, findings);
    Require(image || !findings.empty());
    if (!image) return;
    size_t held = 0;
    for (const auto& section : image->sections)
        for (const auto& property : section.properties) {
            held += property.bytes.size();
            orlo::Value value;
            if (!orlo::DecodeValue(property.type, property.bytes.data(), property.bytes.size(), section.codePage,
                                   value))
                continue;
            const auto encoded = orlo::EncodeValue(value, section.codePage);
            orlo::Value again;
            Require(!encoded ||
                    orlo::DecodeValue(property.type, encoded->data(), encoded->size(), section.codePage, again));
        }
    Require(held <= 5 * size);

    const auto written = orlo::WriteSetImage(*image);
    if (!written) return; // a name that can be decoded but not encoded
    const auto again = orlo::ReadSetImage(written->data(), written->size(), findings);
    Require(again && again->sections.size() == image->sections.size());
    Require(orlo::WriteSetImage(*again) == written);
}

void Load(const uint8_t* data, size_t size) {
    MemoryStream stream(std::vector<uint8_t>(data, data + size));
    CPropertySet set;
    set.ReadFromStream(&stream);
    MemoryStream out;
    if (!set.WriteToStream(&out)) return;
    out.Rewind();
    CPropertySet again;
    Require(again.ReadFromStream(&out));
    MemoryStream twice;
    Require(again.WriteToStream(&twice) && twice.Content().size() <= out.Content().size());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    Inspect(data, size);
    Load(data, size);
    return 0;
}

// Dictionaries. The first two bytes of the input are the code page of the section.

#include <cstring>

#include "orlo/propset/inspect/image_dictionary.h"
#include "orlo/propset/property_section.h"
#include "tests/propset/memory_stream.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size < 2) return 0;
    uint16_t codePage;
    std::memcpy(&codePage, data, sizeof codePage);
    data += 2;
    size -= 2;

    std::vector<orlo::Finding> findings;
    orlo::Report report(findings);
    const auto dictionary = orlo::ReadImageDictionary(data, size, codePage, 0, "dictionary", report);
    if (dictionary && dictionary->size > size) __builtin_trap();
    if (dictionary) {
        orlo::ImageWriter image;
        orlo::AppendImageDictionary(dictionary->entries, codePage, image);
    }

    CPropertySection section;
    section.Set(1, &codePage, VT_I2); // 1200 allows names of 16-bit characters
    MemoryStream stream(std::vector<uint8_t>(data, data + size));
    section.ReadNameDictFromStream(&stream);
    MemoryStream out;
    if (!section.WriteNameDictToStream(&out)) __builtin_trap();
    return 0;
}

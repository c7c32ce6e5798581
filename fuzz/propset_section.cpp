// A single section, at any offset in the list of sections.

#include <cstring>

#include "orlo/propset/property_section.h"
#include "tests/propset/memory_stream.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    constexpr size_t kOffsetAt = 44;
    if (size < kOffsetAt + 4) return 0;
    uint32_t offset;
    std::memcpy(&offset, data + kOffsetAt, sizeof offset);
    MemoryStream stream(std::vector<uint8_t>(data, data + size));
    stream.Rewind(offset % size);
    LARGE_INTEGER base;
    base.QuadPart = 0;
    CPropertySection section;
    section.ReadFromStream(&stream, base);
    for (POSITION next = section.GetList()->GetHeadPosition(); next != nullptr;) {
        auto* property = static_cast<CProperty*>(section.GetList()->GetNext(next));
        DWORD valueSize = 0;
        const auto* value = static_cast<const uint8_t*>(property->Get(&valueSize));
        for (DWORD i = 0; value != nullptr && i < valueSize; ++i)
            static_cast<void>(static_cast<const volatile uint8_t*>(value)[i]); // all bytes must be readable
        property->SetType(property->GetType() ^ VT_VECTOR);
        MemoryStream out;
        property->WriteToStream(&out);
    }
    MemoryStream out;
    section.WriteToStream(&out);
    return 0;
}

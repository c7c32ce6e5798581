// Metafile pictures: an accepted one lies inside the block and can be iterated to its end.

#include <cstdint>

#include "orlo/propset/bytes.h"
#include "orlo/summary/metafile_check.h"

namespace {

void Check(const uint8_t* data, size_t size) {
    const auto picture = orlo::ReadMetaFilePicture(data, size);
    if (!picture) return;
    if (picture->xExtent <= 0 || picture->yExtent <= 0) __builtin_trap();
    if (picture->bits < data || picture->size > static_cast<size_t>(data + size - picture->bits)) __builtin_trap();
    if (picture->end > picture->size) __builtin_trap();
    for (size_t at = 18; at != picture->end;) {
        at += size_t{2} * orlo::LittleEndian<uint32_t>(picture->bits + at);
        if (at > picture->end) __builtin_trap();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    Check(data, size);
    // The value of a thumbnail begins with tag and format.
    constexpr size_t kHead = 8;
    if (size > kHead) Check(data + kHead, size - kHead);
    return 0;
}

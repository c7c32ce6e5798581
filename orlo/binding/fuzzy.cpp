// Compares numbers by buckets of bit patterns.

#include "orlo/binding/fuzzy.h"

#include <cstdint>
#include <cstring>

namespace {

constexpr uint32_t kSign = 0x80000000u;

// Constants of a floating-point format, for the word that contains sign and exponent.
struct Layout {
    uint32_t half;        // added before the low bits are dropped; rounds exact halves down
    uint32_t keep;        // mask of the exponent and the top 16 fraction bits
    uint32_t farFromZero; // values with any of these bits are not nearly zero
};

constexpr Layout kDouble = {0x7, 0x7FFFFFF0, 0x7FFFFFF8}; // for the high word
constexpr Layout kFloat = {0x3F, 0x7FFFFF80, 0x7FFFFFC0};

uint32_t HighWord(const double* value) {
    uint64_t bits;
    std::memcpy(&bits, value, sizeof bits);
    return static_cast<uint32_t>(bits >> 32);
}

uint32_t Bits(const float* value) {
    uint32_t bits;
    std::memcpy(&bits, value, sizeof bits);
    return bits;
}

int CompareWords(uint32_t a, uint32_t b, const Layout& layout) {
    const bool negative = (a & kSign) != 0;
    if ((a ^ b) & kSign) {
        if (((a | b) & layout.farFromZero) == 0) return 0;
        return negative ? -1 : 1;
    }
    const uint32_t bucketA = (a + layout.half) & layout.keep;
    const uint32_t bucketB = (b + layout.half) & layout.keep;
    if (bucketA == bucketB) return 0;
    return (bucketA > bucketB) != negative ? 1 : -1;
}

} // namespace

int CompareDoubles(const double* a, const double* b) {
    return CompareWords(HighWord(a), HighWord(b), kDouble);
}

int CompareFloats(const float* a, const float* b) {
    return CompareWords(Bits(a), Bits(b), kFloat);
}

void DWord_to_Hex(unsigned long value, char* out) {
    for (int shift = 28; shift >= 0; shift -= 4)
        *out++ = "0123456789ABCDEF"[(value >> shift) & 0xF];
    *out = '\0';
}

// SHA-256 of bytes as hexadecimal text, for comparing large values by what a manifest says of them.
#pragma once

#include <array>
#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

inline std::string Sha256(std::vector<uint8_t> bytes) {
    // The first 32 bits of the fractional parts of the cube roots of the first 64 primes.
    static constexpr uint32_t kRound[64] = {
        0x428a2f98, 0x71374491, 0xb5c0fbcf, 0xe9b5dba5, 0x3956c25b, 0x59f111f1, 0x923f82a4, 0xab1c5ed5,
        0xd807aa98, 0x12835b01, 0x243185be, 0x550c7dc3, 0x72be5d74, 0x80deb1fe, 0x9bdc06a7, 0xc19bf174,
        0xe49b69c1, 0xefbe4786, 0x0fc19dc6, 0x240ca1cc, 0x2de92c6f, 0x4a7484aa, 0x5cb0a9dc, 0x76f988da,
        0x983e5152, 0xa831c66d, 0xb00327c8, 0xbf597fc7, 0xc6e00bf3, 0xd5a79147, 0x06ca6351, 0x14292967,
        0x27b70a85, 0x2e1b2138, 0x4d2c6dfc, 0x53380d13, 0x650a7354, 0x766a0abb, 0x81c2c92e, 0x92722c85,
        0xa2bfe8a1, 0xa81a664b, 0xc24b8b70, 0xc76c51a3, 0xd192e819, 0xd6990624, 0xf40e3585, 0x106aa070,
        0x19a4c116, 0x1e376c08, 0x2748774c, 0x34b0bcb5, 0x391c0cb3, 0x4ed8aa4a, 0x5b9cca4f, 0x682e6ff3,
        0x748f82ee, 0x78a5636f, 0x84c87814, 0x8cc70208, 0x90befffa, 0xa4506ceb, 0xbef9a3f7, 0xc67178f2};
    std::array<uint32_t, 8> state = {0x6a09e667, 0xbb67ae85, 0x3c6ef372, 0xa54ff53a,
                                     0x510e527f, 0x9b05688c, 0x1f83d9ab, 0x5be0cd19};
    const auto rotate = [](uint32_t word, int by) { return word >> by | word << (32 - by); };

    const uint64_t bits = uint64_t{bytes.size()} * 8;
    bytes.push_back(0x80);
    bytes.resize((bytes.size() + 8 + 63) / 64 * 64);
    for (size_t i = 0; i < 8; ++i)
        bytes[bytes.size() - 1 - i] = static_cast<uint8_t>(bits >> (8 * i));

    for (size_t block = 0; block < bytes.size(); block += 64) {
        uint32_t w[64];
        for (size_t i = 0; i < 16; ++i) {
            const uint8_t* at = &bytes[block + 4 * i];
            w[i] = uint32_t{at[0]} << 24 | uint32_t{at[1]} << 16 | uint32_t{at[2]} << 8 | at[3];
        }
        for (size_t i = 16; i < 64; ++i)
            w[i] = w[i - 16] + (rotate(w[i - 15], 7) ^ rotate(w[i - 15], 18) ^ w[i - 15] >> 3) + w[i - 7] +
                   (rotate(w[i - 2], 17) ^ rotate(w[i - 2], 19) ^ w[i - 2] >> 10);
        auto [a, b, c, d, e, f, g, h] = state;
        for (size_t i = 0; i < 64; ++i) {
            const uint32_t first =
                h + (rotate(e, 6) ^ rotate(e, 11) ^ rotate(e, 25)) + ((e & f) ^ (~e & g)) + kRound[i] + w[i];
            const uint32_t second =
                (rotate(a, 2) ^ rotate(a, 13) ^ rotate(a, 22)) + ((a & b) ^ (a & c) ^ (b & c));
            h = g, g = f, f = e, e = d + first, d = c, c = b, b = a, a = first + second;
        }
        const uint32_t sums[8] = {a, b, c, d, e, f, g, h};
        for (size_t i = 0; i < 8; ++i)
            state[i] += sums[i];
    }
    std::string text;
    for (const uint32_t word : state) {
        char part[9];
        std::snprintf(part, sizeof part, "%08x", static_cast<unsigned>(word));
        text += part;
    }
    return text;
}

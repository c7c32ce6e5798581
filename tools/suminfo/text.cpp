// Texts made fit to be shown or compared.

#include "text.h"

#include <array>
#include <cstdio>
#include <windows.h>

#include <bcrypt.h>

#include "failure.h"
#include "orlo/win/encoded_text.h"

namespace suminfo {

std::string StreamNameShown(std::string_view name) {
    std::string shown;
    for (const char c : name) {
        if (c == '\005')
            shown += "\\005";
        else
            shown += c;
    }
    return shown;
}

bool SameName(std::string_view a, std::string_view b) {
    const std::wstring wideA = ToWide(a), wideB = ToWide(b);
    return ::CompareStringOrdinal(wideA.data(), static_cast<int>(wideA.size()), wideB.data(),
                                  static_cast<int>(wideB.size()), TRUE) == CSTR_EQUAL;
}

std::string Printable(std::string_view utf8, const char* escape) {
    std::string printable;
    for (size_t i = 0; i < utf8.size(); ++i) {
        unsigned code = static_cast<unsigned char>(utf8[i]);
        const bool endsLine = code == '\n' || code == '\r';
        // The second set of them, of two bytes.
        const bool isLong =
            code == 0xC2 && i + 1 < utf8.size() && static_cast<unsigned char>(utf8[i + 1]) < 0xA0;
        if (isLong) code = static_cast<unsigned char>(utf8[++i]);
        if (isLong || code == 0x7F || (code < 0x20 && !endsLine)) {
            char escaped[16];
            std::snprintf(escaped, sizeof escaped, escape, code);
            printable += escaped;
        } else {
            printable += utf8[i];
        }
    }
    return printable;
}

std::string OneLine(std::string_view utf8) {
    std::string line;
    for (const char c : utf8) {
        if (c == '\n')
            line += "\\n";
        else if (c == '\r')
            line += "\\r";
        else if (c == '\t')
            line += "\\t";
        else
            line += c;
    }
    return Printable(line);
}

std::string Hex(const uint8_t* bytes, size_t size) {
    constexpr char kDigits[] = "0123456789abcdef";
    std::string text;
    text.reserve(2 * size);
    for (size_t i = 0; i < size; ++i) {
        text += kDigits[bytes[i] >> 4];
        text += kDigits[bytes[i] & 0xF];
    }
    return text;
}

std::string Sha256(const std::vector<uint8_t>& bytes) {
    std::array<uint8_t, 32> hash;
    auto* data = const_cast<uint8_t*>(bytes.data()); // the system takes its input as PUCHAR
    BCRYPT_ALG_HANDLE algorithm = nullptr;
    BCRYPT_HASH_HANDLE state = nullptr;
    const bool done = ::BCryptOpenAlgorithmProvider(&algorithm, BCRYPT_SHA256_ALGORITHM, nullptr, 0) >= 0 &&
                      ::BCryptCreateHash(algorithm, &state, nullptr, 0, nullptr, 0, 0) >= 0 &&
                      ::BCryptHashData(state, data, static_cast<ULONG>(bytes.size()), 0) >= 0 &&
                      ::BCryptFinishHash(state, hash.data(), static_cast<ULONG>(hash.size()), 0) >= 0;
    if (state) ::BCryptDestroyHash(state);
    if (algorithm) ::BCryptCloseAlgorithmProvider(algorithm, 0);
    if (!done) throw Failure("the system can't make a SHA-256");
    return Hex(hash.data(), hash.size());
}

} // namespace suminfo

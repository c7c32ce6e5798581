// What the system knows of texts: which letters are the same without their case, and their hashes.

#include "text.h"

#include <array>
#include <windows.h>

#include <bcrypt.h>

#include "failure.h"
#include "wide_text.h"

namespace suminfo {

bool SameName(std::string_view a, std::string_view b) {
    const std::wstring wideA = ToWide(a), wideB = ToWide(b);
    return ::CompareStringOrdinal(wideA.data(), static_cast<int>(wideA.size()), wideB.data(),
                                  static_cast<int>(wideB.size()), TRUE) == CSTR_EQUAL;
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

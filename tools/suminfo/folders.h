// What a system says of its folders and of the files in them. Names are in UTF-8, paths may be relative.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace suminfo {

bool IsFolder(const std::string& path);
// False for what the system lists and can't look at.
bool IsThere(const std::string& path);
// True for a compound file, and for a file that can't be read: the work on it says why it fails.
bool MayBeDocument(const std::string& path);
// True if a name can follow as it is.
bool EndsPath(const std::string& path);

// Whatever is in a folder, in any order; nothing if it can't be listed.
std::optional<std::vector<std::string>> NamesIn(const std::string& folder);

// Numbers that a file, or a folder, shares with no other.
using FileIdentity = std::array<uint64_t, 4>;
// Nothing if the system doesn't know them.
std::optional<FileIdentity> IdentityOf(const std::string& path);

} // namespace suminfo

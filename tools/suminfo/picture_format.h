// Whose clipboard format the picture of a summary has, and which.
#pragma once

#include <cstdint>

namespace suminfo {

// Tags.
constexpr int32_t kOfWindows = -1;
constexpr int32_t kOfMacintosh = -2;

// Formats of Windows.
constexpr uint32_t kMetafilePicture = 3;
constexpr uint32_t kBitmap = 8;
constexpr uint32_t kEnhancedMetafile = 14;

} // namespace suminfo

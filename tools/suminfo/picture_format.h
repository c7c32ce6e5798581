// Tags and clipboard formats of thumbnails.
#pragma once

#include <cstdint>

namespace suminfo {

// Tags.
constexpr int32_t kOfWindows = -1;
constexpr int32_t kOfMacintosh = -2;

// Windows formats.
constexpr uint32_t kMetafilePicture = 3;
constexpr uint32_t kBitmap = 8;
constexpr uint32_t kEnhancedMetafile = 14;

} // namespace suminfo

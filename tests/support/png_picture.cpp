// Reads PNG files with stb.

#include "png_picture.h"

#include "file_bytes.h"

#define STB_IMAGE_IMPLEMENTATION
#define STBI_ONLY_PNG
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wunused-function"
#include <stb/stb_image.h>
#pragma GCC diagnostic pop

PngPicture ReadPng(const std::filesystem::path& file) {
    PngPicture picture;
    const std::vector<uint8_t> bytes = FileBytes(file);
    stbi_uc* pixels = stbi_load_from_memory(bytes.data(), static_cast<int>(bytes.size()), &picture.width,
                                            &picture.height, nullptr, 3);
    if (!pixels) return {};
    picture.colors.assign(pixels, pixels + 3 * picture.width * picture.height);
    stbi_image_free(pixels);
    return picture;
}

// Saves screenshots as PNG files.

#include "demo/tour/screenshot.h"

#include <stdexcept>
#include <vector>

#include "demo/viewer/memory_picture.h"

#if defined(__GNUC__)
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wmissing-field-initializers"
#endif
#define STB_IMAGE_WRITE_IMPLEMENTATION
#define STB_IMAGE_WRITE_STATIC
#include <stb/stb_image_write.h>
#if defined(__GNUC__)
#pragma GCC diagnostic pop
#endif

void SaveScreenshot(const RECT& area, const std::string& path) {
    const CRect rect(area);
    MemoryPicture picture;
    if (rect.IsRectEmpty() || !picture.Resize(rect.Size()))
        throw std::runtime_error("cannot create a bitmap of that size");
    const orlo::WindowDC screen(nullptr);
    if (!::BitBlt(picture.Dc(), 0, 0, rect.Width(), rect.Height(), screen.get(), rect.left, rect.top, SRCCOPY))
        throw std::runtime_error("the screen cannot be read");

    std::vector<uint8_t> rgb;
    rgb.reserve(static_cast<size_t>(rect.Width()) * rect.Height() * 3);
    for (int y = 0; y < rect.Height(); ++y) {
        const uint32_t* row = picture.Row(y);
        for (int x = 0; x < rect.Width(); ++x) {
            for (int shift : {16, 8, 0})
                rgb.push_back(static_cast<uint8_t>(row[x] >> shift));
        }
    }
    if (!::stbi_write_png(path.c_str(), rect.Width(), rect.Height(), 3, rgb.data(), rect.Width() * 3))
        throw std::runtime_error(path + " cannot be written");
}

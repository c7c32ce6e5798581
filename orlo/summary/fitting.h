// Fits a picture into a rectangle, preserving its aspect ratio.
#pragma once

namespace orlo {

struct Place {
    int left, top, width, height;
};

// Returns the largest centered part of the target with the aspect ratio of the source. Computed in double because
// products of two extents exceed 32 bits.
inline Place Fitted(const Place& target, double sourceWidth, double sourceHeight) {
    Place place = target;
    const double across = target.width * sourceHeight;
    const double down = target.height * sourceWidth;
    if (down > across) {
        place.height = static_cast<int>(across / sourceWidth);
        place.top += (target.height - place.height) / 2;
    } else if (down < across) {
        place.width = static_cast<int>(down / sourceHeight);
        place.left += (target.width - place.width) / 2;
    }
    return place;
}

} // namespace orlo

// Where a picture goes that keeps its proportions.
#pragma once

namespace orlo {

struct Place {
    int left, top, width, height;
};

// The target, or the largest part in its middle that has the proportions of the source. Products of two extents
// don't fit 32 bits.
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

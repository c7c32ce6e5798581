// Selects fonts and outputs rows of text.
#include "drawcore/src/paint/text_output.h"

#include <cmath>
#include <cstring>

namespace drawcore {

namespace {

// Returns the directions of a row in font units. Rows with the same direction and size share the transformation.
XFORM Directions(const TextRow& row) {
    const double unit = 1.0 / row.face->CapitalHeight(); // y points down in the font, up in the row
    const auto& m = row.matrix.at;
    return {static_cast<FLOAT>(m[0][0] * unit),
            static_cast<FLOAT>(m[0][1] * unit),
            static_cast<FLOAT>(-m[1][0] * unit),
            static_cast<FLOAT>(-m[1][1] * unit),
            0,
            0};
}

// Gets the start of the row in font units, rounded to its pixel, so that a picture shifted by whole pixels equals a
// redrawn one. If a font unit is larger than a pixel, the position is part of the transformation. Returns false if the
// row is seen edge-on or is too far away for the device.
bool Place(const TextRow& row, XFORM& form, POINT& position) {
    const double x = std::floor(row.matrix.at[3][0] + 0.5), y = std::floor(row.matrix.at[3][1] + 0.5);
    const double determinant = static_cast<double>(form.eM11) * form.eM22 - static_cast<double>(form.eM12) * form.eM21;
    const double px = (x * form.eM22 - y * form.eM21) / determinant, py = (y * form.eM11 - x * form.eM12) / determinant;
    constexpr double kFarthest = 1 << 26; // limit of device coordinates
    if (!(std::fabs(px) < kFarthest && std::fabs(py) < kFarthest)) return false;
    position = {static_cast<LONG>(std::lround(px)), static_cast<LONG>(std::lround(py))};
    const auto side = [](FLOAT a, FLOAT b) { return std::fabs(a) + std::fabs(b); };
    constexpr FLOAT kMaxPixels = 0.9f; // rounding a unit is then less than half a pixel
    if (side(form.eM11, form.eM21) > kMaxPixels || side(form.eM12, form.eM22) > kMaxPixels) {
        position = {};
        form.eDx = static_cast<FLOAT>(x);
        form.eDy = static_cast<FLOAT>(y);
    }
    return true;
}

} // namespace

void TextOutput::Begin() {
    mode_ = ::SetGraphicsMode(dc_, GM_ADVANCED);
    ::GetWorldTransform(dc_, &before_);
    form_ = {};
    ::SetTextAlign(dc_, TA_LEFT | TA_BASELINE);
    open_ = true;
}

void TextOutput::Draw(const TextRow& row, Color color) {
    XFORM form = Directions(row);
    POINT at;
    if (!Place(row, form, at)) return;
    if (!open_) Begin();
    if (std::memcmp(&form, &form_, sizeof form) != 0) {
        XFORM combined;
        ::CombineTransform(&combined, &form, &before_);
        ::SetWorldTransform(dc_, &combined);
        form_ = form;
    }
    if (::GetCurrentObject(dc_, OBJ_FONT) != row.face->Font()) ::SelectObject(dc_, row.face->Font());
    ::SetTextColor(dc_, color);
    if (row.runs->empty())
        ::ExtTextOutW(dc_, at.x, at.y, 0, nullptr, row.text.data(), static_cast<UINT>(row.text.size()), row.steps);
    else
        row.face->Draw(dc_, *row.runs, at);
}

void TextOutput::End() {
    if (!open_) return;
    open_ = false;
    ::SetWorldTransform(dc_, &before_);
    ::SetGraphicsMode(dc_, mode_);
}

} // namespace drawcore

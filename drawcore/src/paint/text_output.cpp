// Fonts for rows of one size, and their output.
#include "drawcore/src/paint/text_output.h"

#include <cmath>
#include <cstring>

namespace drawcore {

namespace {

// The directions of a row in units of its font: rows of one direction and size share the transform.
XFORM Directions(const TextRow& row) {
    const double unit = 1.0 / row.face->CapitalHeight(); // the font's y goes down, the row's up
    const auto& m = row.matrix.at;
    return {static_cast<FLOAT>(m[0][0] * unit),
            static_cast<FLOAT>(m[0][1] * unit),
            static_cast<FLOAT>(-m[1][0] * unit),
            static_cast<FLOAT>(-m[1][1] * unit),
            0,
            0};
}

// Where the row begins: a position in units of its font, rounded to the pixel that it is in, so that a picture that is
// moved by whole pixels does not differ from one that is drawn there. Where such a unit is larger than a pixel the
// transform takes the position instead. False if the row is seen from its edge, or too far away for the device.
bool Place(const TextRow& row, XFORM& form, POINT& position) {
    const double x = std::floor(row.matrix.at[3][0] + 0.5), y = std::floor(row.matrix.at[3][1] + 0.5);
    const double turn = static_cast<double>(form.eM11) * form.eM22 - static_cast<double>(form.eM12) * form.eM21;
    const double px = (x * form.eM22 - y * form.eM21) / turn, py = (y * form.eM11 - x * form.eM12) / turn;
    constexpr double kFarthest = 1 << 26; // what the device counts to
    if (!(std::fabs(px) < kFarthest && std::fabs(py) < kFarthest)) return false;
    position = {static_cast<LONG>(std::lround(px)), static_cast<LONG>(std::lround(py))};
    const auto side = [](FLOAT a, FLOAT b) { return std::fabs(a) + std::fabs(b); };
    constexpr FLOAT kMostPixels = 0.9f; // a unit rounded away is less than half a pixel then
    if (side(form.eM11, form.eM21) > kMostPixels || side(form.eM12, form.eM22) > kMostPixels) {
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
        XFORM whole;
        ::CombineTransform(&whole, &form, &before_);
        ::SetWorldTransform(dc_, &whole);
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

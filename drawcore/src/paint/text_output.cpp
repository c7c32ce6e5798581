// Fonts for rows of one size, and their output.
#include "drawcore/src/paint/text_output.h"

#include <cmath>
#include <cstring>

namespace drawcore {

namespace {

// The directions of a row in units of its font; its position is given with each row.
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

// The row's position in units of its font; false if the row is seen from its edge, or too far away for the device.
bool Position(const TextRow& row, const XFORM& form, POINT& position) {
    const double x = row.matrix.at[3][0], y = row.matrix.at[3][1];
    const double turn =
        static_cast<double>(form.eM11) * form.eM22 - static_cast<double>(form.eM12) * form.eM21;
    const double px = (x * form.eM22 - y * form.eM21) / turn, py = (y * form.eM11 - x * form.eM12) / turn;
    constexpr double kFarthest = 1 << 26; // what the device counts to
    if (!(std::fabs(px) < kFarthest && std::fabs(py) < kFarthest)) return false;
    position = {static_cast<LONG>(std::lround(px)), static_cast<LONG>(std::lround(py))};
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
    const XFORM form = Directions(row);
    POINT at;
    if (!Position(row, form, at)) return;
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
        ::ExtTextOutW(dc_, at.x, at.y, 0, nullptr, row.text.data(), static_cast<UINT>(row.text.size()),
                      row.steps);
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

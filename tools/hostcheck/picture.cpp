// Pictures that the database draws, measured by the nearest of five colors.

#include "picture.h"

namespace {

Ink InkOf(uint32_t pixel) { // 0x00rrggbb
    const int red = pixel >> 16 & 0xFF, green = pixel >> 8 & 0xFF, blue = pixel & 0xFF;
    const int most = std::max({red, green, blue}), least = std::min({red, green, blue});
    if (most - least < 64) return most >= 128 ? Ink::None : Ink::Black;
    if (most == red) return Ink::Red;
    return most == green ? Ink::Green : Ink::Blue;
}

} // namespace

Picture::Picture() : dc(::CreateCompatibleDC(nullptr)) {
    BITMAPINFO info = {};
    info.bmiHeader = {sizeof info.bmiHeader, kWidth, -kHeight, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* bits = nullptr;
    bitmap_ = ::CreateDIBSection(dc, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    if (!bitmap_) throw std::bad_alloc();
    pixels_ = static_cast<const uint32_t*>(bits);
    previous_ = ::SelectObject(dc, bitmap_);
    Clear();
}

Picture::~Picture() {
    ::SelectObject(dc, previous_);
    ::DeleteObject(bitmap_);
    ::DeleteDC(dc);
}

void Picture::Clear() {
    ::PatBlt(dc, 0, 0, kWidth, kHeight, WHITENESS);
}

Measure Picture::Of(Ink ink, const RECT& in) const {
    ::GdiFlush();
    Measure measure;
    RECT& bounds = measure.bounds;
    for (LONG y = in.top; y < in.bottom; ++y) {
        for (LONG x = in.left; x < in.right; ++x) {
            const uint32_t pixel = pixels_[y * kWidth + x] & 0xFFFFFF;
            if (ink == Ink::None ? pixel == 0xFFFFFF : InkOf(pixel) != ink) continue;
            ++measure.count;
            measure.centerX += x;
            measure.centerY += y;
            bounds = {std::min(bounds.left, x), std::min(bounds.top, y), std::max(bounds.right, x),
                      std::max(bounds.bottom, y)};
        }
    }
    measure.centerX /= std::max(measure.count, 1);
    measure.centerY /= std::max(measure.count, 1);
    return measure;
}

Scene::Scene(const Subject& s) : subject_(s), viewport_(s.NewViewport()), shown_(s.NewSquare(10)) {
    SetPlainAppearance(s, shown_.get());
    RequireNoStub(Draw(shown_.get()).picture.Of().count > 0, "GraphicDrawEx2");
    picture.Clear();
}

Scene& Scene::Draw(GraphicStruct* graphic, const MatrixStruct* matrix, int preview) {
    const Host& host = subject_.host;
    CALL(host, ViewportSetRect)(viewport_.get(), &kRect);
    CALL(host, ViewportSetExtents)(viewport_.get(), CALL(host, GraphicGetExtentsSel)(shown_.get(), 0), kFitWhole);
    CALL(host, ViewportSetGDIStuff)(viewport_.get(), nullptr, picture.dc, MM_TEXT, 1);
    CALL(host, ViewportSetDrawing)(viewport_.get(), subject_.Drawing());
    CALL(host, GraphicDrawEx2)(graphic, matrix, viewport_.get(), preview, 1);
    return *this;
}

RECT Scene::Area(double left, double bottom, double right, double top) {
    constexpr double kLeft = (kRect.left + kRect.right) / 2.0 - 5 * kUnit;
    const auto pixel = [](double place) { return static_cast<LONG>(place); };
    return {pixel(kLeft + left * kUnit), pixel(kRect.bottom - top * kUnit), pixel(kLeft + right * kUnit),
            pixel(kRect.bottom - bottom * kUnit)};
}

void SetPlainAppearance(const Subject& s, GraphicStruct* graphic) {
    CALL(s.host, GraphicSetPenColor)(graphic, RGB(0, 0, 0));
    const auto styles = s.Entries(s.Table(kTableLineStyles));
    if (!styles.empty()) CALL(s.host, GraphicSetPenStyle)(graphic, styles[0]);
    CALL(s.host, GraphicSetBrushStyle)(graphic, kBrushStyleNone);
}

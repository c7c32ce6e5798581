// Pens, brushes and paths of the device context.
#include "drawcore/src/paint/gdi_painter.h"

#include <algorithm>
#include <cmath>
#include <tuple>

#include "drawcore/src/paint/dashes.h"
#include "drawcore/src/paint/hatch_lines.h"

namespace drawcore {

namespace {

constexpr double kFinestDashes = 3; // minimum period in pixels; finer patterns are drawn solid
constexpr double kFinestHatch = 2;  // minimum distance of lines in pixels; finer hatches are drawn as a tint
constexpr double kSmallestText = 2; // minimum height of a capital letter in pixels; smaller texts are drawn as lines
constexpr size_t kMaxWaiting = 4096;

POINT ToDevice(const Point& p) {
    return {static_cast<LONG>(std::floor(p.x + 0.5)), static_cast<LONG>(std::floor(p.y + 0.5))};
}

Box BoxOf(const RECT& rect) {
    return {static_cast<double>(rect.left), static_cast<double>(rect.top), static_cast<double>(rect.right),
            static_cast<double>(rect.bottom)};
}

// Clips the device context to the rectangle. Returns the box in which geometry is needed: the clip region may be
// smaller, but geometry slightly outside can extend into it.
Box NeededBoxOf(HDC dc, const RECT& clip) {
    ::IntersectClipRect(dc, clip.left, clip.top, clip.right, clip.bottom);
    RECT through = clip;
    const DWORD type = ::GetObjectType(dc);
    const bool records = type == OBJ_ENHMETADC || type == OBJ_METADC; // a metafile has no clipping
    if (!records) ::GetClipBox(dc, &through);
    constexpr int kOverhang = 64; // pixels by which letters and round ends may extend beyond their box
    ::InflateRect(&through, kOverhang, kOverhang);
    ::IntersectRect(&through, &through, &clip);
    return BoxOf(through);
}

// Returns the perceived luminance: 0 for black, 1 for white.
double LuminanceOf(Color color) {
    const auto part = [color](int shift) { return std::pow((color >> shift & 0xFF) / 255.0, 2.2); };
    return 0.2126 * part(0) + 0.7152 * part(8) + 0.0722 * part(16);
}

// Returns the color, or the first of its shades toward black or white that contrasts with the background: pure blue is
// illegible on black, yellow and cyan on white.
Color LegibleOn(Color background, Color color, Color ink) {
    constexpr double kContrast = 3, kGlare = 0.05;
    constexpr int kShades = 16;
    const double light = LuminanceOf(background) + kGlare;
    for (int shade = 0; shade < kShades; ++shade) {
        Color shaded = 0;
        for (const int shift : {0, 8, 16}) {
            const int part = static_cast<int>(color >> shift & 0xFF);
            const int end = static_cast<int>(ink >> shift & 0xFF);
            shaded |= static_cast<Color>(part + (end - part) * shade / kShades) << shift;
        }
        const double luminance = LuminanceOf(shaded) + kGlare;
        if (std::max(luminance, light) >= kContrast * std::min(luminance, light)) return shaded;
    }
    return ink;
}

Color Mixed(Color a, Color b) {
    return ((a & 0xFEFEFE) >> 1) + ((b & 0xFEFEFE) >> 1);
}

} // namespace

bool GdiPainter::PenKey::operator<(const PenKey& other) const {
    return std::tie(color, width, roundEnds) < std::tie(other.color, other.width, other.roundEnds);
}

bool GdiPainter::PenKey::operator==(const PenKey& other) const {
    return std::tie(color, width, roundEnds) == std::tie(other.color, other.width, other.roundEnds);
}

GdiPainter::GdiPainter(HDC dc, const RECT& clip, const PaintSettings& settings)
    : dc_(dc), saved_(dc), settings_(settings), inch_(::GetDeviceCaps(dc, LOGPIXELSX)), clip_(BoxOf(clip)),
      needed_(NeededBoxOf(dc, clip)), texts_(dc) {
    ::SetBkMode(dc, TRANSPARENT);
    ::SetROP2(dc, R2_COPYPEN);
}

GdiPainter::~GdiPainter() {
    Flush();
    ::SelectObject(dc_, ::GetStockObject(BLACK_PEN)); // before the pens are deleted
}

bool GdiPainter::Needs(const Extents& box, double reach) const {
    return box.low.x <= needed_.right + reach && box.high.x >= needed_.left - reach &&
           box.low.y <= needed_.bottom + reach && box.high.y >= needed_.top - reach;
}

Color GdiPainter::DisplayedColor(Color color) {
    int difference = 0, brightness = 0;
    for (const int shift : {0, 8, 16}) {
        const int part = static_cast<int>(settings_.background >> shift & 0xFF);
        difference += std::abs(static_cast<int>(color >> shift & 0xFF) - part);
        brightness += part;
    }
    constexpr int kMinDifference = 24;
    const bool bright = brightness > 3 * 127;
    // Black and white are drawn in the contrasting color of the background.
    const Color ink = bright ? 0 : kWhite;
    if (difference <= kMinDifference || color == (bright ? kWhite : 0)) return ink;
    if (bright && !settings_.isView) return color;
    const auto [shade, isNew] = shades_.try_emplace(color, color);
    if (isNew) shade->second = LegibleOn(settings_.background, color, ink);
    return shade->second;
}

GdiPainter::PenKey GdiPainter::KeyOf(const PenUse& use) {
    const double wide = std::min(use.width, settings_.widestPen);
    const int width = wide < 1.5 ? 1 : static_cast<int>(std::min(std::floor(wide + 0.5), 30000.0));
    return {DisplayedColor(use.color), width, width > 1 && use.roundEnds};
}

void GdiPainter::Stroke(const Path& path, const PenUse& use) {
    const PenKey key = KeyOf(use);
    const Box around = clip_.Grown(key.width + 2);
    const Where where = Locate(path, around);
    if (where == Where::Undefined || where == Where::Outside) return;
    if (use.style) {
        const DashPattern pattern{use.style->pattern, use.dashScale, use.fitDashes};
        if (ShowsDashes(pattern, kFinestDashes)) {
            CutDashes(path, pattern, around, pieces_);
            return AddLines(pieces_, key, false);
        }
    }
    if (where == Where::Inside) return AddLines(path, key, true);
    ClipLines(path, around, clipped_);
    AddLines(clipped_, key, true);
}

void GdiPainter::AddLines(const Path& path, const PenKey& key, bool lastPixel) {
    if (!(key == waiting_) || points_.size() > kMaxWaiting) Flush();
    waiting_ = key;
    for (size_t line = 0; line < path.Count(); ++line)
        AddPolyline(path, line, key, lastPixel && key.width == 1);
}

void GdiPainter::AddPolyline(const Path& path, size_t line, const PenKey& key, bool lastPixel) {
    const size_t begin = path.Begin(line), end = path.End(line), before = points_.size();
    for (size_t i = begin; i < end; ++i) {
        const POINT p = ToDevice(path.points[i]);
        if (points_.size() > before && points_.back().x == p.x && points_.back().y == p.y) continue;
        points_.push_back(p);
    }
    if (points_.size() - before == 1) {
        points_.pop_back();
        return AddDot(path.points[begin], key);
    }
    const POINT last = points_.back(), first = points_[before];
    // The device does not join the end of a wide line with its start.
    const bool closed = last.x == first.x && last.y == first.y;
    if (closed && key.width > 1) points_.push_back(points_[before + 1]);
    if (lastPixel) points_.push_back({last.x + 1, last.y});
    counts_.push_back(static_cast<DWORD>(points_.size() - before));
}

// Adds a dot with the width of the pen.
void GdiPainter::AddDot(const Point& p, const PenKey& key) {
    const POINT center = ToDevice(p);
    const LONG half = key.width / 2;
    points_.push_back({center.x - half, center.y});
    points_.push_back({center.x - half + key.width, center.y});
    counts_.push_back(2);
}

void GdiPainter::Flush() {
    if (counts_.empty()) return;
    texts_.End();
    ::SelectObject(dc_, PenOf(waiting_));
    ::PolyPolyline(dc_, points_.data(), counts_.data(), static_cast<DWORD>(counts_.size()));
    points_.clear();
    counts_.clear();
}

HPEN GdiPainter::PenOf(const PenKey& key) {
    OwnedPen& pen = pens_[key];
    if (!pen && key.width == 1) pen.reset(::CreatePen(PS_SOLID, 1, key.color));
    if (!pen) {
        const LOGBRUSH brush{BS_SOLID, key.color, 0};
        const DWORD ends = key.roundEnds ? PS_ENDCAP_ROUND : PS_ENDCAP_FLAT;
        pen.reset(::ExtCreatePen(PS_GEOMETRIC | PS_SOLID | PS_JOIN_ROUND | ends, static_cast<DWORD>(key.width), &brush,
                                 0, nullptr));
    }
    return pen.get();
}

void GdiPainter::Fill(const Path& outlines, const BrushUse& use) {
    const Path* areas = &outlines;
    const Box around = clip_.Grown(2);
    const Where where = Locate(outlines, around);
    if (where == Where::Undefined || where == Where::Outside) return;
    if (where == Where::Across) {
        ClipAreas(outlines, around, clipped_);
        areas = &clipped_;
    }
    const Color color = DisplayedColor(use.color);
    if (use.style && use.style->bitmap) return FillTiles(*areas, use, color);
    if (!use.style || use.style->lines.empty()) return FillSolid(*areas, color, use.winding);
    if (!ShowsHatch(use, kFinestHatch)) return FillSolid(*areas, Mixed(color, settings_.background), use.winding);
    HatchLines(*areas, use, around, pieces_);
    AddLines(pieces_, {color, 1, false}, true);
}

// Tiles are aligned to the origin of the drawing, so that they move with it.
void GdiPainter::FillTiles(const Path& areas, const BrushUse& use, Color ink) {
    const BrushBitmap& bitmap = *use.style->bitmap;
    constexpr int kSide = 8;
    WORD bits[kSide]; // a row is a word, with its pixels in the first byte
    std::copy(bitmap.rows.begin(), bitmap.rows.end(), bits);
    const OwnedBitmap tile(::CreateBitmap(kSide, kSide, 1, 1, bits));
    const OwnedBrush brush(::CreatePatternBrush(tile.get()));

    Flush();
    const SavedDC saved(dc_);
    const Point origin = use.pattern.Plan({0, 0, 0});
    const auto step = [](double at) { return std::isfinite(at) ? static_cast<int>(std::fmod(at, kSide)) : 0; };
    ::SetBrushOrgEx(dc_, step(origin.x), step(origin.y), nullptr);
    const bool hasColors = bitmap.colors.has_value();
    // Set bits get the background color of the device context, clear bits its text color.
    ::SetBkColor(dc_, hasColors ? bitmap.colors->ink : ink);
    ::SetTextColor(dc_, hasColors ? bitmap.colors->background : settings_.background);
    FillAreas(areas, brush.get(), hasColors ? bitmap.colors->ink : ink, use.winding);
}

void GdiPainter::FillSolid(const Path& areas, Color color, bool winding) {
    const OwnedBrush brush(::CreateSolidBrush(color));
    FillAreas(areas, brush.get(), color, winding);
}

void GdiPainter::FillAreas(const Path& areas, HBRUSH brush, Color edge, bool winding) {
    Flush();
    texts_.End();
    std::vector<INT> sizes;
    for (size_t area = 0; area < areas.Count(); ++area) {
        if (areas.End(area) - areas.Begin(area) < 2) continue;
        for (size_t i = areas.Begin(area); i < areas.End(area); ++i)
            points_.push_back(ToDevice(areas.points[i]));
        sizes.push_back(static_cast<INT>(areas.End(area) - areas.Begin(area)));
    }
    const SelectedObject selectedBrush(dc_, brush);
    // Includes the outline, since the device's filling ends one pixel before it.
    const SelectedObject selectedPen(dc_, PenOf({edge, 1, false}));
    ::SetPolyFillMode(dc_, winding ? WINDING : ALTERNATE);
    if (!sizes.empty()) ::PolyPolygon(dc_, points_.data(), sizes.data(), static_cast<int>(sizes.size()));
    points_.clear();
}

void GdiPainter::Text(const TextRow& row) {
    const double height = std::hypot(row.matrix.at[1][0], row.matrix.at[1][1]);
    if (!std::isfinite(height) || !std::isfinite(row.width)) return;
    if (height < kSmallestText) {
        Path line;
        line.MoveTo(row.matrix.Plan({0, 0.5, 0}));
        line.LineTo(row.matrix.Plan({row.width, 0.5, 0}));
        PenUse use;
        use.color = row.color;
        return Stroke(line, use);
    }
    Flush();
    texts_.Draw(row, DisplayedColor(row.color));
}

} // namespace drawcore

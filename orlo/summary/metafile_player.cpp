// Filters records between EnumMetaFile and PlayMetaFileRecord.

#include "orlo/summary/metafile_player.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <optional>

namespace orlo {
namespace {

// In device pixels; the format was designed for 16-bit device coordinates. The system rasterizes outlines and wide
// lines before clipping, with an entry per line of pixels, and fails for distant coordinates.
constexpr double kFarthest = 1 << 15;
// Limit for the total pixels covered by the glyphs of a picture, since each is cached as a bitmap.
constexpr double kMaxGlyphPixels = 1 << 26;

// Scale and offset of one axis from logical units to device pixels, without the sign.
struct Axis {
    double origin, scale;

    double Size(LONG size) const { return std::abs(size * scale); }
    double Distance(LONG coordinate) const { return std::abs((coordinate - origin) * scale); }
};

struct Mapping {
    Axis x, y;
};

double Ratio(LONG device, LONG logical) {
    return static_cast<double>(device) / (logical != 0 ? logical : 1);
}

Mapping MappingOf(HDC dc) {
    POINT origin;
    SIZE window, viewport;
    ::GetWindowOrgEx(dc, &origin);
    ::GetWindowExtEx(dc, &window);
    ::GetViewportExtEx(dc, &viewport);
    return {{double(origin.x), Ratio(viewport.cx, window.cx)}, {double(origin.y), Ratio(viewport.cy, window.cy)}};
}

// Returns the description of the current font or pen.
template <typename Description>
Description Current(HDC dc, UINT type) {
    Description description = {};
    ::GetObjectA(::GetCurrentObject(dc, type), sizeof description, &description);
    return description;
}

// The position of a shape's points in its record: up to its end, with alternating x and y words.
struct Points {
    size_t first;
    bool xFirst;
};

std::optional<Points> PointsOf(const METARECORD& record) {
    switch (record.rdFunction) {
    case META_LINETO:
    case META_MOVETO:
    case META_ELLIPSE:
    case META_RECTANGLE:
    case META_ARC:
    case META_PIE:
    case META_CHORD:
        return Points{0, false};
    case META_ROUNDRECT:
        return Points{2, false}; // after the size of the rounded corners, which cannot exceed the shape
    case META_POLYGON:
    case META_POLYLINE:
        return Points{1, true};
    case META_POLYPOLYGON:
        return Points{1 + size_t{record.rdParm[0]}, true};
    default:
        return std::nullopt;
    }
}

bool IsWithinReach(const METARECORD& record, const Points& points, const Mapping& mapping) {
    constexpr DWORD kHead = 3; // in words
    bool isX = points.xFirst;
    for (size_t i = points.first; i < record.rdSize - kHead; ++i, isX = !isX) {
        const auto coordinate = static_cast<int16_t>(record.rdParm[i]);
        if ((isX ? mapping.x : mapping.y).Distance(coordinate) > kFarthest) return false;
    }
    return true;
}

// Returns false for records that would change the system palette or that only certain devices support.
bool IsForThisDevice(WORD function) {
    return function != META_REALIZEPALETTE && function != META_ESCAPE && function != META_BITBLT &&
           function != META_STRETCHBLT;
}

// A pattern in the format of a 16-bit device cannot be shown, but must occupy its slot: otherwise the following objects
// would get the wrong slots.
void PlayHollowBrush(HDC dc, HANDLETABLE* objects, UINT count) {
    struct {
        DWORD words = 7;
        WORD function = META_CREATEBRUSHINDIRECT;
        WORD style = BS_HOLLOW, low = 0, high = 0, hatch = 0;
    } record;
    ::PlayMetaFileRecord(dc, objects, reinterpret_cast<METARECORD*>(&record), count);
}

// Handled here because Wine expects the slots in other words of these two records, without checking them.
void SelectPaletteOf(HDC dc, const HANDLETABLE& objects, const WORD* parameters) {
    ::SelectPalette(dc, static_cast<HPALETTE>(objects.objectHandle[parameters[0]]), FALSE);
}

void FrameRegion(HDC dc, const HANDLETABLE& objects, const WORD* parameters, const Mapping& mapping) {
    const auto height = static_cast<int16_t>(parameters[2]), width = static_cast<int16_t>(parameters[3]);
    if (mapping.x.Size(width) > kFarthest || mapping.y.Size(height) > kFarthest) return;
    ::FrameRgn(dc, static_cast<HRGN>(objects.objectHandle[parameters[0]]),
               static_cast<HBRUSH>(objects.objectHandle[parameters[1]]), width, height);
}

class Player {
public:
    void Play(HDC dc, HANDLETABLE* objects, METARECORD* record, UINT count) {
        if (record->rdFunction == META_CREATEPATTERNBRUSH)
            PlayHollowBrush(dc, objects, count);
        else if (record->rdFunction == META_SELECTPALETTE)
            SelectPaletteOf(dc, *objects, record->rdParm);
        else if (record->rdFunction == META_FRAMEREGION)
            FrameRegion(dc, *objects, record->rdParm, MappingOf(dc));
        else if (IsForThisDevice(record->rdFunction) && IsAffordable(dc, *record))
            ::PlayMetaFileRecord(dc, objects, record, count);
    }

private:
    bool IsAffordable(HDC dc, const METARECORD& record) {
        if (record.rdFunction == META_TEXTOUT) return Glyphs(dc, record.rdParm[0]);
        if (record.rdFunction == META_EXTTEXTOUT) return Glyphs(dc, record.rdParm[2]);
        const std::optional<Points> points = PointsOf(record);
        if (!points) return true;
        const Mapping mapping = MappingOf(dc);
        return IsWithinReach(record, *points, mapping) &&
               mapping.x.Size(Current<LOGPEN>(dc, OBJ_PEN).lopnWidth.x) <= kFarthest;
    }

    bool Glyphs(HDC dc, WORD count) {
        const auto font = Current<LOGFONTA>(dc, OBJ_FONT);
        const Mapping mapping = MappingOf(dc);
        const double height = mapping.y.Size(font.lfHeight);
        const double pixels = count * height * std::max(height, mapping.x.Size(font.lfWidth));
        if (pixels > glyphPixels_) return false;
        glyphPixels_ -= pixels;
        return true;
    }

    double glyphPixels_ = kMaxGlyphPixels;
};

int CALLBACK PlayRecord(HDC dc, HANDLETABLE* objects, METARECORD* record, int count, LPARAM player) {
    reinterpret_cast<Player*>(player)->Play(dc, objects, record, static_cast<UINT>(count));
    return 1;
}

} // namespace

void PlayPicture(HDC dc, HMETAFILE metafile) {
    Player player;
    ::EnumMetaFile(dc, metafile, &PlayRecord, reinterpret_cast<LPARAM>(&player));
}

} // namespace orlo

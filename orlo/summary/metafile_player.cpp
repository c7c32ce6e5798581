// The filter between EnumMetaFile and PlayMetaFileRecord.

#include "orlo/summary/metafile_player.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <optional>

namespace orlo {
namespace {

// In device pixels: the format was made for devices of 16-bit coordinates. The system rasterises outlines and
// wide lines before it clips them, with an entry for each line of pixels, and fails far outside.
constexpr double kFarthest = 1 << 15;
// What all glyphs of a picture may cover together; each is kept as a bitmap.
constexpr double kMostGlyphPixels = 1 << 26;

// How one direction of logical units becomes device pixels, but for the sign.
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

// The font that text is drawn with, the pen that lines are.
template <typename Description>
Description Current(HDC dc, UINT type) {
    Description description = {};
    ::GetObjectA(::GetCurrentObject(dc, type), sizeof description, &description);
    return description;
}

// Where the points of a shape are in its record: up to its end, one word for each direction in turn.
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
        return Points{2, false}; // after the size of its corners, which can't be larger than it
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
    constexpr DWORD kHead = 3; // words
    bool isX = points.xFirst;
    for (size_t i = points.first; i < record.rdSize - kHead; ++i, isX = !isX) {
        const auto coordinate = static_cast<int16_t>(record.rdParm[i]);
        if ((isX ? mapping.x : mapping.y).Distance(coordinate) > kFarthest) return false;
    }
    return true;
}

// Not played: what would change the palette of the whole system, and what only a device of its own would
// understand.
bool IsForThisDevice(WORD function) {
    return function != META_REALIZEPALETTE && function != META_ESCAPE && function != META_BITBLT &&
           function != META_STRETCHBLT;
}

// A pattern in the format of a 16-bit device can't be shown, but has its slot: without an object there, all later
// ones would come one slot too early.
void PlayHollowBrush(HDC dc, HANDLETABLE* objects, UINT count) {
    struct {
        DWORD words = 7;
        WORD function = META_CREATEBRUSHINDIRECT;
        WORD style = BS_HOLLOW, low = 0, high = 0, hatch = 0;
    } record;
    ::PlayMetaFileRecord(dc, objects, reinterpret_cast<METARECORD*>(&record), count);
}

// These two are not left to the system: Wine looks for the slots in other words of the record, whatever they hold.
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

    double glyphPixels_ = kMostGlyphPixels;
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

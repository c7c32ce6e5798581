// Checks the two headers of a metafile, and each kind of record by its own rule.

#include "orlo/summary/metafile_check.h"

#include <algorithm>
#include <functional>
#include <queue>
#include <vector>

#include "orlo/propset/bytes.h"
#include "orlo/summary/dib_layout.h"

namespace orlo {
namespace {

constexpr size_t kHeaderBytes = 18;
constexpr size_t kRecordHeadBytes = 6; // size in 32-bit words, function in 16 bits

// Published function numbers of records.
enum Function : uint16_t {
    kEndOfFile = 0x0000,
    kSaveDC = 0x001E,
    kSetPaletteEntries = 0x0037,
    kCreatePalette = 0x00F7,
    kSetBkMode = 0x0102,
    kSetMapMode = 0x0103,
    kSetROP2 = 0x0104,
    kSetPolyFillMode = 0x0106,
    kSetStretchBltMode = 0x0107,
    kSetTextCharExtra = 0x0108,
    kRestoreDC = 0x0127,
    kInvertRegion = 0x012A,
    kPaintRegion = 0x012B,
    kSelectClipRegion = 0x012C,
    kSelectObject = 0x012D,
    kSetTextAlign = 0x012E,
    kResizePalette = 0x0139,
    kDibCreatePatternBrush = 0x0142,
    kSetLayout = 0x0149,
    kDeleteObject = 0x01F0,
    kCreatePatternBrush = 0x01F9,
    kSetBkColor = 0x0201,
    kSetTextColor = 0x0209,
    kSetTextJustification = 0x020A,
    kSetWindowOrg = 0x020B,
    kSetWindowExt = 0x020C,
    kSetViewportOrg = 0x020D,
    kSetViewportExt = 0x020E,
    kOffsetWindowOrg = 0x020F,
    kOffsetViewportOrg = 0x0211,
    kLineTo = 0x0213,
    kMoveTo = 0x0214,
    kOffsetClipRegion = 0x0220,
    kFillRegion = 0x0228,
    kSetMapperFlags = 0x0231,
    kSelectPalette = 0x0234,
    kCreatePenIndirect = 0x02FA,
    kCreateFontIndirect = 0x02FB,
    kCreateBrushIndirect = 0x02FC,
    kPolygon = 0x0324,
    kPolyline = 0x0325,
    kScaleWindowExt = 0x0410,
    kScaleViewportExt = 0x0412,
    kExcludeClipRect = 0x0415,
    kIntersectClipRect = 0x0416,
    kEllipse = 0x0418,
    kFloodFill = 0x0419,
    kRectangle = 0x041B,
    kSetPixel = 0x041F,
    kFrameRegion = 0x0429,
    kAnimatePalette = 0x0436,
    kTextOut = 0x0521,
    kPolyPolygon = 0x0538,
    kExtFloodFill = 0x0548,
    kRoundRect = 0x061C,
    kPatBlt = 0x061D,
    kCreateRegion = 0x06FF,
    kArc = 0x0817,
    kPie = 0x081A,
    kChord = 0x0830,
    kDibBitBlt = 0x0940,
    kExtTextOut = 0x0A32,
    kDibStretchBlt = 0x0B41,
    kSetDibToDevice = 0x0D33,
    kStretchDib = 0x0F43,
};

// The parameters of a record, in 16-bit words.
class Parameters {
public:
    Parameters(const uint8_t* data, size_t words) : data_(data), words_(words) {}

    size_t Count() const { return words_; }
    uint16_t Word(size_t index) const { return LittleEndian<uint16_t>(data_ + 2 * index); }
    const uint8_t* At(size_t index) const { return data_ + 2 * index; }
    // Returns the number of words after the first `used` ones.
    size_t After(size_t used) const { return used < words_ ? words_ - used : 0; }

private:
    const uint8_t* data_;
    size_t words_;
};

// Records of fixed size, and the number of words that drawing reads.
struct FixedShape {
    uint16_t function;
    uint8_t words;
};
constexpr FixedShape kFixedShapes[] = {
    {kSetBkMode, 1},
    {kSetMapMode, 1},
    {kSetROP2, 1},
    {kSetPolyFillMode, 1},
    {kSetStretchBltMode, 1},
    {kSetTextCharExtra, 1},
    {kSetTextAlign, 1},
    {kResizePalette, 1},
    {kSetLayout, 1},
    {kSetBkColor, 2},
    {kSetTextColor, 2},
    {kSetTextJustification, 2},
    {kSetWindowOrg, 2},
    {kSetWindowExt, 2},
    {kSetViewportOrg, 2},
    {kSetViewportExt, 2},
    {kOffsetWindowOrg, 2},
    {kOffsetViewportOrg, 2},
    {kLineTo, 2},
    {kMoveTo, 2},
    {kOffsetClipRegion, 2},
    {kSetMapperFlags, 2},
    {kScaleWindowExt, 4},
    {kScaleViewportExt, 4},
    {kExcludeClipRect, 4},
    {kIntersectClipRect, 4},
    {kEllipse, 4},
    {kFloodFill, 4},
    {kRectangle, 4},
    {kSetPixel, 4},
    {kExtFloodFill, 5},
    {kRoundRect, 6},
    {kPatBlt, 6},
    {kArc, 8},
    {kPie, 8},
    {kChord, 8},
};

// Records whose first words are object slots.
struct SlotUse {
    uint16_t function;
    uint8_t slots;
    uint8_t words;
};
constexpr SlotUse kSlotUses[] = {
    {kInvertRegion, 1, 1}, {kPaintRegion, 1, 1},   {kSelectClipRegion, 1, 1}, {kSelectObject, 1, 1},
    {kFillRegion, 2, 2},   {kSelectPalette, 1, 1}, {kFrameRegion, 2, 4},
};

template <typename Row, size_t n>
const Row* Find(const Row (&rows)[n], uint16_t function) {
    const auto row = std::find_if(std::begin(rows), std::end(rows),
                                  [function](const Row& each) { return each.function == function; });
    return row == std::end(rows) ? nullptr : row;
}

bool PointsFit(const Parameters& p) {
    return p.Count() >= 1 && p.Word(0) <= p.After(1) / 2;
}

bool PolyPolygonFits(const Parameters& p) {
    if (p.Count() < 1 || p.Word(0) > p.After(1)) return false;
    const size_t polygons = p.Word(0);
    size_t points = 0;
    for (size_t i = 0; i < polygons; ++i)
        points += p.Word(1 + i);
    return points <= p.After(1 + polygons) / 2;
}

bool TextFits(const Parameters& p) {
    return p.Count() >= 1 && (p.Word(0) + 1u) / 2 + 2 <= p.After(1);
}

bool PositionedTextFits(const Parameters& p) {
    constexpr uint16_t kOpaque = 0x0002, kClipped = 0x0004;
    // Right-to-left, digit shapes, no reordering. Other options change the meaning of text and widths: glyph indices
    // and width pairs take twice the space.
    constexpr uint16_t kHarmless = 0x0080 | 0x0400 | 0x0800 | 0x1000;
    if (p.Count() < 4) return false;
    const uint16_t options = p.Word(3);
    if (options & ~(kOpaque | kClipped | kHarmless)) return false;
    const size_t rectangle = options != 0 ? 4 : 0;
    return rectangle + (p.Word(2) + 1u) / 2 <= p.After(4);
}

bool PaletteFits(const Parameters& p) {
    return p.Count() >= 2 && p.Word(1) <= p.After(2) / 2;
}

// Checks the scan lines of a region: count, top, bottom, pairs of left and right, and the count again.
bool RegionFits(const Parameters& p) {
    constexpr size_t kHead = 11;
    if (p.Count() < kHead) return false;
    size_t at = kHead;
    for (size_t band = 0; band < p.Word(5); ++band) {
        if (p.After(at) < 4) return false;
        const size_t count = p.Word(at);
        if (count % 2 != 0 || p.After(at + 3) < count + 1) return false;
        at += count + 4;
    }
    return true;
}

bool BrushFits(const Parameters& p) {
    constexpr uint16_t kHatched = 2; // styles above it contain handles and addresses
    return p.Count() >= 4 && p.Word(0) <= kHatched;
}

std::optional<DibLayout> BitmapIn(const Parameters& p, size_t at, DibColors colors, uint32_t maxLines = UINT32_MAX) {
    if (p.Count() <= at) return std::nullopt;
    return ReadDibLayout(p.At(at), 2 * p.After(at), colors, maxLines);
}

std::optional<DibColors> ColorsOf(uint16_t usage) {
    if (usage == 0) return DibColors::Rgb;
    if (usage == 1) return DibColors::PaletteIndices;
    return std::nullopt;
}

// Returns the layout of a bitmap whose color usage is in word `usageAt`.
std::optional<DibLayout> TaggedBitmapIn(const Parameters& p, size_t usageAt, size_t at,
                                        uint32_t maxLines = UINT32_MAX) {
    if (p.Count() <= at) return std::nullopt;
    const auto colors = ColorsOf(p.Word(usageAt));
    return colors ? BitmapIn(p, at, *colors, maxLines) : std::nullopt;
}

bool BlockTransferFits(const Parameters& p) {
    constexpr size_t kWithoutBitmap = 9; // only the pattern is painted
    return p.Count() == kWithoutBitmap || BitmapIn(p, 8, DibColors::Rgb);
}

bool ScanLinesFit(const Parameters& p) {
    return p.Count() > 9 && TaggedBitmapIn(p, 0, 9, p.Word(1));
}

// Checks records that contain counts. Unknown records are accepted.
bool ContentFits(uint16_t function, const Parameters& p) {
    switch (function) {
    case kSetPaletteEntries:
    case kAnimatePalette:
        return PaletteFits(p);
    case kPolygon:
    case kPolyline:
        return PointsFit(p);
    case kPolyPolygon:
        return PolyPolygonFits(p);
    case kTextOut:
        return TextFits(p);
    case kExtTextOut:
        return PositionedTextFits(p);
    case kDibBitBlt:
        return BlockTransferFits(p);
    case kDibStretchBlt:
        return BitmapIn(p, 10, DibColors::Rgb).has_value();
    case kStretchDib:
        return TaggedBitmapIn(p, 2, 11).has_value();
    case kSetDibToDevice:
        return ScanLinesFit(p);
    default:
        return true;
    }
}

// Checks all records of a metafile and tracks its objects and saved states.
class RecordCheck {
public:
    RecordCheck(const uint8_t* bits, size_t size)
        : bits_(bits), size_(size), used_(LittleEndian<uint16_t>(bits + 10)) {}

    // Returns the end of the last record before the end-of-file record, or nothing.
    std::optional<size_t> Walk() {
        size_t at = kHeaderBytes;
        while (size_ - at >= kRecordHeadBytes) {
            const uint64_t bytes = uint64_t{2} * LittleEndian<uint32_t>(bits_ + at);
            const auto function = LittleEndian<uint16_t>(bits_ + at + 4);
            if (function == kEndOfFile) return at;
            if (bytes < kRecordHeadBytes || bytes > size_ - at) return std::nullopt;
            const Parameters p(bits_ + at + kRecordHeadBytes, (static_cast<size_t>(bytes) - kRecordHeadBytes) / 2);
            if (!Passes(function, p)) return std::nullopt;
            at += static_cast<size_t>(bytes);
        }
        return at == size_ ? std::optional<size_t>(at) : std::nullopt;
    }

private:
    bool Passes(uint16_t function, const Parameters& p) {
        if (const auto* shape = Find(kFixedShapes, function)) return p.Count() >= shape->words;
        if (const auto* use = Find(kSlotUses, function)) return p.Count() >= use->words && SlotsExist(p, use->slots);
        switch (function) {
        case kSaveDC:
            ++saved_;
            return true;
        case kRestoreDC:
            return Restore(p);
        case kDeleteObject:
            return Delete(p);
        case kCreatePalette:
            return Create(PaletteFits(p));
        case kDibCreatePatternBrush:
            return Create(PatternFits(p));
        case kCreatePatternBrush:
            return Create(true);
        case kCreatePenIndirect:
            return Create(p.Count() >= 5);
        case kCreateFontIndirect:
            return Create(p.Count() >= 9);
        case kCreateBrushIndirect:
            return Create(BrushFits(p));
        case kCreateRegion:
            return Create(RegionFits(p));
        default:
            return ContentFits(function, p);
        }
    }

    // Restoring more states than the metafile has saved would restore those of its player.
    bool Restore(const Parameters& p) {
        if (p.Count() < 1) return false;
        const auto levels = static_cast<int16_t>(p.Word(0));
        if (levels >= 0 || -levels > saved_) return false;
        saved_ += levels;
        return true;
    }

    // The system assigns the lowest free slot to a new object and leaves it free if creation fails. The slots that it
    // occupies are therefore a subset of those that are occupied here.
    bool Create(bool fits) {
        if (!fits) return false;
        if (!freed_.empty()) {
            used_[freed_.top()] = true;
            freed_.pop();
            return true;
        }
        if (next_ == used_.size()) return false;
        used_[next_++] = true;
        return true;
    }

    // A few bytes of run-length data can create a large pattern, and all patterns may exist at the same time.
    bool PatternFits(const Parameters& p) {
        constexpr uint64_t kMaxPixels = 1u << 24;
        const auto layout = TaggedBitmapIn(p, 1, 2);
        if (!layout) return false;
        const uint64_t pixels = uint64_t(layout->width) * uint64_t(layout->height);
        if (pixels > kMaxPixels - patternPixels_) return false;
        patternPixels_ += pixels;
        return true;
    }

    bool Delete(const Parameters& p) {
        if (p.Count() < 1 || p.Word(0) >= used_.size()) return false;
        const uint16_t slot = p.Word(0);
        if (used_[slot]) freed_.push(slot);
        used_[slot] = false;
        return true;
    }

    bool SlotsExist(const Parameters& p, size_t count) const {
        for (size_t i = 0; i < count; ++i)
            if (p.Word(i) >= used_.size()) return false;
        return true;
    }

    const uint8_t* bits_;
    size_t size_;
    std::vector<bool> used_; // by slot
    size_t next_ = 0;        // no slot from here on has been used
    std::priority_queue<uint16_t, std::vector<uint16_t>, std::greater<uint16_t>> freed_;
    int saved_ = 0;
    uint64_t patternPixels_ = 0; // total of all patterns so far
};

// The first words show which of the two headers it is.
struct Head {
    size_t bytes;
    int32_t xExtent, yExtent;
};

std::optional<Head> ReadHead(const uint8_t* data, size_t size) {
    constexpr size_t kNarrow = 8, kWide = 16;
    if (size < kNarrow) return std::nullopt;
    if (LittleEndian<int16_t>(data + 2) > 0 || LittleEndian<uint16_t>(data + 6) != 0)
        return Head{kNarrow, LittleEndian<int16_t>(data + 2), LittleEndian<int16_t>(data + 4)};
    if (size < kWide) return std::nullopt;
    return Head{kWide, LittleEndian<int32_t>(data + 4), LittleEndian<int32_t>(data + 8)};
}

bool HeaderIsKnown(const uint8_t* bits) {
    const auto version = LittleEndian<uint16_t>(bits + 4);
    return LittleEndian<uint16_t>(bits) == 1 && LittleEndian<uint16_t>(bits + 2) == kHeaderBytes / 2 &&
           (version == 0x0300 || version == 0x0100);
}

} // namespace

std::optional<MetaFilePicture> ReadMetaFilePicture(const uint8_t* data, size_t size) {
    const auto head = ReadHead(data, size);
    if (!head || head->xExtent <= 0 || head->yExtent <= 0) return std::nullopt;
    MetaFilePicture picture;
    picture.xExtent = head->xExtent;
    picture.yExtent = head->yExtent;
    picture.bits = data + head->bytes;
    const size_t left = size - head->bytes;
    if (left < kHeaderBytes || !HeaderIsKnown(picture.bits)) return std::nullopt;
    const uint64_t bytes = uint64_t{2} * LittleEndian<uint32_t>(picture.bits + 6);
    if (bytes < kHeaderBytes || bytes > left) return std::nullopt;
    picture.size = static_cast<size_t>(bytes);
    const auto end = RecordCheck(picture.bits, picture.size).Walk();
    if (!end) return std::nullopt;
    picture.end = *end;
    return picture;
}

} // namespace orlo

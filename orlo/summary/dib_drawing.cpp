// Decodes the lines of a bitmap and scales them to a target by averaging.

#include "orlo/summary/dib_drawing.h"

#include <algorithm>
#include <array>

#include "orlo/propset/bytes.h"
#include "orlo/summary/dib_layout.h"
#include "orlo/summary/fitting.h"
#include "orlo/summary/run_length.h"

namespace orlo {
namespace {

constexpr uint8_t kWhite = 0xFF;
constexpr uint32_t kSmallestHeader = 40; // the smallest with color masks and four bytes per table entry

using Color = std::array<uint8_t, 3>; // red, green, blue
using Line = std::vector<Color>;

// One color channel of a pixel, extracted by its mask.
class Channel {
public:
    explicit Channel(uint32_t mask) : mask_(mask) {
        while (mask != 0 && (mask >> shift_ & 1) == 0)
            ++shift_;
        while (mask >> shift_ >> bits_ != 0 && bits_ < 32 - shift_)
            ++bits_;
    }

    // Extends the value to 8 bits by repeating its bits.
    uint8_t Of(uint32_t pixel) const {
        if (bits_ == 0) return 0;
        uint32_t value = (pixel & mask_) >> shift_ << (32 - bits_);
        for (uint32_t filled = bits_; filled < 8; filled *= 2)
            value |= value >> filled;
        return static_cast<uint8_t>(value >> 24);
    }

private:
    uint32_t mask_;
    uint32_t shift_ = 0, bits_ = 0;
};

// Decodes the colors of a bitmap whose layout has been checked.
class DibLines {
public:
    DibLines(const uint8_t* data, const DibLayout& layout)
        : layout_(layout), pixels_(data + layout.pixelOffset), channels_(ChannelsOf(data, layout)) {
        if (layout.bitsPerPixel <= 8) ReadTable(data);
        if (layout.compression == kDibRunLength8 || layout.compression == kDibRunLength4) PaintRuns();
    }

    // Reads line y, counted from the top. The line has the bitmap's width.
    void Read(int32_t y, Line& line) const {
        const auto width = static_cast<size_t>(layout_.width);
        if (!painted_.empty()) {
            std::copy_n(painted_.begin() + static_cast<ptrdiff_t>(width * static_cast<size_t>(y)), width, line.begin());
            return;
        }
        const size_t stride = layout_.pixelBytes / static_cast<size_t>(layout_.height);
        const uint8_t* at = pixels_ + stride * static_cast<size_t>(layout_.height - 1 - y);
        for (size_t x = 0; x < width; ++x)
            line[x] = At(at, x);
    }

private:
    static std::array<Channel, 3> ChannelsOf(const uint8_t* data, const DibLayout& layout) {
        if (layout.compression == kDibBitFields) {
            const uint8_t* masks = data + kSmallestHeader; // inside a larger header, at the same offset
            return {Channel(LittleEndian<uint32_t>(masks)), Channel(LittleEndian<uint32_t>(masks + 4)),
                    Channel(LittleEndian<uint32_t>(masks + 8))};
        }
        if (layout.bitsPerPixel == 16) return {Channel(0x7C00), Channel(0x03E0), Channel(0x001F)};
        return {Channel(0xFF0000), Channel(0x00FF00), Channel(0x0000FF)};
    }

    // Indices beyond the table are black.
    void ReadTable(const uint8_t* data) {
        constexpr size_t kColorBytes = 4;
        const size_t count = (layout_.pixelOffset - layout_.headerSize) / kColorBytes;
        for (size_t i = 0; i < std::min(count, table_.size()); ++i) {
            const uint8_t* at = data + layout_.headerSize + kColorBytes * i;
            table_[i] = {at[2], at[1], at[0]};
        }
    }

    Color At(const uint8_t* line, size_t x) const {
        const size_t bits = layout_.bitsPerPixel;
        if (bits <= 8) {
            const size_t perByte = 8 / bits;
            const size_t shift = 8 - bits * (x % perByte + 1); // the first pixel is in the highest bits
            return table_[line[x / perByte] >> shift & ((1u << bits) - 1)];
        }
        if (bits == 24) return {line[3 * x + 2], line[3 * x + 1], line[3 * x]};
        return Split(bits == 16 ? LittleEndian<uint16_t>(line + 2 * x) : LittleEndian<uint32_t>(line + 4 * x));
    }

    Color Split(uint32_t pixel) const {
        return {channels_[0].Of(pixel), channels_[1].Of(pixel), channels_[2].Of(pixel)};
    }

    // Pixels not covered by a run stay white.
    void PaintRuns() {
        const auto width = static_cast<size_t>(layout_.width), height = static_cast<size_t>(layout_.height);
        painted_.assign(width * height, {kWhite, kWhite, kWhite});
        WalkRunLength(pixels_, layout_.pixelBytes, layout_, [&](const RunOfPixels& run) {
            Color* at = painted_.data() + width * (height - 1 - static_cast<size_t>(run.y)) + run.x;
            for (uint32_t i = 0; i < run.count; ++i)
                *at++ = table_[run.Index(i)];
        });
    }

    const DibLayout& layout_;
    const uint8_t* pixels_;
    std::array<Color, 256> table_ = {};
    std::array<Channel, 3> channels_;
    Line painted_; // the whole picture if it is run-length encoded
};

// Maps `from` source pixels to `to` target pixels with weights: a source pixel has the length `to`, a target pixel the
// length `from`.
struct Coverage {
    uint64_t from, to;

    template <typename Take>
    void Of(uint64_t target, Take take) const {
        const uint64_t begin = target * from, end = begin + from;
        for (uint64_t at = begin / to; at * to < end; ++at)
            take(static_cast<size_t>(at), std::min(end, (at + 1) * to) - std::max(begin, at * to));
    }
};

using Sums = std::vector<std::array<uint64_t, 3>>; // sums of colors, one per target pixel

void AddTo(std::array<uint64_t, 3>& sum, const std::array<uint64_t, 3>& color, uint64_t weight) {
    for (size_t i = 0; i < sum.size(); ++i)
        sum[i] += color[i] * weight;
}

class Shrinking {
public:
    Shrinking(const DibLines& lines, const DibLayout& layout, const Place& place)
        : lines_(lines), layout_(layout), width_(static_cast<size_t>(place.width)),
          height_(static_cast<size_t>(place.height)), line_(static_cast<size_t>(layout.width)), across_(width_) {}

    // Writes line y of the target.
    void Write(size_t y, uint8_t* colors) {
        Sums sums(width_);
        const auto add = [&](size_t source, uint64_t weight) {
            SumAcross(source);
            for (size_t x = 0; x < width_; ++x)
                AddTo(sums[x], across_[x], weight);
        };
        Coverage{static_cast<uint64_t>(layout_.height), height_}.Of(y, add);
        const uint64_t all = static_cast<uint64_t>(layout_.width) * static_cast<uint64_t>(layout_.height);
        for (const auto& sum : sums)
            for (const uint64_t color : sum)
                *colors++ = static_cast<uint8_t>((color + all / 2) / all);
    }

private:
    // Sums a line of the bitmap to the target's width. The last line is cached, because it is often needed twice.
    void SumAcross(size_t source) {
        if (source == summed_) return;
        summed_ = source;
        lines_.Read(static_cast<int32_t>(source), line_);
        const Coverage coverage = {line_.size(), width_};
        for (size_t x = 0; x < width_; ++x) {
            across_[x] = {};
            coverage.Of(x, [&](size_t at, uint64_t weight) {
                AddTo(across_[x], {line_[at][0], line_[at][1], line_[at][2]}, weight);
            });
        }
    }

    const DibLines& lines_;
    const DibLayout& layout_;
    size_t width_, height_;
    Line line_;
    Sums across_;
    size_t summed_ = SIZE_MAX;
};

} // namespace

std::optional<std::vector<uint8_t>> DrawDibFitted(const uint8_t* data, size_t size, int32_t width, int32_t height) {
    const auto layout = ReadDibLayout(data, size, DibColors::Rgb);
    if (!layout || layout->topDown || layout->headerSize < kSmallestHeader) return std::nullopt;
    const Place place = Fitted({0, 0, width, height}, layout->width, layout->height);
    const DibLines lines(data, *layout);
    Shrinking shrinking(lines, *layout, place);
    const size_t lineBytes = 3 * static_cast<size_t>(width);
    std::vector<uint8_t> colors(lineBytes * static_cast<size_t>(height), kWhite);
    uint8_t* first = colors.data() + lineBytes * static_cast<size_t>(place.top) + 3 * place.left;
    for (int y = 0; y < place.height; ++y)
        shrinking.Write(static_cast<size_t>(y), first + lineBytes * static_cast<size_t>(y));
    return colors;
}

std::optional<std::vector<uint8_t>> BitmapFileFrom(const uint8_t* data, size_t size) {
    constexpr uint32_t kFileHeader = 14;
    const auto layout = ReadDibLayout(data, size, DibColors::Rgb);
    if (!layout) return std::nullopt;
    std::vector<uint8_t> file(kFileHeader);
    file[0] = 'B';
    file[1] = 'M';
    PutLittleEndian(&file[2], static_cast<uint32_t>(kFileHeader + size));
    PutLittleEndian(&file[10], static_cast<uint32_t>(kFileHeader + layout->pixelOffset));
    file.insert(file.end(), data, data + size);
    return file;
}

} // namespace orlo

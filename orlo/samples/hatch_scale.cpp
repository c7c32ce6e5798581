// Computes the brush scale of a sample.

#include "orlo/samples/hatch_scale.h"

#include <cmath>

#include "orlo/host/style.h"

namespace {

constexpr double kNoLength = 1e-7;

double SpacingOf(const BrushPatternStruct* pattern) {
    double angle, baseX, baseY, along, spacing, dashes[8];
    int dashCount;
    ::BrushPatternGetData(pattern, &angle, &baseX, &baseY, &along, &spacing, &dashCount, dashes);
    return spacing;
}

} // namespace

double HatchScale(TableStruct* styles, unsigned int style, double width, double lines) {
    constexpr uint16_t kLines = kBrushVector | kBrushHasLines;
    const auto id = static_cast<uint16_t>(style);
    if ((::BrushStyleGetFlags(styles, id) & kLines) != kLines) return 1.0;

    double sum = 0.0;
    int cookie = 0;
    for (auto* pattern = ::BrushStyleGetFirstPattern(styles, id, &cookie); pattern != nullptr;
         pattern = ::BrushStyleGetNextPattern(styles, id, &cookie)) {
        const double spacing = SpacingOf(pattern);
        if (std::fabs(spacing) > kNoLength) sum += 1.0 / (spacing * spacing);
    }
    if (std::fabs(sum) <= kNoLength) return 1.0;
    const double combined = 1.0 / std::sqrt(sum);
    return std::fabs(width / (combined * lines));
}

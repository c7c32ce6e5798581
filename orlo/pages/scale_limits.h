// Limits of the scales of dashes and hatches on all pages.
#pragma once

namespace orlo {

constexpr double kMinScale = 1e-7;
constexpr double kMaxScale = 1e7;

} // namespace orlo

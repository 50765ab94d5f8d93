#pragma once

#include <algorithm>
#include <cmath>

namespace numorra {

/// The zoom steps: 50 % to 800 % in equal factors, two steps per doubling, so that 100 % and 200 %
/// are among them.
inline constexpr int kSmallestZoomStep = -2;
inline constexpr int kLargestZoomStep = 6;

inline double ZoomAtStep(int step) {
  return std::exp2(step / 2.0);
}

/// The next step up (1) or down (-1) from any zoom; a zoom beyond the ends stays instead of turning
/// back.
inline double NextZoom(double zoom, int direction) {
  constexpr double kAlmost = 0.01;  // closer than this counts as the step
  const double at = 2 * std::log2(zoom);
  const double next = direction > 0 ? std::floor(at + kAlmost) + 1 : std::ceil(at - kAlmost) - 1;
  const double step =
      ZoomAtStep(std::clamp(static_cast<int>(next), kSmallestZoomStep, kLargestZoomStep));
  return direction > 0 ? std::max(zoom, step) : std::min(zoom, step);
}

}  // namespace numorra

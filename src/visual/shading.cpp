#include "visual/shading.h"

#include <algorithm>
#include <cmath>

#include "app/board/numbers.h"
#include "app/board/runtime_error.h"

namespace numorra {
namespace {

constexpr std::int32_t kNoHighest = -99;
constexpr float kShades = 256;

/// The luminance of a channel (sRGB).
double Linear(std::uint8_t channel) {
  const double share = channel / 255.0;
  return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

double Luminance(Colour colour) {
  return 0.2126 * Linear(colour.Red) + 0.7152 * Linear(colour.Green) + 0.0722 * Linear(colour.Blue);
}

}  // namespace

double Contrast(Colour a, Colour b) {
  constexpr double kGlare = 0.05;
  const double one = Luminance(a) + kGlare;
  const double other = Luminance(b) + kGlare;
  return std::max(one, other) / std::min(one, other);
}

Shading::Shading(const Board& board, Colour picked) : picked_(picked) {
  std::int32_t highest = kNoHighest;
  ForEachCell(board.GridSize, [&](int row, int column) {
    const double value = std::nearbyint(Val(board.grid.Text(row, column)));
    // Ignore numbers that do not fit in 32 bits.
    if (std::abs(value) < 0x1p31) highest = std::max(highest, ToInt32(value));
  });
  if (highest != 0) scale_ = kShades / static_cast<float>(highest);
}

std::optional<Colour> Shading::Of(double value) const {
  const double shade = std::nearbyint(static_cast<double>(scale_) * value);
  const auto fits = [shade](std::uint8_t channel) {
    return channel + shade >= 0 && channel + shade <= INT16_MAX;
  };
  if (!fits(picked_.Red) || !fits(picked_.Green) || !fits(picked_.Blue)) return std::nullopt;
  const auto shaded = [shade](std::uint8_t channel) {
    return static_cast<int>(std::min(255.0, channel + shade));
  };
  return Rgb(shaded(picked_.Red), shaded(picked_.Green), shaded(picked_.Blue));
}

Colour ReadableOn(Colour background) {
  // Black and white have equal contrast to this luminance.
  constexpr double kMiddle = 0.1791;
  return Luminance(background) > kMiddle ? Rgb(0, 0, 0) : Rgb(255, 255, 255);
}

void FillColours(Board& board, Colour picked) {
  if (!board.HasTotal()) return;
  board.SetOverlayShown(false);
  const RedrawLock lock(board.grid);
  const Shading shading(board, picked);
  ForEachCell(board.GridSize, [&](int row, int column) {
    const auto colour = shading.Of(Val(board.grid.Text(row, column)));
    if (colour) board.grid.Shade(row, column, *colour, ReadableOn(*colour));
  });
}

}  // namespace numorra

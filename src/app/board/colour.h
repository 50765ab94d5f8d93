#pragma once

#include <array>
#include <cstdint>

namespace numorra {

/// A 24-bit colour, or none: the window's own colour.
struct Colour {
  std::uint8_t Red = 0;
  std::uint8_t Green = 0;
  std::uint8_t Blue = 0;
  bool SeeThrough = false;

  bool operator==(const Colour&) const = default;
};

constexpr Colour Rgb(int red, int green, int blue) {
  return {static_cast<std::uint8_t>(red), static_cast<std::uint8_t>(green),
          static_cast<std::uint8_t>(blue)};
}

/// The window's background, in any theme.
inline constexpr Colour kWindowBackground{.SeeThrough = true};

/// The indices of `ColorTable`.
enum ColourUse { kWrongTotal, kRightTotal, kCellBackground, kCellText };
inline constexpr ColourUse kTotalText = kCellBackground;

inline constexpr std::array<Colour, 4> ColorTable = {Rgb(128, 0, 0), Rgb(0, 128, 0),
                                                     Rgb(240, 240, 240), Rgb(0, 0, 0)};

}  // namespace numorra

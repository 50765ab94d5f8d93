#pragma once

#include <QGuiApplication>
#include <QScreen>

namespace numorra {

/// Converts twips (1/1440 inch) to whole pixels at a logical resolution in dots per inch.
inline int PixelsOf(int twips, double dpi) {
  constexpr double kTwipsPerInch = 1440;
  return qRound(twips * dpi / kTwipsPerInch);
}

/// The same for the resolution that windows are laid out in.
inline int PixelsOf(int twips) {
  return PixelsOf(twips, QGuiApplication::primaryScreen()->logicalDotsPerInchX());
}

}  // namespace numorra

#pragma once

#include <array>
#include <functional>

#include <QPainter>
#include <QString>

#include "words/say.h"

namespace numorra {

/// The formats of pictures.
enum class PictureKind { Png, Svg, Pdf };

/// What tells a format from the others. A side is measured in pixels or in millimetres.
struct PictureFormat {
  PictureKind Kind;
  const char* Caption;
  const char* Suffix;
  const char* Files;  ///< what a file dialog calls its files, marked
  bool InPixels;      ///< otherwise in millimetres
};

inline constexpr std::array<PictureFormat, 3> kPictureFormats = {
    // Translators: the names of kinds of files, in file dialogs.
    {{PictureKind::Png, "PNG", "png", Mark("Pictures"), true},
     {PictureKind::Svg, "SVG", "svg", Mark("Drawings"), false},
     {PictureKind::Pdf, "PDF", "pdf", Mark("Documents"), false}}};

constexpr const PictureFormat& FormatOf(PictureKind kind) {
  return kPictureFormats[static_cast<std::size_t>(kind)];
}

/// The side of a square picture as it is painted, in the painter's units: the pixels of a PNG; a
/// fixed number for the other formats, whose files are scaled to their size when they are shown.
int UnitsOf(PictureKind kind, int size);

/// Writes a square picture on white; `size` is its side in pixels or millimetres. `paint` paints on
/// a square of UnitsOf(kind, size), with its corner at (0, 0). Throws FileError, also if the name
/// does not end in the format's suffix, and if there is no memory for so many pixels.
void WritePicture(const QString& name, PictureKind kind, int size,
                  const std::function<void(QPainter&)>& paint);

}  // namespace numorra

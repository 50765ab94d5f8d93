#pragma once

#include <QFont>
#include <QPainter>
#include <QPalette>

#include "app/board/grid.h"

namespace numorra {

/// The share of a picture's width that stays free on each of its four sides.
inline constexpr double kPictureMargin = 0.02;

/// Paints a board on a square of `side` units: its cells as large as the margins allow, with edges
/// on whole units and lines that grow with them. Without `totals`, the frame around the cells is
/// left out, too.
void PaintBoardPicture(QPainter& painter, const Grid& grid, const QFont& font,
                       const QPalette& palette, int side, bool totals);

}  // namespace numorra

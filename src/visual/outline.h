#pragma once

#include <functional>
#include <vector>

#include <QPainter>
#include <QRectF>

#include "app/board/place.h"

namespace numorra {

/// Draws a line around `cells` that is visible on every ground: dark on a light line. Neighbouring
/// cells share one line. `rectOf` returns the place of a cell.
void PaintOutline(QPainter& painter, const std::vector<Place>& cells,
                  const std::function<QRectF(Place)>& rectOf);

}  // namespace numorra

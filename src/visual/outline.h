#pragma once

#include <functional>
#include <vector>

#include <QPainter>
#include <QRectF>

#include "app/board/place.h"

namespace numorra {

/// Draws a line around `cells`, to be seen on every ground: dark on a light one. Cells that are
/// neighbours share one line. rectOf says where a cell lies.
void PaintOutline(QPainter& painter, const std::vector<Place>& cells,
                  const std::function<QRectF(Place)>& rectOf);

}  // namespace numorra

#pragma once

#include <QColor>

#include "app/board/colour.h"

namespace numorra {

inline QColor ToQColor(Colour colour) {
  return {colour.Red, colour.Green, colour.Blue};
}

}  // namespace numorra

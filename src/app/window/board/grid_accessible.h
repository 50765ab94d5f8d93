#pragma once

#include "app/window/board/grid_view.h"

namespace numorra {

/// Lets screen readers read every GridView as a table: each cell's name says where it is and what
/// it holds, "row 2, column 3, value 17" or "empty", and whether it is given, a total's also
/// whether it is right; a cell's description tells the totals of its row and column. Call it before
/// the first window is made.
void InstallGridAccessibility();

/// Has the current cell read aloud: as the one the keyboard has come to, or for its new text.
void ReadCurrentCell(GridView& view, bool another);

}  // namespace numorra

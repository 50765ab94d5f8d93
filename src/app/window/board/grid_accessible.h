#pragma once

#include "app/window/board/grid_view.h"

namespace numorra {

/// Lets screen readers read every GridView as a table. A cell's name says where it is and what it
/// holds, "row 2, column 3, value 17" or "empty, notes 1 to 3, 7", whether it is given, and whether
/// its number is marked as equal to another; a total's name also says whether it is right. A cell's
/// description gives the totals of its row and column. Call this before the first window is
/// created.
void InstallGridAccessibility();

/// Makes screen readers read the current cell, because it has the focus or a new text.
void ReadCurrentCell(GridView& view, bool another);

}  // namespace numorra

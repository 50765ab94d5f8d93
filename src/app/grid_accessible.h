#pragma once

namespace numorra {

/// Lets screen readers read every GridView as a table: each cell's name says where it is and what
/// it holds, "row 2, column 3, value 17", a total's also whether it is right. Call it before the
/// first window is made.
void InstallGridAccessibility();

}  // namespace numorra

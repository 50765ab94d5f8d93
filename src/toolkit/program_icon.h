#pragma once

#include <QIcon>

namespace numorra {

/// The program's own icon, in the sizes that it was drawn in.
QIcon ProgramIcon();

}  // namespace numorra

#pragma once

#include <QIcon>

namespace numorra {

/// The program's icon, in all the sizes that it was drawn in.
QIcon ProgramIcon();

}  // namespace numorra

#pragma once

#include <QWidget>

#include "app/window/menus/desk.h"
#include "toolkit/file_chooser.h"

namespace numorra {

/// Opens the dialog that exports the board, or the drawing that covers it, as a picture on white.
/// The puzzle and the solution are those of the board at this moment.
void OpenExport(Desk& desk, FileChooser& files, QWidget* window);

}  // namespace numorra

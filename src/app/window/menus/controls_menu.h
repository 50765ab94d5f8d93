#pragma once

#include <QHash>
#include <QMenuBar>

#include "app/window/frames/control_column.h"

namespace numorra {

/// The Board menu: an item for each button of the column of controls, so that everything can be
/// started by keyboard and in full screen. An item presses its button, and is enabled when that is.
class ControlsMenu : public QObject {
  Q_OBJECT

 public:
  ControlsMenu(QMenuBar* bar, const ControlColumn& controls);

  /// Follows the buttons.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QHash<const QObject*, QAction*> items_;  ///< by button
};

}  // namespace numorra

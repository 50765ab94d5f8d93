#pragma once

#include <QDockWidget>
#include <QHash>
#include <QMainWindow>
#include <QTimer>

namespace numorra {

/// Makes room for the window's panels: the window grows when one opens, as far as the screen
/// allows, and shrinks when it closes. The whole window, with its frame, stays on the screen.
///
/// While the window is maximized or in full screen, the change of size is kept in `owed_` and
/// applied once the window manager has restored the window's normal size.
class PanelRoom : public QObject {
  Q_OBJECT

 public:
  explicit PanelRoom(QMainWindow* window);

  /// Call this when a panel was opened or closed.
  void Follow(const QDockWidget* panel);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QSize RoomFor(const QDockWidget* panel) const;
  bool HasOwnSize() const;
  void Pay();
  void MoveOntoScreen();

  QMainWindow* window_;
  QHash<const QDockWidget*, QSize> given_;  ///< for each visible panel
  QSize owed_{0, 0};
  QTimer settling_;  ///< runs while the window manager may still be resizing
};

}  // namespace numorra

#pragma once

#include <QDockWidget>
#include <QHash>
#include <QMainWindow>
#include <QTimer>

namespace numorra {

/// Gives the window room for its panels: it grows with one that comes, as far as the screen goes,
/// and shrinks as it goes. The whole window stays on the screen, with its frame.
///
/// A window that is maximized or fills the screen has no size of its own; what it is to grow or
/// shrink by is owed to it, and paid once the window manager has given it its size back.
class PanelRoom : public QObject {
  Q_OBJECT

 public:
  explicit PanelRoom(QMainWindow* window);

  /// When a panel has come or gone.
  void Follow(const QDockWidget* panel);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QSize RoomFor(const QDockWidget* panel) const;
  bool HasOwnSize() const;
  void Pay();
  void MoveOntoScreen();

  QMainWindow* window_;
  QHash<const QDockWidget*, QSize> given_;  ///< for each panel in sight
  QSize owed_{0, 0};
  QTimer settling_;  ///< runs while the window manager may still be at it
};

}  // namespace numorra

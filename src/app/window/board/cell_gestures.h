#pragma once

#include <functional>
#include <optional>

#include <QLabel>
#include <QMouseEvent>
#include <QTimer>

#include "app/board/place.h"
#include "app/window/board/grid_view.h"

namespace numorra {

/// What a left press on a cell of a view can become: a drag of its number, a tap, or on a touch
/// screen a long press. The press itself stays the view's.
///
/// A press becomes a drag when the pointer is as far away as the desktop wants for any drag. The
/// number then follows the pointer, above it, where a finger does not hide it. Released beside the
/// cells, it goes nowhere.
class CellGestures : public QObject {
  Q_OBJECT

 public:
  CellGestures(GridView* view, QObject* parent);

  /// Whether the number of a cell can be dragged.
  std::function<bool(Place)> CanDrag = [](Place) { return false; };

  bool eventFilter(QObject* watched, QEvent* event) override;

 Q_SIGNALS:
  /// A number was dragged to another cell.
  void Dragged(Place from, Place to);

  /// A press was released where it began.
  void Tapped(Place cell, bool byFinger);

  /// A finger has stayed on a cell as long as the desktop wants for a long press.
  void Held(Place cell, QPoint globalPosition);

 private:
  struct Press {
    Place Cell;
    QPoint At;
    QPoint Global;
    bool ByFinger;
    bool Dragging = false;
  };

  std::optional<Place> PlaceAt(QPoint point) const;
  void Begin(const QMouseEvent& event);
  void Move(const QMouseEvent& event);
  void End(const QMouseEvent& event);
  void Forget();

  GridView* view_;
  QLabel* carried_;
  QTimer hold_;
  std::optional<Press> press_;
};

}  // namespace numorra

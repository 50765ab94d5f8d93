#pragma once

#include <QScrollArea>

namespace numorra {

/// Holds a column of controls at its natural width and scrolls it if the window is too low; the
/// scroll bar has its own space, so that it covers nothing.
class ColumnScroller : public QScrollArea {
  Q_OBJECT

 public:
  explicit ColumnScroller(QWidget* column);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void FitWidth();
};

}  // namespace numorra

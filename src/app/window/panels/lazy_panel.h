#pragma once

#include <QDockWidget>

namespace numorra {

/// A panel whose controls are made when it is first opened, to keep the program's start fast.
class LazyPanel : public QDockWidget {
 public:
  using QDockWidget::QDockWidget;

  void setVisible(bool visible) override {
    if (visible && !widget()) Furnish();
    QDockWidget::setVisible(visible);
  }

 protected:
  /// Makes the controls, and sets the widget that holds them.
  virtual void Furnish() = 0;
};

}  // namespace numorra

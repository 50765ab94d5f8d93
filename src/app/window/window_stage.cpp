#include "app/window/window_stage.h"

#include <QGuiApplication>

namespace numorra {

void WindowStage::ShowBusy(bool busy) {
  const bool shown = QGuiApplication::overrideCursor() != nullptr;
  if (busy && !shown) QGuiApplication::setOverrideCursor(Qt::BusyCursor);
  if (!busy && shown) QGuiApplication::restoreOverrideCursor();
  WriteCount();
}

void WindowStage::ShowCounter(bool counting) {
  WriteCount();
  frame_.ShowCounter(counting);
  if (!counting) frame_.SolveAuto->setFocus();
}

void WindowStage::ShowCount(const char* text) {
  count_ = text;
  if (count_.empty()) WriteCount();
}

void WindowStage::Yield() {
  if (runner_.YieldIsDue()) WriteCount();
  runner_.Yield();
}

void WindowStage::WriteCount() {
  frame_.IterationCount->setText(QString::fromStdString(count_));
}

}  // namespace numorra

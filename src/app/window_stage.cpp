#include "app/window_stage.h"

#include <QGuiApplication>

namespace numorra {

void WindowStage::ShowBusy(bool busy) {
  const bool shown = QGuiApplication::overrideCursor() != nullptr;
  if (busy && !shown) QGuiApplication::setOverrideCursor(Qt::BusyCursor);
  if (!busy && shown) QGuiApplication::restoreOverrideCursor();
}

void WindowStage::ShowCounter(bool counting) {
  frame_.ShowCounter(counting);
  if (!counting) frame_.SolveAuto->setFocus();
}

void WindowStage::ShowCount(const char* text) {
  frame_.IterationCount->setText(QLatin1String(text));
}

void WindowStage::Yield() {
  runner_.Yield();
}

}  // namespace numorra

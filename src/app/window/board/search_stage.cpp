#include "app/window/board/search_stage.h"

#include <QGuiApplication>

#include "toolkit/tr.h"

namespace numorra {

void SearchStage::ShowBusy(bool busy) {
  sinceStart_.start();
  if (busy) {
    QGuiApplication::setOverrideCursor(Qt::BusyCursor);
  } else {
    QGuiApplication::restoreOverrideCursor();
    place_.SearchBar->hide();
  }
}

void SearchStage::Yield() {
  if (runner_.YieldIsDue()) {
    constexpr int kMilliseconds = 1000;
    place_.ShowSearch(Tr("%1, for %2 s", doing_, sinceStart_.elapsed() / kMilliseconds));
  }
  runner_.Yield();
}

}  // namespace numorra

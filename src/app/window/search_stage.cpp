#include "app/window/search_stage.h"

#include <QEvent>
#include <QGuiApplication>
#include <QHBoxLayout>

#include "toolkit/named.h"

namespace numorra {

SearchBar::SearchBar(QWidget* over)
    : QFrame(over), Stop(Named("StopSearchx", new QPushButton("Stop"))), text_(new QLabel) {
  setObjectName("SearchBar");
  Stop->setShortcut(Qt::Key_Escape);
  setFrameShape(QFrame::StyledPanel);
  setAutoFillBackground(true);
  auto* row = new QHBoxLayout(this);
  row->addWidget(text_, 1);
  row->addWidget(Stop);
  hide();
  over->installEventFilter(this);
}

void SearchBar::ShowText(const QString& text) {
  text_->setText(text);
  setAccessibleName(text);
  if (isVisible()) return;
  Place();
  show();
  raise();
}

bool SearchBar::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize) Place();
  return QFrame::eventFilter(watched, event);
}

void SearchBar::Place() {
  const QRect over = parentWidget()->contentsRect();
  const int height = sizeHint().height();
  setGeometry(over.left(), over.bottom() + 1 - height, over.width(), height);
}

void SearchStage::ShowBusy(bool busy) {
  sinceStart_.start();
  if (busy) {
    QGuiApplication::setOverrideCursor(Qt::BusyCursor);
  } else {
    QGuiApplication::restoreOverrideCursor();
    bar_.hide();
  }
}

void SearchStage::Yield() {
  if (runner_.YieldIsDue()) {
    constexpr int kMilliseconds = 1000;
    bar_.ShowText(QString("%1, for %2 s").arg(doing_).arg(sinceStart_.elapsed() / kMilliseconds));
  }
  runner_.Yield();
}

}  // namespace numorra

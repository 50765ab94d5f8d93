#include "app/window/frames/corners_frame.h"

#include <QFocusEvent>
#include <QGridLayout>

#include "generate/corner_choice.h"
#include "toolkit/named.h"
#include "toolkit/tr.h"

namespace numorra {

void CornerBox::focusInEvent(QFocusEvent* event) {
  QComboBox::focusInEvent(event);
  switch (event->reason()) {
    case Qt::MouseFocusReason:
    case Qt::TabFocusReason:
    case Qt::BacktabFocusReason:
    case Qt::ShortcutFocusReason:
      Q_EMIT Entered();
      break;
    default:
      break;
  }
}

CornersFrame::CornersFrame(QWidget* parent)
    : QGroupBox(TrIn("frame", "Corners"), parent),
      Combo1(Named("Combo1", new CornerBox)),
      DoCor1(Named("DoCor1", new QPushButton(Tr("&Diagonals")))),
      DoCor2(Named("DoCor2", new QPushButton(Tr("Ed&ges")))) {
  setObjectName("Frame6");
  Combo1->addItem(Tr(kAnyCorner));
  Combo1->setToolTip(Tr("The number wanted in the top left corner"));
  Combo1->setAccessibleName(Tr("top left corner"));
  DoCor1->setToolTip(Tr("Vary the corners and diagonals of this board"));
  DoCor2->setToolTip(Tr("Vary the corners and edges of this board"));
  auto* layout = new QGridLayout(this);
  layout->addWidget(Combo1, 0, 0, 1, 2);
  layout->addWidget(DoCor1, 1, 0);
  layout->addWidget(DoCor2, 1, 1);
}

void CornersFrame::AddItem(const std::string& text) {
  Combo1->addItem(QString::fromStdString(text));
}

int CornersFrame::ListCount() const {
  return Combo1->count();
}

std::string CornersFrame::List(int index) const {
  return Combo1->itemText(index).toStdString();
}

}  // namespace numorra

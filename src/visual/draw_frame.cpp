#include "visual/draw_frame.h"

#include <QGridLayout>

#include "app/named.h"

namespace numorra {

DrawFrame::DrawFrame(QWidget* parent)
    : QGroupBox("Draw", parent),
      Command1(Named("Command1", new QPushButton("Cric&les"))),
      Command2(Named("Command2", new QPushButton("Vec&tors"))),
      Command4(Named("Command4", new QPushButton("&Clear"))) {
  setObjectName("Frame8");
  Command1->setToolTip("Draw each number as a circle of its size");
  Command2->setToolTip("Draw the way from the smallest number to the largest");
  Command4->setToolTip("Show the board again");
  auto* layout = new QGridLayout(this);
  layout->addWidget(Command1, 0, 0);
  layout->addWidget(Command2, 0, 1);
  layout->addWidget(Command4, 1, 0, 1, 2);
}

}  // namespace numorra

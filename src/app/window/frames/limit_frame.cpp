#include "app/window/frames/limit_frame.h"

#include <QVBoxLayout>

#include "toolkit/named.h"
#include "toolkit/tr.h"

namespace numorra {

LimitFrame::LimitFrame(QWidget* parent)
    : QGroupBox(TrIn("frame", "Limit to 9"), parent),
      Option1(Named("Option1", new QCheckBox(Tr("cells &1 to 9")))) {
  setObjectName("Frame2");
  Option1->setToolTip(Tr("Limit the value in each cell of the grid to maximum 9"));
  auto* column = new QVBoxLayout(this);
  column->addWidget(Option1);
}

}  // namespace numorra

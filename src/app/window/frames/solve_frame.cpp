#include "app/window/frames/solve_frame.h"

#include <QVBoxLayout>

#include "toolkit/named.h"
#include "toolkit/tr.h"

namespace numorra {

SolveFrame::SolveFrame(QWidget* parent)
    : QGroupBox(TrIn("frame", "Solve"), parent),
      Option3(Named("Option3", new QRadioButton(Tr("&Normal")))),
      Option4(Named("Option4", new QRadioButton(Tr("Var&iable")))),
      SolveAuto(Named("SolveAuto", new QPushButton(Tr("&Auto")))),
      SolveAgain(Named("SolveAgain", new QPushButton(Tr("S&olve Again")))),
      SolveManual(Named("SolveManual", new QPushButton(Tr("&Manual")))),
      IterationCount(Named("IterationCount", new QLabel)),
      autoPlace_(new QStackedLayout) {
  setObjectName("Frame3");
  Option3->setChecked(true);
  Option3->setToolTip(Tr("Squares of the numbers 1 to size x size"));
  Option4->setToolTip(Tr("Squares of any numbers, with the sum you choose"));
  SolveAuto->setToolTip(Tr("Build a magic square of this size"));
  SolveAgain->setToolTip(Tr("Build another square like the last one"));
  SolveManual->setToolTip(Tr("Show grid, user will create MagicSqaure"));
  IterationCount->setAlignment(Qt::AlignCenter);

  SolveAuto->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  IterationCount->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  autoPlace_->addWidget(SolveAuto);
  autoPlace_->addWidget(IterationCount);
  auto* column = new QVBoxLayout(this);
  column->addWidget(Option3);
  column->addWidget(Option4);
  column->addLayout(autoPlace_);
  column->addWidget(SolveAgain);
  column->addWidget(SolveManual);
}

void SolveFrame::ShowCounter(bool counting) {
  autoPlace_->setCurrentWidget(counting ? static_cast<QWidget*>(IterationCount) : SolveAuto);
}

}  // namespace numorra

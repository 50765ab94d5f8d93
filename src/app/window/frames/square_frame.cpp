#include "app/window/frames/square_frame.h"

#include <QFormLayout>
#include <QKeyEvent>

#include "toolkit/named.h"
#include "toolkit/tr.h"

namespace numorra {

SquareFrame::SquareFrame(QWidget* parent)
    : QGroupBox(TrIn("frame", "Square"), parent),
      Text1(Named("Text1", new QLineEdit("11"))),
      Text4(Named("Text4", new QLineEdit("34"))),
      Set4x4(Named("Set4x4", new QPushButton(Tr("&4x4Set")))),
      SolveRandum(Named("SolveRandum", new QPushButton(Tr("&Random")))) {
  setObjectName("Frame4");
  Text1->setToolTip(Tr("The number of cells on a side, 3 to 50"));
  Text4->setToolTip(Tr("The total of every row, column and diagonal"));
  SolveRandum->setToolTip(Tr("Propose a size and a sum"));
  Set4x4->setToolTip(Tr("Build a 4x4 square from its top row, such as a date"));
  for (QLineEdit* box : {Text1, Text4}) {
    box->setAlignment(Qt::AlignRight);
    box->installEventFilter(this);
    box->setMinimumWidth(box->fontMetrics().horizontalAdvance("0") * 9);
  }

  auto* form = new QFormLayout(this);
  form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  form->addRow(Tr("&size"), Text1);
  form->addRow(Tr("s&um"), Text4);
  form->addRow(Set4x4);
  form->addRow(SolveRandum);
}

bool SquareFrame::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride) {
    const auto* key = static_cast<QKeyEvent*>(event);
    if (key->matches(QKeySequence::Undo) || key->matches(QKeySequence::Redo)) return true;
  }
  return QGroupBox::eventFilter(watched, event);
}

std::string SquareFrame::Size() const {
  return Text1->text().toStdString();
}

std::string SquareFrame::Sum() const {
  return Text4->text().toStdString();
}

void SquareFrame::SetSize(const std::string& text) {
  Text1->setText(QString::fromStdString(text));
}

void SquareFrame::SetSum(const std::string& text) {
  Text4->setText(QString::fromStdString(text));
}

}  // namespace numorra

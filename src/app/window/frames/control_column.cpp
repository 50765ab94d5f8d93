#include "app/window/frames/control_column.h"

#include <QSignalBlocker>
#include <QVBoxLayout>

#include "app/board/numbers.h"
#include "generate/corner_choice.h"
#include "words/say.h"

namespace numorra {

ControlColumn::ControlColumn(int gap, int inside)
    : ColumnScroller(new QWidget),
      Limit(new LimitFrame),
      Solve(new SolveFrame),
      Square(new SquareFrame),
      Corners(new CornersFrame),
      Colours(new ColourPicker),
      Draw(new DrawFrame) {
  auto* frames = new QVBoxLayout(widget());
  frames->setContentsMargins({});
  frames->setSpacing(gap);
  for (QGroupBox* frame :
       std::initializer_list<QGroupBox*>{Limit, Solve, Square, Corners, Colours, Draw}) {
    frame->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    frame->layout()->setContentsMargins(inside, inside, inside, inside);
    frame->layout()->setSpacing(inside);
    frames->addWidget(frame);
  }
  frames->addStretch();
  Colours->ShowBars();
}

void ControlColumn::ShowMode(bool variable) {
  const QSignalBlocker quiet(Solve->Option4);
  (variable ? Solve->Option4 : Solve->Option3)->setChecked(true);
  Square->Text4->setEnabled(variable);
  Limit->setEnabled(variable);
  Corners->setEnabled(variable);
}

bool ControlColumn::LimitToNine() const {
  return Limit->Option1->isChecked();
}

void ControlColumn::UncheckLimit() {
  Limit->Option1->setChecked(false);
}

std::optional<double> ControlColumn::Corner() const {
  const std::string text = Corners->Combo1->currentText().toStdString();
  return text == Say(kAnyCorner) ? std::nullopt : std::optional(Val(text));
}

}  // namespace numorra

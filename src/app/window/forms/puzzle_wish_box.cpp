#include "app/window/forms/puzzle_wish_box.h"

#include <QFormLayout>

#include "puzzle/grade.h"
#include "toolkit/named.h"

namespace numorra {

PuzzleWishBox::PuzzleWishBox(QWidget* parent)
    : QWidget(parent),
      grade_(Named("GradeBox", new QComboBox)),
      fewest_(Named("FewestCluesx", new QCheckBox("&as few as possible"))),
      clues_(Named("CluesBox", new QSpinBox)),
      symmetric_(Named("SymmetricGapsx", new QCheckBox("gaps &opposite each other"))) {
  for (const Grade grade : kGrades)
    grade_->addItem(NameOf(grade));
  fewest_->setChecked(true);
  clues_->setEnabled(false);
  clues_->setAccessibleName("Number of clues");
  auto* form = new QFormLayout(this);
  form->setContentsMargins({});
  form->addRow("&Grade", grade_);
  auto* clues = new QHBoxLayout;
  clues->addWidget(fewest_);
  clues->addWidget(clues_);
  clues->addStretch();
  form->addRow("Clues", clues);
  form->addRow("", symmetric_);
  connect(fewest_, &QCheckBox::toggled, clues_, &QSpinBox::setDisabled);
  connect(grade_, &QComboBox::currentIndexChanged, this, &PuzzleWishBox::Changed);
  connect(fewest_, &QCheckBox::toggled, this, &PuzzleWishBox::Changed);
  connect(clues_, &QSpinBox::valueChanged, this, &PuzzleWishBox::Changed);
  connect(symmetric_, &QCheckBox::toggled, this, &PuzzleWishBox::Changed);
}

PuzzleWish PuzzleWishBox::Wish() const {
  PuzzleWish wish{static_cast<Grade>(grade_->currentIndex()), {}, symmetric_->isChecked()};
  if (!fewest_->isChecked()) wish.ClueCount = clues_->value();
  return wish;
}

void PuzzleWishBox::SetOrder(int order) {
  const QSignalBlocker quiet(clues_);
  clues_->setRange(0, order * order - 1);
  if (fewest_->isChecked()) clues_->setValue(order * order / 2);
}

}  // namespace numorra

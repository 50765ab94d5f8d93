#include "app/window/forms/puzzle_wish_box.h"

#include <QFormLayout>

#include "toolkit/named.h"
#include "toolkit/tr.h"

namespace numorra {

PuzzleWishBox::PuzzleWishBox(QWidget* parent)
    : QWidget(parent), grade_(Named("GradeBox", new QComboBox)), clues_(new CluesBox) {
  for (const Grade grade : kGrades)
    grade_->addItem(Tr(NameOf(grade)));
  auto* form = new QFormLayout(this);
  form->setContentsMargins({});
  form->addRow(Tr("&Grade"), grade_);
  form->addRow(Tr("Clues"), clues_);
  connect(grade_, &QComboBox::currentIndexChanged, this, &PuzzleWishBox::Changed);
  connect(clues_, &CluesBox::Changed, this, &PuzzleWishBox::Changed);
}

PuzzleWish PuzzleWishBox::Wish() const {
  return {static_cast<Grade>(grade_->currentIndex()), clues_->Count(), clues_->Symmetric()};
}

}  // namespace numorra

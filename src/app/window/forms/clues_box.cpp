#include "app/window/forms/clues_box.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "toolkit/named.h"
#include "toolkit/tr.h"

namespace numorra {

CluesBox::CluesBox(QWidget* parent)
    : QWidget(parent),
      fewest_(Named("FewestCluesx", new QCheckBox(Tr("&as few as possible")))),
      clues_(Named("CluesBox", new QSpinBox)),
      symmetric_(Named("SymmetricGapsx", new QCheckBox(Tr("gaps &opposite each other")))) {
  fewest_->setChecked(true);
  clues_->setEnabled(false);
  clues_->setAccessibleName(Tr("Number of clues"));
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins({});
  auto* row = new QHBoxLayout;
  row->addWidget(fewest_);
  row->addWidget(clues_);
  row->addStretch();
  column->addLayout(row);
  column->addWidget(symmetric_);
  connect(fewest_, &QCheckBox::toggled, clues_, &QSpinBox::setDisabled);
  connect(fewest_, &QCheckBox::toggled, this, &CluesBox::Changed);
  connect(clues_, &QSpinBox::valueChanged, this, &CluesBox::Changed);
  connect(symmetric_, &QCheckBox::toggled, this, &CluesBox::Changed);
}

std::optional<int> CluesBox::Count() const {
  return fewest_->isChecked() ? std::nullopt : std::optional(clues_->value());
}

void CluesBox::Show(std::optional<int> count, bool symmetric) {
  fewest_->setChecked(!count);
  if (count) clues_->setValue(*count);
  symmetric_->setChecked(symmetric);
}

void CluesBox::SetOrder(int order) {
  const QSignalBlocker quiet(clues_);
  clues_->setRange(0, order * order - 1);
  if (fewest_->isChecked()) clues_->setValue(order * order / 2);
}

}  // namespace numorra

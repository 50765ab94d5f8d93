#include "app/window/forms/fresh_set_box.h"

#include <QGridLayout>
#include <QLabel>
#include <QSignalBlocker>

#include "app/board/orders.h"
#include "toolkit/named.h"

namespace numorra {
namespace {

/// The numbers of the squares, in the order of their list.
enum Numbers { EachOnce, AnyNumbers, OneToNine };

constexpr int kMostOfGrade = 200;
constexpr double kHighestShare = 32767;  // a cell's share of the total that squares are built from
constexpr double kHighestShareOfNine = 5;

}  // namespace

FreshSetBox::FreshSetBox(const PuzzleSetWish& wish, QWidget* parent)
    : QWidget(parent),
      size_(Named("SheetSize", new QSpinBox)),
      numbers_(Named("SheetNumbers", new QComboBox)),
      total_(Named("SheetTotal", new QDoubleSpinBox)),
      clues_(new CluesBox),
      rows_(new QFormLayout(this)) {
  const SquareWish& square = wish.Square;
  size_->setRange(kMinOrder, kMaxOrder);
  size_->setValue(square.Order);
  numbers_->addItems({"each number once", "any whole numbers", "the numbers 1 to 9"});
  numbers_->setCurrentIndex(square.LimitToNine ? OneToNine : square.Total ? AnyNumbers : EachOnce);
  total_->setDecimals(0);
  auto* grades = new QGridLayout;
  for (std::size_t i = 0; i < kGrades.size(); ++i) {
    const Grade grade = kGrades[i];
    auto* name = new QLabel(NameOf(grade));
    counts_[i] = Named(QString("Sheet_%1").arg(NameOf(grade)).toUtf8(), new QSpinBox);
    counts_[i]->setRange(0, kMostOfGrade);
    counts_[i]->setAccessibleName(QString("How many %1 puzzles").arg(NameOf(grade)));
    for (const GradeShare& share : wish.Grades) {
      if (share.Wanted == grade) counts_[i]->setValue(share.Count);
    }
    grades->addWidget(name, 0, static_cast<int>(i), Qt::AlignHCenter);
    grades->addWidget(counts_[i], 1, static_cast<int>(i));
    connect(counts_[i], &QSpinBox::valueChanged, this, &FreshSetBox::Changed);
  }
  rows_->setContentsMargins({});
  rows_->addRow("Si&ze", size_);
  rows_->addRow("&Numbers", numbers_);
  rows_->addRow("Tota&l", total_);
  rows_->addRow("How many", grades);
  rows_->addRow("Clues", clues_);
  FollowSize();
  total_->setValue(static_cast<double>(square.Total.value_or(NormalTotal(square.Order))));
  clues_->Show(wish.ClueCount, wish.Symmetric);
  connect(size_, &QSpinBox::valueChanged, this, &FreshSetBox::FollowSize);
  connect(numbers_, &QComboBox::currentIndexChanged, this, &FreshSetBox::FollowSize);
  connect(total_, &QDoubleSpinBox::valueChanged, this, &FreshSetBox::Changed);
  connect(clues_, &CluesBox::Changed, this, &FreshSetBox::Changed);
}

/// The size and the numbers limit the total; each number once leaves only one.
void FreshSetBox::FollowSize() {
  const int order = size_->value();
  {
    const QSignalBlocker quiet(total_);
    const double share =
        numbers_->currentIndex() == OneToNine ? kHighestShareOfNine : kHighestShare;
    total_->setRange(order, share * order);
    total_->setEnabled(numbers_->currentIndex() != EachOnce);
    if (!total_->isEnabled()) total_->setValue(static_cast<double>(NormalTotal(order)));
    clues_->SetOrder(order);
  }
  Q_EMIT Changed();
}

PuzzleSetWish FreshSetBox::Wish() const {
  PuzzleSetWish wish{{size_->value()}, {}, clues_->Count(), clues_->Symmetric()};
  if (numbers_->currentIndex() != EachOnce) {
    wish.Square.Total = static_cast<std::int64_t>(total_->value());
  }
  wish.Square.LimitToNine = numbers_->currentIndex() == OneToNine;
  for (std::size_t i = 0; i < kGrades.size(); ++i) {
    if (counts_[i]->value() > 0) wish.Grades.push_back({kGrades[i], counts_[i]->value()});
  }
  return wish;
}

QString InWords(const PuzzleSetWish& wish) {
  const SquareWish& square = wish.Square;
  QStringList grades;
  int all = 0;
  for (const GradeShare& share : wish.Grades) {
    grades += QString("%1 %2").arg(share.Count).arg(NameOf(share.Wanted));
    all += share.Count;
  }
  const auto rules = square.Total ? Rules::Positive : Rules::Normal;
  return QString("%1 of size %2, total %3, with %4: %5")
      .arg(all == 1 ? "1 puzzle" : QString("%1 puzzles").arg(all))
      .arg(square.Order)
      .arg(square.Total.value_or(NormalTotal(square.Order)))
      .arg(square.LimitToNine ? "numbers up to 9"
                              : QString::fromStdString(InWords(rules, square.Order)))
      .arg(grades.join(", "));
}

}  // namespace numorra

#include "app/window/forms/fresh_set_box.h"

#include <QGridLayout>
#include <QLabel>
#include <QSignalBlocker>

#include "app/board/orders.h"
#include "toolkit/named.h"
#include "toolkit/tr.h"

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
  numbers_->addItems({Tr("each number once"), Tr("any whole numbers"), Tr("the numbers 1 to 9")});
  numbers_->setCurrentIndex(square.LimitToNine ? OneToNine : square.Total ? AnyNumbers : EachOnce);
  total_->setDecimals(0);
  auto* grades = new QGridLayout;
  for (std::size_t i = 0; i < kGrades.size(); ++i) {
    const Grade grade = kGrades[i];
    auto* name = new QLabel(Tr(NameOf(grade)));
    counts_[i] = Named(QString("Sheet_%1").arg(NameOf(grade)).toUtf8(), new QSpinBox);
    counts_[i]->setRange(0, kMostOfGrade);
    counts_[i]->setAccessibleName(Tr("How many %1 puzzles", Tr(NameOf(grade))));
    for (const GradeShare& share : wish.Grades) {
      if (share.Wanted == grade) counts_[i]->setValue(share.Count);
    }
    grades->addWidget(name, 0, static_cast<int>(i), Qt::AlignHCenter);
    grades->addWidget(counts_[i], 1, static_cast<int>(i));
    connect(counts_[i], &QSpinBox::valueChanged, this, &FreshSetBox::Changed);
  }
  rows_->setContentsMargins({});
  rows_->addRow(Tr("Si&ze"), size_);
  rows_->addRow(Tr("&Numbers"), numbers_);
  rows_->addRow(Tr("Tota&l"), total_);
  rows_->addRow(Tr("How many"), grades);
  rows_->addRow(Tr("Clues"), clues_);
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
  QString grades;
  int all = 0;
  for (const GradeShare& share : wish.Grades) {
    // Translators: so many puzzles of a grade, as in "10 easy".
    const QString few = Tr("%1 %2", share.Count, Tr(NameOf(share.Wanted)));
    grades = grades.isEmpty() ? few : Tr("%1, %2", grades, few);
    all += share.Count;
  }
  const auto rules = square.Total ? Rules::Positive : Rules::Normal;
  // Translators: "30 puzzles of size 4, total 34, with the numbers 1 to 16, each once: 20 easy, 10
  // hard".
  return Tr("%1 of size %2, total %3, with %4: %5", TrCounted("%1 puzzle", "%1 puzzles", all),
            square.Order, square.Total.value_or(NormalTotal(square.Order)),
            square.LimitToNine ? Say("numbers up to 9") : InWords(rules, square.Order), grades);
}

}  // namespace numorra

#include "app/window/forms/worksheet_form.h"

#include <QFormLayout>
#include <QScopeGuard>
#include <QVBoxLayout>

#include "toolkit/named.h"
#include "toolkit/on_signal.h"

namespace numorra {
namespace {

/// Thrown if a set of puzzles cannot be made; holds the reason.
struct NoSet {
  std::string Why;
};

}  // namespace

WorksheetForm::WorksheetForm(PuzzlesAtHand atHand, SquareWish fresh, PagePrinter& printer,
                             Random& random, Dialogs& dialogs, QWidget* parent)
    : CommandForm("PrintWorksheet", "Print Worksheet", dialogs, parent),
      atHand_(std::move(atHand.Puzzles)),
      fresh_(fresh),
      printer_(printer),
      random_(random),
      printsAtHand_(Named("SheetFromBoardx", new QRadioButton(atHand.Caption))),
      count_(Named("SheetCount", new QSpinBox)),
      wish_(new PuzzleWishBox),
      perPage_(Named("PerPage", new QComboBox)),
      orientation_(Named("Orientation", new QComboBox)),
      title_(Named("SheetTitle", new QLineEdit(WorksheetWish().Title))),
      total_(Named("TotalGivenx", new QCheckBox("the &total is given"))),
      told_(Named("SheetTold", new QLabel)),
      print_(Named("PreviewSheetx", new QPushButton("&Preview and Print..."))),
      stop_(Named("StopMakingx", new QPushButton("&Stop"))) {
  constexpr int kMostPuzzles = 200;
  count_->setRange(1, kMostPuzzles);
  count_->setValue(6);
  for (const int number : {1, 2, 4, 6})
    perPage_->addItem(QString::number(number), number);
  orientation_->addItems({"portrait", "landscape"});
  perPage_->setCurrentIndex(perPage_->count() - 1);
  total_->setChecked(true);
  auto* fromFresh = Named("SheetFreshx",
                          new QRadioButton(QString("&Fresh puzzles of size %1").arg(fresh_.Order)));
  printsAtHand_->setEnabled(!atHand_.empty());
  (atHand_.empty() ? fromFresh : printsAtHand_)->setChecked(true);
  wish_->SetOrder(fresh_.Order);
  told_->setWordWrap(true);
  told_->setMinimumHeight(2 * told_->fontMetrics().lineSpacing());
  auto* close = Named("CloseSheetx", new QPushButton("&Close"));

  auto* form = new QFormLayout;
  form->addRow("How &many", count_);
  form->addRow(wish_);
  auto* column = new QVBoxLayout(this);
  column->addWidget(printsAtHand_);
  column->addWidget(fromFresh);
  column->addLayout(form);
  auto* layout = new QFormLayout;
  layout->addRow("Puzzles on a pag&e", perPage_);
  layout->addRow("Pape&r", orientation_);
  layout->addRow("T&itle", title_);
  layout->addRow("", total_);
  column->addLayout(layout);
  column->addWidget(told_);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(print_);
  buttons->addWidget(stop_);
  buttons->addStretch();
  buttons->addWidget(close);
  column->addLayout(buttons);
  const auto follow = [this] {
    const bool makes = !printsAtHand_->isChecked();
    count_->setEnabled(makes);
    wish_->setEnabled(makes);
  };
  follow();
  ShowMaking(false);
  OnSignal(runner_, printsAtHand_, &QRadioButton::toggled, this, follow);
  OnClick(runner_, print_, this, [this] { Print(); });
  OnClick(runner_, stop_, this, [this] { runner_.Run("Stop", [this] { ShowMaking(false); }); });
  OnClick(runner_, close, this, [this] { this->close(); });
}

void WorksheetForm::ShowMaking(bool making) {
  stop_->setEnabled(making);
  print_->setEnabled(!making);
  told_->clear();
}

std::vector<MadePuzzle> WorksheetForm::Puzzles() {
  if (printsAtHand_->isChecked()) return atHand_;
  ShowMaking(true);
  const auto done = qScopeGuard([this] { ShowMaking(false); });
  std::vector<MadePuzzle> puzzles;
  FormYielding stage(runner_, [&] {
    told_->setText(
        QString("Making puzzle %1 of %2...").arg(puzzles.size() + 1).arg(count_->value()));
  });
  random_.Reseed();
  while (static_cast<int>(puzzles.size()) < count_->value()) {
    stage.Yield();
    auto made = MakeFreshPuzzle(fresh_, wish_->Wish(), random_, stage);
    if (const auto* cannot = std::get_if<CannotMake>(&made)) throw NoSet{cannot->Why};
    puzzles.push_back(std::get<MadePuzzle>(std::move(made)));
  }
  return puzzles;
}

void WorksheetForm::Print() {
  runner_.Run("Worksheet", [this] {
    try {
      const WorksheetWish wish{perPage_->currentData().toInt(), title_->text(),
                               total_->isChecked()};
      const Worksheet sheet(Puzzles(), wish);
      printer_.Preview(
          this, {title_->text(), sheet.Pages(),
                 orientation_->currentIndex() == 0 ? QPageLayout::Portrait : QPageLayout::Landscape,
                 [&sheet](QPainter& painter, QSizeF size, int page) {
                   sheet.PaintPage(painter, size, page);
                 }});
    } catch (const NoSet& none) {
      told_->setText(QString::fromStdString(none.Why));
    }
  });
}

}  // namespace numorra

#include "app/window/forms/worksheet_form.h"

#include <algorithm>

#include <QDir>
#include <QFormLayout>
#include <QScopeGuard>
#include <QVBoxLayout>

#include "publish/play_page.h"
#include "toolkit/named.h"
#include "toolkit/on_signal.h"
#include "toolkit/tr.h"
#include "toolkit/whole_file.h"

namespace numorra {
namespace {

/// "on 2 pages, with 2 pages of answers"
QString PagesFor(int puzzles, const WorksheetWish& layout) {
  if (layout.Options.LargePrint) return Tr("in large print, with answers");
  const int shared = (puzzles + layout.PerPage - 1) / layout.PerPage;
  const int pages = layout.Options.PageAPupil ? puzzles : shared;
  // Translators: "on 2 pages, with 1 page of answers".
  return Tr("%1, with %2", TrCounted("on %1 page", "on %1 pages", pages),
            TrCounted("%1 page of answers", "%1 pages of answers", shared));
}

/// The largest square of a set, as far as it is known before it is made, to see whether it fits.
MadePuzzle LargestOf(const PuzzleSetWish& set) {
  const int order = set.Square.Order;
  MadePuzzle made;
  const auto number = static_cast<std::int64_t>(set.Square.Total ? 1 : order * order);
  made.Clues.Cells = made.Solution.Cells = SquareOf(order, [&](int) { return number; });
  return made;
}

bool TakesLong(const PuzzleSetWish& set) {
  constexpr int kLargeOrder = 40;
  return set.Square.Order >= kLargeOrder &&
         std::any_of(set.Grades.begin(), set.Grades.end(),
                     [](const GradeShare& share) { return share.Wanted > Grade::Easy; });
}

/// Gives the labels of two forms, one below the other, the same width.
void AlignLabels(const QFormLayout& above, const QFormLayout& below) {
  std::vector<QWidget*> labels;
  for (const QFormLayout* form : {&above, &below}) {
    for (int row = 0; row < form->rowCount(); ++row) {
      const QLayoutItem* label = form->itemAt(row, QFormLayout::LabelRole);
      if (label) labels.push_back(label->widget());
    }
  }
  int width = 0;
  for (const QWidget* label : labels)
    width = std::max(width, label->sizeHint().width());
  for (QWidget* label : labels)
    label->setMinimumWidth(width);
}

int PuzzlesIn(const PuzzleSetWish& set) {
  int all = 0;
  for (const GradeShare& share : set.Grades)
    all += share.Count;
  return all;
}

}  // namespace

WorksheetForm::WorksheetForm(PuzzlesAtHand atHand, SheetChoice& choice, const Ports& ports,
                             Random& random, Dialogs& dialogs, QWidget* parent)
    : CommandForm("PrintWorksheet", Tr("Print Worksheet"), dialogs, parent),
      atHand_(std::move(atHand.Puzzles)),
      choice_(choice),
      ports_(ports),
      random_(random),
      printsAtHand_(Named("SheetFromBoardx", new QRadioButton(atHand.Caption))),
      set_(new FreshSetBox(choice.Set)),
      perPage_(Named("PerPage", new QComboBox)),
      orientation_(Named("Orientation", new QComboBox)),
      title_(Named("SheetTitle", new QLineEdit(choice.Layout.Title))),
      total_(Named("TotalGivenx", new QCheckBox(Tr("the &total is given")))),
      options_(Named("SheetOptions", new SheetOptionsBox(choice.Layout.Options))),
      told_(Named("SheetTold", new ToldLabel(4))),
      print_(Named("PreviewSheetx", new QPushButton(Tr("&Preview and Print...")))),
      page_(Named("SavePagex", new QPushButton(Tr("Save Web Pa&ge...")))),
      stop_(Named("StopMakingx", new QPushButton(Tr("&Stop")))) {
  for (const int number : {1, 2, 4, 6})
    perPage_->addItem(QString::number(number), number);
  perPage_->setCurrentIndex(perPage_->findData(choice.Layout.PerPage));
  orientation_->addItems({Tr("portrait"), Tr("landscape")});
  orientation_->setCurrentIndex(choice.Landscape ? 1 : 0);
  total_->setChecked(choice.Layout.TotalGiven);
  auto* fromFresh = Named("SheetFreshx", new QRadioButton(Tr("&Fresh puzzles")));
  printsAtHand_->setEnabled(!atHand_.empty());
  (atHand_.empty() ? fromFresh : printsAtHand_)->setChecked(true);
  auto* close = Named("CloseSheetx", new QPushButton(Tr("&Close")));

  auto* column = new QVBoxLayout(this);
  column->addWidget(printsAtHand_);
  column->addWidget(fromFresh);
  column->addWidget(set_);
  auto* layout = new QFormLayout;
  layout->addRow(Tr("Puzzles on a pag&e"), perPage_);
  layout->addRow(Tr("Pape&r"), orientation_);
  layout->addRow(Tr("T&itle"), title_);
  layout->addRow("", total_);
  column->addLayout(layout);
  column->addWidget(options_);
  AlignLabels(*set_->Rows(), *layout);
  column->addWidget(told_, 1);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(print_);
  buttons->addWidget(page_);
  buttons->addWidget(stop_);
  buttons->addStretch();
  buttons->addWidget(close);
  column->addLayout(buttons);
  ShowMaking(false);
  TakeChoice();
  const auto take = [this] { TakeChoice(); };
  OnSignal(runner_, printsAtHand_, &QRadioButton::toggled, this, take);
  OnSignal(runner_, set_, &FreshSetBox::Changed, this, [this] {
    madeFor_ = nullptr;
    TakeChoice();
  });
  OnSignal(runner_, perPage_, &QComboBox::currentIndexChanged, this, take);
  OnSignal(runner_, orientation_, &QComboBox::currentIndexChanged, this, take);
  OnSignal(runner_, title_, &QLineEdit::textChanged, this, take);
  OnSignal(runner_, total_, &QCheckBox::toggled, this, take);
  OnSignal(runner_, options_, &SheetOptionsBox::Changed, this, take);
  OnClick(runner_, print_, this, [this] { Print(); });
  OnClick(runner_, page_, this, [this] { SavePage(); });
  OnClick(runner_, stop_, this, [this] { runner_.Run("Stop", [this] { ShowMaking(false); }); });
  OnClick(runner_, close, this, [this] { this->close(); });
}

/// Keeps what is chosen, and says what it will print.
void WorksheetForm::TakeChoice() {
  const bool makes = !printsAtHand_->isChecked();
  set_->setEnabled(makes);
  choice_ = {
      set_->Wish(),
      {perPage_->currentData().toInt(), title_->text(), total_->isChecked(), options_->Options()},
      orientation_->currentIndex() == 1};
  const int puzzles = makes ? PuzzlesIn(choice_.Set) : static_cast<int>(atHand_.size());
  const bool making = stop_->isEnabled();
  for (QPushButton* button : {print_, page_})
    button->setEnabled(puzzles > 0 && !making);
  if (making) return;
  if (puzzles == 0) {
    told_->Tell(Tr("Choose how many puzzles of each grade."));
    return;
  }
  const QString what = makes ? InWords(choice_.Set) : TrCounted("%1 puzzle", "%1 puzzles", puzzles);
  const QString told = Tr("Prints %1; %2.", what, PagesFor(puzzles, choice_.Layout));
  const bool takesLong = makes && TakesLong(choice_.Set);
  told_->Tell(takesLong ? Tr("%1 Puzzles as large take some seconds each.", told) : told);
}

void WorksheetForm::ShowMaking(bool making) {
  stop_->setEnabled(making);
  for (QPushButton* button : {print_, page_})
    button->setEnabled(!making);
  if (!making) TakeChoice();
}

/// Those at hand, the set that the other button took, or a new one; says what could not be made.
std::vector<MadePuzzle> WorksheetForm::PuzzlesFor(const QPushButton* button) {
  if (printsAtHand_->isChecked()) {
    shortfall_.clear();
    return atHand_;
  }
  if (madeFor_ && madeFor_ != button) {
    madeFor_ = nullptr;
    return made_;
  }
  madeFor_ = nullptr;
  made_ = MakeSet();
  if (!made_.empty()) madeFor_ = button;
  return made_;
}

std::vector<MadePuzzle> WorksheetForm::MakeSet() {
  ShowMaking(true);
  shortfall_.clear();
  const auto done = qScopeGuard([&] {
    ShowMaking(false);
    if (!shortfall_.isEmpty()) told_->Tell(shortfall_);
  });
  std::vector<MadePuzzle> puzzles;
  const int all = PuzzlesIn(choice_.Set);
  FormYielding stage(
      runner_, [&] { told_->Tell(Tr("Making puzzle %1 of %2...", puzzles.size() + 1, all)); });
  random_.Reseed();
  PuzzleSet set(choice_.Set, random_, stage);
  stage.Yield();
  while (auto made = set.Next()) {
    puzzles.push_back(*std::move(made));
    stage.Yield();
  }
  shortfall_ = QString::fromStdString(set.Shortfall());
  return puzzles;
}

void WorksheetForm::Print() {
  runner_.Run("Worksheet", [this] {
    const SheetChoice choice = choice_;
    const auto fits = [&](const Worksheet& sheet) {
      const std::string why = sheet.WhyTooLarge();
      if (!why.empty()) told_->Tell(QString::fromStdString(why));
      return why.empty();
    };
    const bool makes = !printsAtHand_->isChecked();
    if (makes && !fits({{LargestOf(choice.Set)}, choice.Layout, choice.Landscape})) return;
    const auto puzzles = PuzzlesFor(print_);
    if (puzzles.empty()) return;
    const Worksheet sheet(puzzles, choice.Layout, choice.Landscape);
    if (!fits(sheet)) return;
    ports_.Printer.Preview(this, {choice.Layout.Title, sheet.Pages(),
                                  choice.Landscape ? QPageLayout::Landscape : QPageLayout::Portrait,
                                  [&sheet](QPainter& painter, QSizeF size, int page) {
                                    sheet.PaintPage(painter, size, page);
                                  }});
  });
}

void WorksheetForm::SavePage() {
  runner_.Run("Web Page", [this] {
    const QString title = choice_.Layout.Title;
    const auto puzzles = PuzzlesFor(page_);
    if (puzzles.empty()) return;
    FormYielding stage(runner_, [] {});
    const std::string page = PlayPage(title.toStdString(), puzzles, stage);
    const QString name =
        ports_.Files.ToSave(this, Tr("Save Web Page"), KindOfFiles(Tr("Web pages"), "*.html"));
    if (name.isEmpty()) return;
    WriteWholeFile(name, QByteArray::fromStdString(page));
    const QString saved = Tr("The page is in %1.", QDir::toNativeSeparators(name));
    told_->Tell(shortfall_.isEmpty() ? saved : shortfall_ + "\n" + saved);
  });
}

}  // namespace numorra

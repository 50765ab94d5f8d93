#include "app/window/forms/hide_numbers_form.h"

#include <QClipboard>
#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QPushButton>
#include <QVBoxLayout>

#include "puzzle/code.h"
#include "puzzle/grade.h"
#include "toolkit/named.h"
#include "toolkit/on_signal.h"
#include "toolkit/tr.h"

namespace numorra {

QString DescriptionOf(const MadePuzzle& made) {
  const int clues = made.Clues.Cells.Size() - made.Clues.Gaps();
  QString rules = Tr(RulesOf(Grade::Easy));
  for (int grade = 1; grade <= static_cast<int>(made.Needed); ++grade)
    rules = Tr("%1; %2", rules, Tr(RulesOf(static_cast<Grade>(grade))));
  // Translators: the number of clues, the grade, and the rules that it needs.
  return TrCounted("%1 clues, %2: %3", "%1 clues, %2: %3", clues, Tr(NameOf(made.Needed)), rules);
}

HideNumbersForm::HideNumbersForm(const PuzzleSource& board, SquareWish fresh, Random& random,
                                 Dialogs& dialogs, QWidget* parent)
    : CommandForm("HideNumbers", Tr("Hide Numbers"), dialogs, parent),
      square_(board.Square),
      fresh_(fresh),
      random_(random),
      wish_(new PuzzleWishBox),
      fromBoard_(Named("FromBoardx", new QRadioButton(Tr("&This square")))),
      told_(Named("PuzzleTold", new ToldLabel(5))),
      copy_(Named("CopyCodex", new QPushButton(Tr("&Copy Code")))) {
  const QString whyNot = QString::fromStdString(board.WhyNot);
  auto* fromFresh =
      Named("FromFreshx", new QRadioButton(Tr("A &fresh square of size %1", fresh_.Order)));
  auto* another = Named("MakeAnotherx", new QPushButton(Tr("&Make Another")));
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  take_ = Named("TakePuzzlex", buttons->button(QDialogButtonBox::Ok));
  fromBoard_->setEnabled(square_.has_value());
  fromBoard_->setToolTip(whyNot);
  (square_ ? fromBoard_ : fromFresh)->setChecked(true);
  auto* why = new QLabel(Tr("(%1)", whyNot));
  why->setVisible(!square_);
  auto* column = new QVBoxLayout(this);
  column->addWidget(fromBoard_);
  column->addWidget(why);
  column->addWidget(fromFresh);
  column->addWidget(wish_);
  column->addWidget(told_, 1);
  auto* row = new QHBoxLayout;
  row->addWidget(another);
  row->addWidget(copy_);
  row->addStretch();
  row->addWidget(buttons);
  column->addLayout(row);
  wish_->SetOrder(square_ ? square_->Order() : fresh_.Order);

  OnSignal(runner_, wish_, &PuzzleWishBox::Changed, this, [this] { Make(); });
  OnClick(runner_, another, this, [this] { Make(); });
  OnSignal(runner_, fromBoard_, &QRadioButton::toggled, this, [this](bool fromBoard) {
    wish_->SetOrder(fromBoard && square_ ? square_->Order() : fresh_.Order);
    Make();
  });
  OnClick(runner_, copy_, this, [this] {
    QGuiApplication::clipboard()->setText(QString::fromStdString(CodeOf(made_->Clues)));
  });
  OnClick(runner_, buttons->button(QDialogButtonBox::Cancel), this, [this] { reject(); });
  OnClick(runner_, take_, this, [this] {
    Q_EMIT Taken(*made_);
    accept();
  });
  QMetaObject::invokeMethod(this, "Make", Qt::QueuedConnection);
}

/// Makes a puzzle to the current settings; a newer request supersedes an older one.
void HideNumbersForm::Make() {
  runner_.Run("Make", [this] {
    made_.reset();
    take_->setEnabled(false);
    copy_->setEnabled(false);
    FormYielding stage(runner_, [this] { told_->Tell(Tr("Making a puzzle...")); });
    random_.Reseed();
    auto made = fromBoard_->isChecked() ? MakePuzzle(*square_, wish_->Wish(), random_, stage)
                                        : MakeFreshPuzzle(fresh_, wish_->Wish(), random_, stage);
    if (const auto* cannot = std::get_if<CannotMake>(&made)) {
      told_->Tell(QString::fromStdString(cannot->Why));
      return;
    }
    made_ = std::get<MadePuzzle>(std::move(made));
    const std::string code = CodeOf(made_->Clues);
    told_->Tell(DescriptionOf(*made_) + "\n" + QString::fromStdString(code));
    take_->setEnabled(true);
    copy_->setEnabled(!code.empty());
  });
}

}  // namespace numorra

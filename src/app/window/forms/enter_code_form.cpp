#include "app/window/forms/enter_code_form.h"

#include <algorithm>

#include <QDialogButtonBox>
#include <QVBoxLayout>

#include "puzzle/only_solution.h"
#include "toolkit/named.h"
#include "toolkit/on_signal.h"
#include "toolkit/tr.h"

namespace numorra {
namespace {

/// What the list holds: its puzzles, and the first wrong lines.
QString DescriptionOf(const CodeList& list) {
  constexpr std::size_t kMostTold = 3;
  QStringList told;
  if (list.Puzzles.size() == 1) {
    const Puzzle& puzzle = list.Puzzles[0].Clues;
    told << Tr("One puzzle of size %1 with the total %2.", puzzle.Order(), puzzle.Target);
  } else if (!list.Puzzles.empty()) {
    told << TrCounted("%1 puzzle: OK lays out the first one.",
                      "%1 puzzles: OK lays out the first one.", list.Puzzles.size());
  } else if (list.Wrong.empty()) {
    told << Tr("Type or paste codes, such as those below the puzzles of a worksheet.");
  }
  for (std::size_t i = 0; i < std::min(kMostTold, list.Wrong.size()); ++i)
    told << QString::fromStdString(list.Wrong[i].Why);
  if (list.Wrong.size() > kMostTold) {
    told << TrCounted("%1 more lines are wrong", "%1 more lines are wrong",
                      list.Wrong.size() - kMostTold);
  }
  return told.join('\n');
}

}  // namespace

EnterCodeForm::EnterCodeForm(Random& random, Dialogs& dialogs, QWidget* parent)
    : CommandForm("EnterCodeForm", Tr("Enter Code"), dialogs, parent),
      random_(random),
      codes_(Named("Codes", new QPlainTextEdit)),
      told_(Named("CodesTold", new ToldLabel(5))),
      print_(Named("PrintCodesx", new QPushButton(Tr("Print &Worksheet...")))) {
  auto* label = new QLabel(Tr("&Codes, one or more on a line"));
  label->setBuddy(codes_);
  codes_->setTabChangesFocus(true);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  take_ = Named("TakeCodesx", buttons->button(QDialogButtonBox::Ok));
  auto* column = new QVBoxLayout(this);
  column->addWidget(label);
  column->addWidget(codes_, 1);
  column->addWidget(told_);
  auto* row = new QHBoxLayout;
  row->addWidget(print_);
  row->addStretch();
  row->addWidget(buttons);
  column->addLayout(row);
  codes_->setFocus();

  OnSignal(runner_, codes_, &QPlainTextEdit::textChanged, this, [this] { Read(); });
  OnClick(runner_, print_, this, [this] { Print(); });
  OnClick(runner_, buttons->button(QDialogButtonBox::Cancel), this, [this] { reject(); });
  OnClick(runner_, take_, this, [this] {
    Q_EMIT Taken(list_.Puzzles[0].Clues);
    accept();
  });
  Read();
}

/// Another text also ends the search for the solutions of the last one.
void EnterCodeForm::Read() {
  runner_.Run("Read", [this] {
    list_ = PuzzlesOfCodes(codes_->toPlainText().toStdString());
    told_->Tell(DescriptionOf(list_));
    print_->setEnabled(!list_.Puzzles.empty());
    take_->setEnabled(!list_.Puzzles.empty());
  });
}

/// A worksheet has answers, so every puzzle is solved first.
void EnterCodeForm::Print() {
  runner_.Run("Solve", [this] {
    constexpr double kSeconds = 3;
    std::vector<MadePuzzle> solved;
    FormYielding stage(runner_, [&] {
      told_->Tell(Tr("Solving puzzle %1 of %2...", solved.size() + 1, list_.Puzzles.size()));
    });
    for (const ListedPuzzle& listed : list_.Puzzles) {
      const auto found = WithOnlySolution(listed.Clues, {.Seconds = kSeconds}, random_, stage);
      if (const auto* cannot = std::get_if<CannotMake>(&found)) {
        told_->Tell(Tr("line %1: %2; the answers of a worksheet need one solution", listed.Line,
                       cannot->Why));
        return;
      }
      solved.push_back(std::get<MadePuzzle>(found));
    }
    Q_EMIT SetTaken(solved);
    accept();
  });
}

}  // namespace numorra

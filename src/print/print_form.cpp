#include "print/print_form.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "app/board/numbers.h"
#include "print/sheet.h"
#include "print/sheet_doubts.h"
#include "toolkit/named.h"
#include "toolkit/on_signal.h"
#include "toolkit/tr.h"

namespace numorra {

PrintForm::PrintForm(const Grid& grid, const SquareBoxes& boxes, SheetPrinter& printer,
                     Dialogs& dialogs, QWidget* parent)
    : CommandForm("PrintSolution", Tr("Print Solution"), dialogs, parent),
      Text1(new QPlainTextEdit),
      TotalDoubt(Named("TotalDoubt", new QLabel)),
      UseTotalx(Named("UseTotalx", new QPushButton)),
      WidthDoubt(Named("WidthDoubt", new QLabel)),
      PrintGridx(Named("PrintGridx", new QPushButton(Tr("Print &Puzzle Sheet")))),
      PrintSolx(Named("PrintSolx", new QPushButton(Tr("Print &Solution")))),
      Closex(Named("Closex", new QPushButton(Tr("&Close")))),
      grid_(grid),
      boxes_(boxes),
      printer_(printer),
      dialogs_(dialogs) {
  Text1->setObjectName("preview");
  Text1->setLayoutDirection(Qt::LeftToRight);
  Text1->setAccessibleName(Tr("Preview"));
  Text1->setReadOnly(true);
  Text1->setLineWrapMode(QPlainTextEdit::NoWrap);
  QFont font("courier new", 8);
  font.setStyleHint(QFont::Monospace);
  Text1->setFont(font);

  auto* buttons = new QHBoxLayout;
  buttons->addWidget(PrintGridx);
  buttons->addWidget(PrintSolx);
  buttons->addStretch();
  buttons->addWidget(Closex);
  auto* column = new QVBoxLayout(this);
  auto* doubt = new QHBoxLayout;
  doubt->addWidget(TotalDoubt, 1);
  doubt->addWidget(UseTotalx);
  column->addWidget(Text1);
  column->addLayout(doubt);
  column->addWidget(WidthDoubt);
  column->addLayout(buttons);
  resize(640, 480);

  for (QLabel* label : {TotalDoubt, WidthDoubt}) {
    label->setWordWrap(true);
    label->setTextFormat(Qt::PlainText);
  }
  for (QPushButton* button : {UseTotalx, PrintGridx, PrintSolx, Closex})
    button->setAutoDefault(false);  // so that Enter prints nothing by accident
  OnClick(runner_, UseTotalx, this, [this] {
    runner_.Run("Use total", [this] {
      linesTotal_ = DoubtsOf(grid_, Total()).TheLines;
      Preview();
    });
  });
  OnClick(runner_, PrintGridx, this, [this] { Print(PuzzleSheet, Mark("grid printed")); });
  OnClick(runner_, PrintSolx, this, [this] { Print(SolutionSheet, Mark("solution printed")); });
  OnClick(runner_, Closex, this, [this] { close(); });
}

void PrintForm::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  runner_.Run("Preview", [this] { Preview(); });
}

/// Shows the sheet, and warnings about it.
void PrintForm::Preview() {
  if (linesTotal_ && !DoubtsOf(grid_, *linesTotal_).Total.empty()) linesTotal_.reset();
  const double total = Total();
  Text1->setPlainText(QString::fromStdString(PreviewSheet(grid_, total)));
  const SheetDoubts doubts = DoubtsOf(grid_, total);
  const auto show = [](QLabel* label, const std::string& text) {
    label->setText(QString::fromStdString(text));
    label->setVisible(!text.empty());
  };
  show(TotalDoubt, doubts.Total);
  show(WidthDoubt, doubts.Width);
  UseTotalx->setVisible(doubts.TheLines.has_value());
  if (!doubts.TheLines) return;
  UseTotalx->setText(Tr("&Use %1", Written(*doubts.TheLines)));
}

void PrintForm::Print(Sheet sheet, const char* message) {
  runner_.Run("Print", [this, sheet, message] {
    Preview();  // a build behind the form may have changed the board
    if (!printer_.Choose(this)) return;
    printer_.Print(sheet(grid_, Total()));
    dialogs_.Tell(Say(message));
  });
}

double PrintForm::Total() const {
  return linesTotal_.value_or(Val(boxes_.Sum()));
}

}  // namespace numorra

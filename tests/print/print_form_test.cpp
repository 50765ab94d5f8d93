#include "print/print_form.h"

#include <gtest/gtest.h>

#include <QPlainTextEdit>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include "app/board/runtime_error.h"
#include "print/page_printer.h"
#include "print/sheet.h"
#include "print/sheet_printer.h"
#include "support/full_disk.h"
#include "support/window_fixture.h"

namespace numorra {
namespace {

/// Keeps what is printed, or fails.
struct KeepingPrinter : SheetPrinter {
  bool Choose(QWidget*) override { return Chosen; }
  void Print(const std::string& text) override {
    if (Broken) throw RuntimeError(Fault::PrinterError, "cannot begin to print");
    Printed.push_back(text);
  }
  bool Chosen = true;
  bool Broken = false;
  Messages Printed;
};

class PrintTest : public WindowTest {
 protected:
  PrintTest() : WindowTest({.Printer = &printer_}) {}
  void Open() { Find<QAction>("PrintSol").trigger(); }
  QDialog* Form() { return window_.findChild<QDialog*>("PrintSolution"); }

  KeepingPrinter printer_;
};

TEST_F(PrintTest, OpensOnlyWhereThereIsSomethingToPrint) {
  const auto said = [this](const char* message) {
    Open();
    EXPECT_EQ(dialogs_.Take(), Messages{message});
    EXPECT_EQ(Form(), nullptr);
  };
  said("nothing to print");
  Make("SolveAuto", "31");
  said("cannot print larger than 30x30 grid");
  Click("Command1");
  said("nothing to print");
  Make("SolveAuto", "30");
  Open();
  EXPECT_NE(Form(), nullptr);
}

TEST_F(PrintTest, PrintsBothSheetsAndSaysSoOnlyOnSuccess) {
  Make("SolveAuto", "3");
  Open();
  const Grid& grid = window_.TheBoard().grid;
  auto* preview = Form()->findChild<QPlainTextEdit*>("preview");
  EXPECT_EQ(preview->toPlainText().replace("\n", "\r\n").toStdString(), PreviewSheet(grid, 15));
  const auto click = [this](const char* button) {
    QTest::mouseClick(Form()->findChild<QPushButton*>(button), Qt::LeftButton);
    return dialogs_.Take();
  };
  EXPECT_EQ(click("PrintGridx"), Messages{"grid printed"});
  EXPECT_EQ(click("PrintSolx"), Messages{"solution printed"});
  EXPECT_EQ(printer_.Printed, (Messages{PuzzleSheet(grid, 15), SolutionSheet(grid, 15)}));
  printer_.Chosen = false;
  EXPECT_EQ(click("PrintSolx"), Messages{});
  printer_.Chosen = true;
  printer_.Broken = true;
  EXPECT_EQ(click("PrintGridx"), Messages{"Printer error: cannot begin to print"});
  EXPECT_EQ(printer_.Printed.size(), 2U);
  click("Closex");
  EXPECT_FALSE(Form() && Form()->isVisible());
  Find<QLineEdit>("Text4").setText(QString(400, '9'));
  Open();
  EXPECT_EQ(dialogs_.Take(), Messages{"Overflow"});
}

TEST_F(PrintTest, SaysWhatIsWrongWithASheetBeforeItIsPrinted) {
  const auto doubts = [this] {
    std::string shown;
    for (const char* name : {"TotalDoubt", "UseTotalx", "WidthDoubt"}) {
      const auto* widget = Form()->findChild<QWidget*>(name);
      if (widget->isVisible()) shown += widget->property("text").toString().toStdString() + "|";
    }
    return shown;
  };
  Make("SolveAuto", "4", "40");
  Type("Text4", "77");
  Open();
  EXPECT_EQ(doubts(), "The sum box says 77, but the lines of this square add up to 40.|&Use 40|");
  Form()->findChild<QPushButton*>("UseTotalx")->click();
  EXPECT_EQ(doubts(), "");
  EXPECT_EQ(SumBox(), "77") << "which belongs to the window";
  EXPECT_TRUE(Form()->findChild<QPlainTextEdit*>()->toPlainText().contains("DIAGONALS ADD TO 40"));
  Form()->close();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  Make("SolveManual", "3", "9000");
  QTest::keyClicks(&window_.View(), "1");
  Open();
  EXPECT_EQ(doubts(),
            "The lines of this square do not all add up to 9000.|"
            "Numbers with more than 3 characters overlap their neighbors on the sheet.|");
}

/// An assistive tool may press a button that a box in front should block.
TEST_F(PrintTest, ClosesWhenItsCommandHasEnded) {
  Make("SolveAuto", "3");
  Open();
  for (const QPushButton* button : Form()->findChildren<QPushButton*>())
    EXPECT_FALSE(button->isDefault() || button->autoDefault()) << "Enter prints nothing";
  dialogs_.OnTell = [this] {
    Form()->findChild<QPushButton*>("Closex")->click();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    EXPECT_TRUE(Form() && Form()->isVisible());
  };
  Form()->findChild<QPushButton*>("PrintSolx")->click();
  EXPECT_EQ(dialogs_.Take(), Messages{"solution printed"});
  QCoreApplication::processEvents();
  EXPECT_FALSE(Form() && Form()->isVisible());
}

TEST(PaperPrinters, PrintTheSheetAsItStands) {
  const QTemporaryDir folder;
  const QString pdf = folder.filePath("sheet.pdf");
  Board board;
  ShowCounted(board, 30);
  std::string longer;
  for (int line = 1; line <= 100; ++line)
    longer += "line " + std::to_string(line) + "\r\n";
  const auto lines = [](const QString& text) {
    QStringList kept;
    for (const QString& line : text.split('\n')) {
      if (!line.trimmed().isEmpty()) kept << line.trimmed();
    }
    return kept;
  };
  QProcess reader;
  for (const auto& [sheet, pages] :
       {std::pair(SolutionSheet(board.grid, 13515), "1"), {longer, "2"}}) {
    PaperPrinter printer;
    printer.PrintTo(pdf);
    printer.Print(sheet);
    reader.start("pdftotext", {"-fixed", "4.8", "-nopgbrk", pdf, "-"});
    ASSERT_TRUE(reader.waitForFinished());
    EXPECT_EQ(lines(reader.readAllStandardOutput()),
              lines(QString::fromStdString(sheet).remove('\r')));
    reader.start("pdfinfo", {pdf});
    ASSERT_TRUE(reader.waitForFinished());
    const QString info = reader.readAllStandardOutput();
    EXPECT_TRUE(info.contains(QRegularExpression(QString("Pages:\\s+%1\\n").arg(pages))));
    EXPECT_TRUE(info.contains(QRegularExpression("Page size:\\s+(841|842|792)")))
        << info.toStdString();
  }
}

TEST(PaperPrinters, FailWithARunTimeErrorAndKeepTheFileThatWasThere) {
  const QTemporaryDir folder;
  QFile old(folder.filePath("sheet.pdf"));
  ASSERT_TRUE(old.open(QFile::WriteOnly));
  old.write("what was there");
  old.close();
  for (const QString& name : {QString("/nowhere/at/all.pdf"), QString("/tmp"), old.fileName()}) {
    const FullDisk full(2000);
    PaperPrinter printer;
    printer.PrintTo(name);
    EXPECT_THROW(printer.Print("text\r\n"), RuntimeError) << name.toStdString();
    QPrinter paper;
    paper.setOutputFileName(name);
    const PaintedPages pages{
        "p", 2, {}, [](QPainter& painter, QSizeF, int) { painter.drawText(9, 9, "sheet"); }};
    EXPECT_THROW(PrintPages(paper, pages), RuntimeError) << name.toStdString();
  }
  ASSERT_TRUE(old.open(QFile::ReadOnly));
  EXPECT_EQ(old.readAll(), "what was there");
  EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files).size(), 1) << "nothing is left beside it";
}

/// Neither the time nor the random order of hash tables shows in a file.
TEST(PaperPrinters, WriteTheSameFileAgain) {
  const QTemporaryDir folder;
  QFile file(folder.filePath("sheet.pdf"));
  QPrinter paper;
  paper.setOutputFileName(file.fileName());
  paper.setDocName("/CreationDate (D:1)");
  const PaintedPages pages{"sheet", 2, {}, [](QPainter& painter, QSizeF, int page) {
                             for (const bool bold : {false, true}) {
                               QFont font;
                               font.setBold(bold);
                               painter.setFont(font);
                               painter.drawText(9, 9, QString::number(page));
                             }
                           }};
  QByteArray written;
  for (int time = 0; time < 9; ++time) {
    PrintPages(paper, pages);
    ASSERT_TRUE(file.open(QFile::ReadOnly));
    const QByteArray again = file.readAll();
    file.close();
    EXPECT_TRUE(time == 0 || again == written);
    written = again;
  }
  EXPECT_FALSE(written.contains("Date")) << written.left(300).toStdString();
  QProcess reader;
  reader.start("pdfinfo", {file.fileName()});
  ASSERT_TRUE(reader.waitForFinished());
  const QByteArray info = reader.readAllStandardOutput();
  EXPECT_TRUE(info.contains("/CreationDate (D:1)") && info.contains("Pages:           2\n"));
  EXPECT_EQ(reader.readAllStandardError(), "");
}

}  // namespace
}  // namespace numorra

#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QPlainTextEdit>
#include <QPointer>
#include <QRadioButton>
#include <QSpinBox>

#include "support/window_fixture.h"

namespace numorra {
namespace {

class PuzzleWindowTest : public WindowTest {
 protected:
  void Paste(const QString& text) {
    QGuiApplication::clipboard()->setText(text);
    Find<QAction>("Pastex").trigger();
  }
  void Trigger(const char* item) { Find<QAction>(item).trigger(); }
};

TEST_F(PuzzleWindowTest, FillsGapsInOneStep) {
  EXPECT_FALSE(Find<QAction>("FillGapsx").isEnabled());
  Paste("8 1 .\n. 5 .\n. . .");
  Trigger("CopyPuzzleCodex");
  Trigger("Pastex");
  EXPECT_TRUE(TheGrid().Given(1, 2));
  Trigger("Propertiesx");
  Trigger("Hintx");
  EXPECT_EQ(Find<QWidget>("RemarkBar").accessibleName(), "Look at row 1.");
  Trigger("Propertiesx");
  EXPECT_FALSE(TheGrid().Outlined().empty());
  Trigger("FillGapsx");
  EXPECT_TRUE(TheGrid().Outlined().empty());
  EXPECT_EQ(Rows(), ParseRows("8 1 6 / 3 5 7 / 4 9 2"));
  const Messages noCode = {
      "only puzzles of size 3 to 20 have a code: boards with gaps and numbers that break no rule"};
  Trigger("CopyPuzzleCodex");
  EXPECT_EQ(dialogs_.Take(), noCode);
  EXPECT_EQ(Find<QAction>("UndoMovex").text(), "&Undo Fill Gaps");
  Trigger("UndoMovex");
  EXPECT_EQ(TheGrid().Text(1, 3), "");
  EXPECT_FALSE(Find<QWidget>("SearchBar").isVisible());
  Make("SolveAuto", "21");
  QTest::keyClick(&window_.View(), Qt::Key_Backspace);
  Trigger("CopyPuzzleCodex");
  EXPECT_EQ(dialogs_.Take(), noCode);
  ExpectSettled();
}

/// A hint of several steps: the bar leads through them.
TEST_F(PuzzleWindowTest, HintsGoStepByStep) {
  Paste(". . . 5\n. . . .\n9 1 8 16\n. 7 2 .");
  const auto& bar = Find<QWidget>("RemarkBar");
  auto& back = Find<QAbstractButton>("RemarkBackx");
  auto& next = Find<QAbstractButton>("RemarkNextx");
  Trigger("Hintx");
  EXPECT_FALSE(next.isVisible());
  Trigger("Hintx");
  EXPECT_EQ(
      bar.accessibleName(),
      "1 of 2: Column 4 needs 13 for its two gaps, so row 4, column 4 can hold only 3 or 10.");
  EXPECT_FALSE(back.isEnabled());
  window_.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window_));
  QTest::keyClick(&window_.View(), Qt::Key_Right, Qt::AltModifier);
  ASSERT_TRUE(QTest::qWaitFor([&] { return back.isEnabled(); }))
      << "the button shows that it is down";
  EXPECT_EQ(bar.accessibleName(),
            "2 of 2: Row 4 needs 25 for its two gaps; row 4, column 4 can hold 3 or 10, so row 4, "
            "column 1 can hold only 15.");
  EXPECT_EQ(TheGrid().Outlined(), (std::vector<Place>{{4, 1}, {4, 2}, {4, 3}, {4, 4}}));
  EXPECT_FALSE(next.isEnabled());
  back.click();
  EXPECT_TRUE(next.isEnabled());
  Trigger("Hintx");
  EXPECT_EQ(TheGrid().Text(4, 1), "15");
  EXPECT_FALSE(back.isVisible());
  ExpectSettled();
}

/// Auto also builds one or two rows: nothing that can be done to them destroys the board.
TEST_F(PuzzleWindowTest, TinyBoardsAreHandledSafely) {
  Trigger("Propertiesx");
  for (const char* size : {"1", "2"}) {
    for (const bool gap : {false, true}) {
      Make("SolveAuto", size);
      Trigger("CheckTotalsx");
      if (gap) QTest::keyClick(&window_.View(), Qt::Key_Backspace);
      Type("Text1", "4");
      for (const char* item :
           {"Copyx", "Varyx", "Complementx", "StandardFormx", "EnterPuzzlex", "Hintx",
            "CheckEntriesx", "HideNumbersx", "PrintWorksheetx", "CopyPuzzleCodex", "EnterCodex",
            "StepByStepx", "FillGapsx", "UndoMovex", "RedoMovex", "DrawingNumbersx", "FitBoardx",
            "FitBoardx"}) {
        Trigger(item);
        for (auto* form : window_.findChildren<QDialog*>())
          form->close();
        QCoreApplication::processEvents();
        ExpectSettled();
      }
      dialogs_.Take();
    }
  }
}

/// Order 30 with a few numbers: the search takes several yields, and Stop ends it at once.
TEST_F(PuzzleWindowTest, StopEndsASearchAtOnce) {
  QString text;
  for (int row = 0; row < 30; ++row) {
    for (int column = 0; column < 30; ++column)
      text += column == (row + 1) % 30 ? QString::number(7 * row + 3) + ' ' : ". ";
    text += '\n';
  }
  Paste(text);
  const std::string before = TheGrid().Text(1, 1);
  auto& bar = Find<QWidget>("SearchBar");
  const auto searched = [&] { return bar.isVisible(); };
  EXPECT_TRUE(ActWithin([&] { Trigger("FillGapsx"); }, searched, [&] { Click("StopSearchx"); }));
  EXPECT_FALSE(bar.isVisible());
  EXPECT_EQ(TheGrid().Text(1, 3), "");
  EXPECT_EQ(TheGrid().Text(1, 1), before);
  ExpectSettled();
}

/// Keeps the shown pages as pictures.
struct KeepingPages : PagePrinter {
  void Preview(QWidget*, const PaintedPages& pages) override {
    for (int page = 0; page < pages.Count; ++page) {
      QImage picture(420, 594, QImage::Format_RGB32);
      picture.fill(Qt::white);
      QPainter painter(&picture);
      painter.scale(2, 2);
      pages.Paint(painter, {210, 297}, page);
      Pictures.push_back(picture);
    }
    Orientation = pages.Orientation;
  }
  QPageLayout::Orientation Orientation;
  std::vector<QImage> Pictures;
};

class MakingWindowTest : public WindowTest {
 protected:
  MakingWindowTest() : WindowTest({.Pages = &pages_}) {}
  template <class Done>
  static void Await(Done done) {
    EXPECT_TRUE(QTest::qWaitFor(done, 20'000));
  }
  KeepingPages pages_;
};

TEST_F(MakingWindowTest, APuzzleIsMadeSolvedWithHintsAndByKeys) {
  Type("Text1", "4");
  Find<QAction>("HideNumbersx").trigger();
  auto* form = window_.findChild<QDialog*>("HideNumbers");
  ASSERT_NE(form, nullptr);
  EXPECT_FALSE(form->findChild<QRadioButton*>("FromBoardx")->isEnabled());
  form->findChild<QComboBox*>("GradeBox")->setCurrentIndex(2);
  auto* take = form->findChild<QPushButton*>("TakePuzzlex");
  Await([&] { return take->isEnabled(); });
  const QString told = form->findChild<QLabel*>("PuzzleTold")->text();
  EXPECT_TRUE(told.contains(" clues, hard: lines with a single gap; ") &&
              told.contains(RulesOf(Grade::Hard)))
      << told.toStdString();
  form->findChild<QPushButton*>("CopyCodex")->click();
  EXPECT_TRUE(QGuiApplication::clipboard()->text().startsWith("NP2"));
  take->click();
  EXPECT_TRUE(window_.TheBoard().HasGivens());
  EXPECT_TRUE(window_.TheBoard().HasGaps());
  Find<QAction>("FitBoardx").trigger();
  auto& bar = Find<QWidget>("RemarkBar");
  for (int press = 0; press < 100 && window_.TheBoard().HasGaps(); ++press) {
    QTest::keyClick(&window_.View(), Qt::Key_H, Qt::ControlModifier);
    EXPECT_TRUE(bar.isVisible());
    const QString text = bar.accessibleName();
    EXPECT_EQ(text, text.left(1).toUpper() + text.mid(1));
    if (!text.contains(" row ")) continue;
    for (const Place place : TheGrid().Outlined()) {
      const QRect cell = window_.View().CellRect(place.Row, place.Column);
      const QPoint corner = window_.View().mapTo(bar.parentWidget(), cell.topLeft());
      EXPECT_FALSE(bar.geometry().intersects({corner, cell.size()})) << text.toStdString();
    }
  }
  EXPECT_EQ(slow::WhyNotNormal(Rows()), "");
  QTest::keyClick(&window_.View(), Qt::Key_Escape);
  Await([&] { return !bar.isVisible(); });
  EXPECT_TRUE(TheGrid().Outlined().empty());
  ExpectSettled();
}

TEST_F(MakingWindowTest, CodesAreLaidOutOrPrinted) {
  const auto open = [&] {
    Find<QAction>("EnterCodex").trigger();
    return window_.findChild<QDialog*>("EnterCodeForm");
  };
  QPointer<QDialog> form = open();
  ASSERT_NE(form, nullptr);
  const auto* told = form->findChild<QLabel*>("CodesTold");
  auto* codes = form->findChild<QPlainTextEdit*>("Codes");
  auto* take = form->findChild<QPushButton*>("TakeCodesx");
  EXPECT_FALSE(take->isEnabled());
  QTest::keyClicks(codes, "Puzzle 1: np12 s3w0-5");
  EXPECT_EQ(told->text(), "line 1: this puzzle code has a mistake in it");
  EXPECT_FALSE(take->isEnabled());
  codes->setPlainText("Puzzle 1: np12 s3w0-4\n\nPuzzle 2");
  EXPECT_EQ(told->text(),
            "One puzzle of size 3 with the total 15.\nline 3: there is no puzzle code here");
  take->click();
  EXPECT_TRUE(TheGrid().Given(3, 1));
  EXPECT_EQ(TheGrid().Text(3, 2), "9");
  Await([&] { return !form; });

  form = open();
  codes = form->findChild<QPlainTextEdit*>("Codes");
  auto* print = form->findChild<QPushButton*>("PrintCodesx");
  codes->setPlainText("NP12S3W04\nNP2A1WR0TB");
  print->click();
  EXPECT_EQ(form->findChild<QLabel*>("CodesTold")->text(),
            "line 2: this puzzle has several solutions; the answers of a worksheet need one "
            "solution");
  codes->setPlainText("NP12S3W04\nnp1h7fkrsz");
  print->click();
  Await([&] { return !form; });
  auto* sheet = window_.findChild<QDialog*>("PrintWorksheet");
  ASSERT_NE(sheet, nullptr);
  EXPECT_TRUE(sheet->findChild<QRadioButton*>("SheetFromBoardx")->text().endsWith(": 2"));
  sheet->findChild<QPushButton*>("PreviewSheetx")->click();
  EXPECT_EQ(pages_.Pictures.size(), 2U);
}

TEST_F(MakingWindowTest, ABoardOfALargeTotalGivesPuzzles) {
  QGuiApplication::clipboard()->setText("80000 10000 60000\n30000 50000 70000\n40000 90000 20000");
  Find<QAction>("Pastex").trigger();
  dialogs_.Take();
  Find<QAction>("HideNumbersx").trigger();
  auto* form = window_.findChild<QDialog*>("HideNumbers");
  ASSERT_NE(form, nullptr);
  EXPECT_TRUE(form->findChild<QRadioButton*>("FromBoardx")->isChecked());
  Await([&] { return form->findChild<QPushButton*>("TakePuzzlex")->isEnabled(); });
}

TEST_F(MakingWindowTest, AClassSetIsPrintedOrStopped) {
  Type("Text1", "8");
  Find<QAction>("PrintWorksheetx").trigger();
  auto* form = window_.findChild<QDialog*>("PrintWorksheet");
  ASSERT_NE(form, nullptr);
  auto* easy = form->findChild<QSpinBox*>("Sheet_easy");
  auto* expert = form->findChild<QSpinBox*>("Sheet_expert");
  EXPECT_EQ(form->findChild<QSpinBox*>("SheetSize")->value(), 8);
  easy->setValue(0);
  EXPECT_FALSE(form->findChild<QPushButton*>("PreviewSheetx")->isEnabled()) << "no puzzles";
  expert->setValue(24);
  auto* print = form->findChild<QPushButton*>("PreviewSheetx");
  auto* stop = form->findChild<QPushButton*>("StopMakingx");
  const auto* told = form->findChild<QLabel*>("SheetTold");
  const auto made = [&] { return told->text().contains(" of 24"); };
  EXPECT_TRUE(ActWithin([&] { print->click(); }, made, [&] { stop->click(); }));
  EXPECT_TRUE(print->isEnabled());
  EXPECT_TRUE(pages_.Pictures.empty());
  easy->setValue(20);
  expert->setValue(4);
  EXPECT_EQ(told->text(),
            "Prints 24 puzzles of size 8, total 260, with the numbers 1 to 64, each once: 20 easy, "
            "4 expert; on 4 pages, with 4 pages of answers.");
  print->click();
  EXPECT_EQ(pages_.Pictures.size(), 8U) << "four pages of puzzles, four of answers";
  EXPECT_NE(pages_.Pictures[0], pages_.Pictures[4]);
  EXPECT_EQ(pages_.Orientation, QPageLayout::Portrait);
  form->findChild<QComboBox*>("Orientation")->setCurrentText("landscape");
  print->click();
  EXPECT_EQ(pages_.Orientation, QPageLayout::Landscape);
  form->findChild<QSpinBox*>("SheetSize")->setValue(3);
  expert->setValue(1);
  easy->setValue(0);
  print->click();
  EXPECT_EQ(told->text(), "the puzzle is of another grade than wished");
  form->findChild<QComboBox*>("SheetNumbers")->setCurrentIndex(2);
  form->findChild<QDoubleSpinBox*>("SheetTotal")->setValue(12);
  form->close();
  Find<QAction>("PrintWorksheetx").trigger();
  EXPECT_EQ(
      window_.findChildren<QLabel*>("SheetTold").last()->text(),
      "Prints 1 puzzle of size 3, total 12, with numbers up to 9: 1 expert; on 1 page, with 1 "
      "page of answers.")
      << "what was chosen is kept";
}

TEST_F(MakingWindowTest, ASheetThatHasNoRoomForLargePrintIsRefusedBeforeItIsMade) {
  Type("Text1", "20");
  Find<QAction>("PrintWorksheetx").trigger();
  QCoreApplication::processEvents();
  EXPECT_LT(Find<QDialog>("PrintWorksheet").height(), 680) << "fits on a low screen";
  Find<QCheckBox>("LargePrintx").setChecked(true);
  Find<QPushButton>("PreviewSheetx").click();
  EXPECT_EQ(Find<QLabel>("SheetTold").text(),
            "a puzzle of size 20 has no room for large print on this page");
  EXPECT_TRUE(pages_.Pictures.empty());
  Find<QSpinBox>("SheetSize").setValue(4);
  Find<QCheckBox>("PageAPupilx").setChecked(true);
  Find<QPushButton>("PreviewSheetx").click();
  EXPECT_EQ(pages_.Pictures.size(), 7U) << "six pages of puzzles, one of answers";
}

}  // namespace
}  // namespace numorra

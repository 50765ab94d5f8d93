#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QPlainTextEdit>
#include <QPointer>
#include <QRadioButton>
#include <QSpinBox>

#include "support/files_fixture.h"

namespace numorra {
namespace {

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
  MakingWindowTest() : WindowTest({.Pages = &pages_, .Files = &files_}) {}
  template <class Done>
  static void Await(Done done) {
    EXPECT_TRUE(QTest::qWaitFor(done, 20'000));
  }
  KeepingPages pages_;
  ScriptedFiles files_;
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

TEST_F(MakingWindowTest, ASetIsForTheSheetsAndThePage) {
  struct Makings : QObject {
    bool eventFilter(QObject*, QEvent* event) override {
      Changes += event->type() == QEvent::EnabledChange;
      return false;
    }
    int Changes = 0;  // two for each making: the stop button is enabled and disabled
  } makings;
  QTemporaryDir folder;
  files_.Name = folder.filePath("page.html");
  Type("Text1", "3");
  Find<QAction>("PrintWorksheetx").trigger();
  Find<QPushButton>("StopMakingx").installEventFilter(&makings);
  const auto press = [&](const char* button) {
    Find<QPushButton>(button).click();
    return makings.Changes / 2;
  };
  EXPECT_EQ(press("PreviewSheetx"), 1);
  EXPECT_EQ(press("SavePagex"), 1) << "the same set";
  EXPECT_EQ(Find<QLabel>("SheetTold").text(), "The page is in " + files_.Name + ".");
  EXPECT_EQ(press("SavePagex"), 2);
  EXPECT_EQ(press("SavePagex"), 3);
  Find<QSpinBox>("Sheet_easy").setValue(2);
  EXPECT_EQ(press("PreviewSheetx"), 4) << "another choice";
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

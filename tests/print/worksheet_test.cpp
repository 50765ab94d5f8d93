#include "print/worksheet.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QPdfWriter>
#include <QProcess>
#include <QProgressDialog>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include "print/page_printer.h"
#include "puzzle/fresh_square.h"
#include "support/stand_ins.h"

namespace numorra {
namespace {

constexpr int kPixels = 8;  // per millimetre

/// A word and its place on its page, in millimetres.
struct Word {
  QString Text;
  QRectF Box;
};

/// Prints sheets, and reads back the place of every word.
class WorksheetTest : public testing::Test {
 protected:
  void Print(int puzzles, const WorksheetWish& wish, QPageLayout::Orientation orientation) {
    std::vector<MadePuzzle> made;
    while (static_cast<int>(made.size()) < puzzles) {
      const auto square = FreshSquare({kOrder}, random_, stage_);
      made.push_back(std::get<MadePuzzle>(MakePuzzle(*square, {Grade::Easy}, random_, stage_)));
    }
    made_ = made;
    sheet_ = std::make_unique<Worksheet>(made, wish, orientation == QPageLayout::Landscape);
    const QTemporaryDir folder;
    const QString name = folder.filePath("sheet.pdf");
    {
      QPdfWriter writer(name);
      writer.setResolution(600);
      writer.setPageSize(QPageSize(QPageSize::A4));
      writer.setPageOrientation(orientation);
      size_ = writer.pageLayout().fullRect(QPageLayout::Millimeter).size();
      PaintPages(
          writer, 600,
          {"sheet", sheet_->Pages(), orientation, [this](QPainter& painter, QSizeF size, int page) {
             sheet_->PaintPage(painter, size, page);
           }});
    }
    QProcess reader;
    reader.start("pdftotext", {"-raw", "-bbox", name, "-"});  // in the order of writing
    ASSERT_TRUE(reader.waitForFinished());
    ReadPages(reader.readAllStandardOutput());
  }

  void ReadPages(const QString& text) {
    pages_.clear();
    const QRegularExpression tag(
        "<page |xMin=\"(.+)\" yMin=\"(.+)\" xMax=\"(.+)\" yMax=\"(.+)\">(.+)</word>");
    for (auto found = tag.globalMatch(text); found.hasNext();) {
      const auto match = found.next();
      if (match.captured(0) == "<page ") {
        pages_.emplace_back();
        continue;
      }
      const auto at = [&](int group) { return match.captured(group).toDouble() * 25.4 / 72; };
      pages_.back().push_back({match.captured(5), {QPointF(at(1), at(2)), QPointF(at(3), at(4))}});
    }
  }

  const Word& Find(std::size_t page, const QString& start, int nth = 0) {
    for (const Word& word : pages_[page]) {
      if (word.Text.startsWith(start) && nth-- == 0) return word;
    }
    ADD_FAILURE() << "no " << start.toStdString();
    return pages_[page].front();
  }

  /// No word overlaps another or leaves the page.
  void ExpectRoom() {
    const QRectF paper = QRectF(QPointF(), size_).adjusted(11, 11, -11, -11);
    for (const auto& page : pages_) {
      for (const Word& word : page) {
        EXPECT_TRUE(paper.contains(word.Box)) << word.Text.toStdString();
        const double third = word.Box.height() / 3;  // a box reaches above and below its letters
        const QRectF ink = word.Box.adjusted(0, third, 0, -third);
        for (const Word& other : page)
          EXPECT_TRUE(&other == &word || !ink.intersects(other.Box)) << word.Text.toStdString();
      }
    }
  }

  /// The board of one of the answers: its numbers are spaced equally in both directions.
  QRectF BoardOfAnswer(std::size_t page, int place, const Puzzle& solution) {
    std::vector<Word> numbers;
    QString before;
    for (const Word& word : pages_[page]) {
      bool number = false;
      word.Text.toInt(&number);
      if (number && before != "total") numbers.push_back(word);
      before = word.Text;
    }
    const auto first = place * solution.Cells.Size();
    numbers = {numbers.begin() + first, numbers.begin() + first + solution.Cells.Size()};
    const QPointF start = numbers.front().Box.center();
    const QPointF step = (numbers.back().Box.center() - start) / (kOrder - 1);
    EXPECT_NEAR(step.x(), step.y(), 0.2);
    for (std::size_t cell = 0; cell < numbers.size(); ++cell) {
      EXPECT_EQ(numbers[cell].Text.toInt(), solution.Cells[static_cast<int>(cell)]);
      const QPointF at = numbers[cell].Box.center() - start;
      const auto [row, column] = std::div(static_cast<int>(cell), kOrder);
      EXPECT_NEAR(at.x(), column * step.x(), 0.3);
      EXPECT_NEAR(at.y(), row * step.y(), 0.3);
      EXPECT_GT(numbers[cell].Box.height(), step.y() / 3);
    }
    return {start - step / 2, QSizeF(step.x(), step.y()) * kOrder};
  }

  /// There are lines between all cells, a frame around them, and no other lines.
  void ExpectLines(int page, const QRectF& board) {
    QImage picture((size_ * kPixels).toSize(), QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.scale(kPixels, kPixels);
    sheet_->PaintPage(painter, size_, page);
    const auto dark = [&](QPointF at) {
      int darkest = 255;
      for (int x = -3; x <= 3; ++x) {
        for (int y = -3; y <= 3; ++y) {
          const QPoint pixel = (at * kPixels).toPoint() + QPoint(x, y);
          darkest = std::min(darkest, qGray(picture.pixel(pixel)));
        }
      }
      return darkest < 128;
    };
    const double side = board.width() / kOrder;
    for (int line = 0; line <= kOrder; ++line) {
      for (int cell = 0; cell < kOrder; ++cell) {
        const QPointF off(line * side, (cell + 0.1) * side);
        EXPECT_TRUE(dark(board.topLeft() + off)) << line << ", " << cell;
        EXPECT_TRUE(dark(board.topLeft() + off.transposed())) << line << ", " << cell;
      }
    }
    for (const QPointF beside : {QPointF(-1.2, 1), QPointF(1, -1.2)}) {
      EXPECT_FALSE(dark(board.topLeft() + beside));
      EXPECT_FALSE(dark(board.bottomRight() - beside));
    }
  }

  static constexpr int kOrder = 4;
  SeededRandom random_{5};
  SilentStage stage_;
  std::vector<MadePuzzle> made_;
  std::unique_ptr<Worksheet> sheet_;
  QSizeF size_;
  std::vector<std::vector<Word>> pages_;
};

TEST_F(WorksheetTest, HasRoomForEverything) {
  for (const auto orientation : {QPageLayout::Portrait, QPageLayout::Landscape}) {
    for (const int perPage : {1, 2, 4, 6}) {
      SCOPED_TRACE(perPage);
      Print(perPage + 1, {perPage, "Monday", true}, orientation);
      ASSERT_EQ(pages_.size(), 4U) << "two pages of puzzles, two of answers";
      ExpectRoom();
      const Word& title = Find(0, "Monday");
      const Word& name = Find(0, "Name:");
      EXPECT_GT(title.Box.height(), 7);
      EXPECT_LT(title.Box.left(), 13);
      EXPECT_GT(name.Box.left(), size_.width() / 2);
      EXPECT_NEAR(name.Box.center().y(), title.Box.center().y(), 1.5);
      EXPECT_GT(Find(0, "Fill").Box.top(), title.Box.bottom());
      EXPECT_EQ(Find(2, "answers").Text, "answers");
      std::vector<QRectF> boards;
      for (int place = 0; place < perPage; ++place) {
        boards.push_back(BoardOfAnswer(2, place, made_[static_cast<std::size_t>(place)].Solution));
        ExpectLines(2, boards.back());
        const QString number = QString::number(place + 1) + ".";
        EXPECT_LT(Find(2, number).Box.bottom(), boards.back().top() + 0.5);
        EXPECT_GT(Find(2, "NP2", place).Box.top(), boards.back().bottom());
        EXPECT_GT(Find(0, "NP2", place).Box.top(), Find(0, "Missing:", place).Box.bottom() - 1);
        EXPECT_GT(Find(0, "Missing:", place).Box.top(), boards.back().bottom());
        EXPECT_NEAR(boards.back().width(), boards.front().width(), 0.5);
      }
      const double middle = (boards.front().center().x() + boards.back().center().x()) / 2;
      EXPECT_NEAR(middle, size_.width() / 2, 0.5) << "the boards stand in the middle of the page";
      for (std::size_t i = 0; i < boards.size(); ++i) {
        for (std::size_t k = 0; k < i; ++k)
          EXPECT_FALSE(boards[i].intersects(boards[k]));
      }
    }
  }
}

/// The title, at 7 mm, shows how high a word is for its font.
TEST_F(WorksheetTest, InLargePrintHasNoTextBelow18Points) {
  for (const auto orientation : {QPageLayout::Portrait, QPageLayout::Landscape}) {
    for (const bool all : {false, true}) {
      const SheetOptions options{true, all, all, false, all};
      Print(3, {6, "Monday", true, options}, orientation);
      ExpectRoom();
      const double millimetre = Find(0, "Monday").Box.height() / 7;
      for (const auto& page : pages_) {
        for (const Word& word : page)
          EXPECT_GE(word.Box.height() / millimetre * 72 / 25.4, 17.95) << word.Text.toStdString();
      }
      int codes = 0, names = 0;
      for (const auto& page : pages_) {
        for (const Word& word : page) {
          codes += word.Text.startsWith("NP2");
          names += word.Text == "Name:";
        }
      }
      EXPECT_EQ(codes, 6) << "all puzzles and answers";
      EXPECT_EQ(names, all ? 3 : sheet_->PuzzlePages());
      EXPECT_EQ(sheet_->WhyTooLarge(), "");
    }
  }
  MadePuzzle large;
  large.Clues.Cells = large.Solution.Cells = Square<std::int64_t>(20, 400);
  MadePuzzle wide;
  wide.Clues.Cells = wide.Solution.Cells = Square<std::int64_t>(12, 144);
  EXPECT_EQ(Worksheet({wide, wide}, {2, "", true, {.LargePrint = true}}).PuzzlePages(), 2);
  EXPECT_EQ(Worksheet({made_[0], large}, {.Options = {.LargePrint = true}}).WhyTooLarge(),
            "a puzzle of size 20 has no room for large print on this page");
}

TEST_F(WorksheetTest, GivesEveryPupilAPageAndEveryPageItsNumber) {
  Print(3, {2, "Monday", true, {.PageNumbers = true, .PageAPupil = true, .Booklet = true}},
        QPageLayout::Portrait);
  ASSERT_EQ(pages_.size(), 5U) << "three of puzzles, two of answers";
  ExpectRoom();
  for (std::size_t page = 0; page < pages_.size(); ++page) {
    EXPECT_EQ(Find(page, "Page").Text, "Page");
    EXPECT_NEAR(Find(page, "Monday").Box.left(), page % 2 == 0 ? 21.6 : 12, 1);
  }
}

/// A box counts many pages while they are laid out, and its Stop closes the preview at once.
TEST(Previews, CanBeStopped) {
  constexpr int kPages = 400;
  int painted = 0;
  const PaintedPages pages{"p", kPages, {}, [&](QPainter&, QSizeF, int) {
                             ++painted;
                             QTest::qSleep(5);
                           }};
  QTimer watch;
  QString told;
  QObject::connect(&watch, &QTimer::timeout, [&] {
    auto* box = qobject_cast<QProgressDialog*>(QApplication::activeModalWidget());
    if (!box || !box->isVisible()) return;
    told = box->labelText();
    box->cancel();
  });
  watch.start(0);
  PreviewedPages().Preview(nullptr, pages);
  EXPECT_TRUE(told.endsWith(" of 400")) << told.toStdString();
  EXPECT_TRUE(painted > 0 && painted < kPages) << painted;
}

TEST_F(WorksheetTest, LeavesTheTotalToBeFound) {
  Print(1, {1, "Monday", false}, QPageLayout::Portrait);
  EXPECT_EQ(Find(0, "___").Text, "________");
  EXPECT_EQ(Find(1, "34").Text, "34");
}

}  // namespace
}  // namespace numorra

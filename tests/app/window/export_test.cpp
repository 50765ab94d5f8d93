#include <cmath>

#include <QApplication>
#include <QProcess>
#include <QSpinBox>
#include <QSvgRenderer>

#include "support/files_fixture.h"
#include "visual/drawing.h"

namespace numorra {
namespace {

constexpr const char* kPuzzleWithEntry =
    "{\"format\": \"numorra-square\", \"version\": 1, \"order\": 3, \"total\": 15, "
    "\"rules\": \"normal\", \"rows\": [[8, null, 6], [3, 5, 7], [null, 9, 1]], "
    "\"givens\": [[true, false, true], [true, true, false], [false, true, false]]}\n";

class ExportTest : public FilesWindowTest {
 protected:
  /// Exports what is chosen as a PNG.
  QImage Exported(int subject, bool totals, int pixels = 500) {
    QDialog& form = OpenExport(In("picture.png"), 0);
    form.findChild<QComboBox*>("PictureSubject")->setCurrentIndex(subject);
    form.findChild<QAbstractButton*>("PictureTotalsx")->setChecked(totals);
    form.findChild<QSpinBox*>("PictureSize")->setValue(pixels);
    form.findChild<QPushButton*>("TakePicturex")->click();
    EXPECT_EQ(dialogs_.Take(), Messages{});
    return QImage(In("picture.png"));
  }

  /// Whether anything is written in the middle of each cell of a picture, in reading order.
  static std::string Inked(const QImage& picture, int across) {
    const int margin = picture.width() / 50;
    const int side = (picture.width() - 2 * margin) / across;
    std::string inked;
    for (int cell = 0; cell < across * across; ++cell) {
      const QRect whole(margin + cell % across * side, margin + cell / across * side, side, side);
      const QImage middle = picture.copy(whole.adjusted(side / 5, side / 5, -side / 5, -side / 5));
      int darkest = 255, lightest = 0;
      for (int at = 0; at < middle.width() * middle.height(); ++at) {
        const int grey = qGray(middle.pixel(at % middle.width(), at / middle.width()));
        darkest = std::min(darkest, grey);
        lightest = std::max(lightest, grey);
      }
      inked += lightest - darkest > 60 ? 'x' : '.';
    }
    return inked;
  }

  /// The margins around what is not white: left, top, right, bottom.
  static std::array<int, 4> Margins(const QImage& picture) {
    constexpr int kInk = 245;  // an edge may be blurred
    QRect ink;
    for (int y = 0; y < picture.height(); ++y) {
      for (int x = 0; x < picture.width(); ++x) {
        if (qGray(picture.pixel(x, y)) < kInk) ink |= QRect(x, y, 1, 1);
      }
    }
    return {ink.left(), ink.top(), picture.width() - 1 - ink.right(),
            picture.height() - 1 - ink.bottom()};
  }
};

TEST_F(ExportTest, APuzzleShowsWhatWasChosen) {
  Trigger("Openx", Written("puzzle", kPuzzleWithEntry));
  dialogs_.Take();
  EXPECT_EQ(Inked(Exported(0, false), 3), "x.xxxx.xx") << "with the entries";
  EXPECT_EQ(Inked(Exported(1, false), 3), "x.xxx..x.") << "the givens alone";
  EXPECT_EQ(Inked(Exported(2, false), 3), "xxxxxxxxx");
  const std::string solved = Inked(Exported(2, true), 5);
  EXPECT_EQ(solved, "xxxxxxxxx.xxxx.xxxx.x....") << "with the totals";
  const QDialog& form = OpenExport({}, 0);
  EXPECT_EQ(form.findChild<QComboBox*>("PictureSubject")->currentIndex(), 2) << "kept";
  EXPECT_EQ(form.findChild<QSpinBox*>("PictureSize")->value(), 500);
  EXPECT_EQ(TheGrid().Text(3, 3), "1") << "the board stays";
}

TEST_F(ExportTest, PicturesHaveTheirSizeAndEvenMarginsOnWhite) {
  QPalette dark = QApplication::palette();
  for (const auto role : {QPalette::Window, QPalette::Base})
    dark.setColor(role, Qt::black);
  for (const auto role : {QPalette::Text, QPalette::WindowText})
    dark.setColor(role, Qt::white);
  const QPalette before = QApplication::palette();
  QApplication::setPalette(dark);
  for (const char* size : {"3", "11", "50"}) {
    for (const bool drawing : {false, true}) {
      SCOPED_TRACE(std::string(size) + (drawing ? " drawn" : ""));
      Make("SolveAuto", size);
      dialogs_.Take();
      if (drawing) Click("Command2");
      const QImage picture = Exported(0, false, 1003);
      EXPECT_EQ(picture.size(), QSize(1003, 1003));
      const auto margins = Margins(picture);
      for (const int margin : margins)
        EXPECT_NEAR(margin, 20, 2);
      if (drawing) {
        EXPECT_EQ(picture.pixelColor(26, 26), QColor(Qt::white)) << "a light ground";
      }
      Export(In("picture.svg"), 1);
      QProcess lint;
      lint.start("xmllint", {"--noout", "--nonet", In("picture.svg")});
      if (lint.waitForFinished()) {
        EXPECT_EQ(lint.exitCode(), 0);
      }
      const QByteArray written = Read("picture.svg");
      EXPECT_TRUE(written.contains("width=\"150mm\" height=\"150mm\""));
      EXPECT_FALSE(written.contains("<text")) << "without fonts";
      QImage rendered(1003, 1003, QImage::Format_RGB32);
      rendered.fill(Qt::red);
      QPainter painter(&rendered);
      QSvgRenderer(written).render(&painter);
      const auto again = Margins(rendered);
      for (std::size_t side = 0; side < margins.size(); ++side)
        EXPECT_NEAR(again[side], margins[side], 2);
      Export(In("picture.pdf"), 2);
      QProcess reader;
      reader.start("pdfinfo", {In("picture.pdf")});
      ASSERT_TRUE(reader.waitForFinished());
      const QByteArray info = reader.readAllStandardOutput();
      EXPECT_TRUE(info.contains("Pages:           1\n") && info.contains("425 x 425 pts"))
          << info.toStdString();
    }
  }
  QApplication::setPalette(before);
}

TEST_F(ExportTest, APageToPlayOnIsSavedFromTheWorksheetsDialog) {
  Make("SolveAuto", "4");
  dialogs_.Take();
  Trigger("PrintWorksheetx", In("page.html"));
  auto& form = Find<QDialog>("PrintWorksheet");
  form.findChild<QLineEdit*>("SheetTitle")->setText("Class <5b>");
  form.findChild<QAbstractButton*>("SavePagex")->click();
  EXPECT_EQ(dialogs_.Take(), Messages{});
  EXPECT_EQ(files_.Kinds, "Web pages (*.html)");
  const QByteArray page = Read("page.html");
  EXPECT_GE(page.count("<table"), 6);
  EXPECT_TRUE(page.contains("<title>Class &lt;5b></title>") ||
              page.contains("<title>Class &lt;5b&gt;</title>"));
}

}  // namespace
}  // namespace numorra

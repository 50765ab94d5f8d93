#include <atomic>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <thread>

#include <QClipboard>
#include <QDeadlineTimer>
#include <QDropEvent>
#include <QMimeData>
#include <QProcess>

#include "app/board/runtime_error.h"
#include "app/window/menus/square_files.h"
#include "support/files_fixture.h"
#include "support/full_disk.h"

namespace numorra {
namespace {

using FilesTest = FilesWindowTest;

constexpr const char* kPuzzle =
    "{\"format\": \"numorra-square\", \"version\": 1, \"order\": 3, \"total\": 15, "
    "\"rules\": \"normal\", \"rows\": [[8, null, 6], [3, 5, 7], [4, 9, 2]], "
    "\"givens\": [[true, false, true], [false, false, false], [false, false, false]]}\n";

TEST_F(FilesTest, WhatIsSavedOpensAgainWhole) {
  EXPECT_FALSE(Find<QAction>("SaveAsx").isEnabled() || Find<QAction>("ExportPicturex").isEnabled());
  Trigger("Openx", Written("puzzle", kPuzzle));
  EXPECT_EQ(TheGrid().Text(1, 2), "");
  EXPECT_TRUE(TheGrid().Given(1, 1) && TheGrid().Given(1, 3) && !TheGrid().Given(2, 2));
  EXPECT_EQ(window_.TheBoard().Asked, Rules::Normal);
  EXPECT_TRUE(Find<QRadioButton>("Option3").isChecked() && window_.TheBoard().TotalsChecked);
  Trigger("SaveAsx", In("again.json"));
  EXPECT_EQ(Read("again.json"), kPuzzle);
  const std::function<void()> boards[] = {[this] {
                                            Make("SolveManual", "5", "70.5"),
                                                QTest::keyClick(&window_.View(), Qt::Key_Backspace);
                                            QTest::keyClick(&window_.View(), Qt::Key_Right);
                                            QTest::keyClick(&window_.View(), Qt::Key_Left);
                                          },
                                          [this] { Trigger("Openx", Written("puzzle", kPuzzle)); },
                                          [this] { Make("SolveManual", "50", "5003"); }};
  for (const auto& board : boards) {
    board();
    dialogs_.Take();
    const Position before = Now();
    Trigger("SaveAsx", In("board"));
    Make("SolveAuto", "4");
    Trigger("Openx", In("board"));
    EXPECT_EQ(Now(), before);
    Trigger("SaveAsx", In("board.CSV"));
    Make("SolveAuto", "4");
    Trigger("Openx", In("board.CSV"));
    EXPECT_EQ(Now().Texts, before.Texts);
    EXPECT_EQ(dialogs_.Take(), Messages{}) << "silently";
    ExpectSettled();
  }
}

TEST_F(FilesTest, WhatTheCompanionWritesOpensAndIsPasted) {
  const auto written = [](const char* line, const QByteArray& input = {}) {
    QProcess companion;
    companion.start(QCoreApplication::applicationDirPath() + "/numorra-square",
                    QString(line).split(' '));
    companion.write(input);
    companion.closeWriteChannel();
    EXPECT_TRUE(companion.waitForFinished());
    return companion.readAllStandardOutput();
  };
  const QByteArray square = written("--size 7 --format json");
  const QByteArray puzzle = written("puzzle --size 4 --format json");
  const std::function<void(const QByteArray&)> ways[] = {
      [this](const QByteArray& text) {
        QGuiApplication::clipboard()->setText(text);
        Find<QAction>("Pastex").trigger();
      },
      [this](const QByteArray& text) { Trigger("Openx", Written("a.txt", text)); }};
  for (const auto& bring : ways) {
    for (const QByteArray& text : {square, written("study --format json", square),
                                   written("complete --format json", puzzle)}) {
      bring(text);
      dialogs_.Take();
      EXPECT_EQ(slow::WhyNotNormal(Rows()), "") << text.toStdString();
      EXPECT_EQ(TheGrid().VerdictOf(0, 0), Verdict::Right);
    }
    bring(puzzle);
    dialogs_.Take();
    EXPECT_TRUE(window_.TheBoard().HasGaps());
    EXPECT_EQ(window_.TheBoard().Asked, Rules::Normal);
  }
}

TEST_F(FilesTest, UnreadableFilesAreReportedAndChangeNothing) {
  Make("SolveManual", "3", "15");
  const Position before = Now();
  const QString fifo = In("fifo");
  mkfifo(fifo.toUtf8().constData(), 0600);
  const std::pair<QString, QString> cases[] = {
      {In("none"), "File error: there is no file " + In("none")},
      {fifo, "File error: " + fifo + " is not a regular file"},
      {"/dev/zero", "File error: /dev/zero is not a regular file"},
      {folder_.path(), "File error: " + folder_.path() + " is not a regular file"},
      {Written("large", QByteArray((1 << 20) + 1, '1')),
       "File error: " + In("large") + " is too large to be a square"},
      {Written("csv", "1,2,3\n4,5,x\n7,8,9"), "line 2: \"x\" is not a number"},
      {Written("json", "{\n\n\"a\": [}"), "line 3, column 7: this is not valid JSON"},
      {Written("mark", "\xEF\xBB\xBF{}"), "this JSON is not a Numorra square"},
      {Written("utf16", QByteArray("\xFF\xFE"
                                   "1\0\t\0"
                                   "2\0",
                                   8)),
       "this text is in UTF-16: save it as UTF-8"}};
  for (const auto& [name, said] : cases) {
    Trigger("Openx", name);
    EXPECT_EQ(dialogs_.Take(), Messages{said.toStdString()});
    EXPECT_EQ(Now(), before);
  }
  Trigger("Openx", "");
  EXPECT_EQ(dialogs_.Take(), Messages{}) << "nothing was chosen";
}

TEST_F(FilesTest, AFullDiskLosesNothing) {
  Make("SolveManual", "50", "5003");
  dialogs_.Take();
  const std::pair<const char*, std::function<void(const QString&)>> ways[] = {
      {"a.json", [this](const QString& name) { Trigger("SaveAsx", name); }},
      {"a.png", [this](const QString& name) { Export(name, 0); }},
      {"a.svg", [this](const QString& name) { Export(name, 1); }},
      {"a.pdf", [this](const QString& name) { Export(name, 2); }}};
  for (const auto& [name, write] : ways) {
    Written(name, "what was there");
    {
      const FullDisk full(1000);
      write(In(name));
    }
    const Messages said = dialogs_.Take();
    ASSERT_EQ(said.size(), 1U) << name;
    EXPECT_NE(said[0].find("cannot write " + In(name).toStdString()), std::string::npos) << said[0];
    EXPECT_EQ(Read(name), "what was there");
  }
  Trigger("SaveAsx", "/nowhere/at/all.json");
  EXPECT_EQ(dialogs_.Take().size(), 1U);
  Export("a.pdf", 1);
  EXPECT_EQ(dialogs_.Take(), Messages{"File error: a.pdf is not a .svg file"});
  EXPECT_EQ(QDir(folder_.path()).entryList(QDir::Files).size(), 4) << "nothing is left beside them";
}

/// Something that is not a file, or has the name of another kind of file, is not replaced.
TEST_F(FilesTest, OnlyFilesOfTheKindAreWritten) {
  Make("SolveAuto", "3");
  const QString pipe = In("pipe.json"), circle = In("circle.json"), link = In("link.json");
  mkfifo(pipe.toUtf8().constData(), 0600);
  QFile::link(circle, circle);
  QFile::link(Written("linked.json", "old"), link);
  const std::pair<QString, std::string> cases[] = {
      {pipe, " is not a regular file"},
      {circle, " is a link that does not lead to a file"},
      {In("q.png"), " has a picture's suffix: use Export Picture to save pictures"}};
  for (const auto& [name, why] : cases) {
    Trigger("SaveAsx", name);
    EXPECT_EQ(dialogs_.Take(), Messages{"File error: " + name.toStdString() + why});
  }
  struct stat now {};
  EXPECT_TRUE(lstat(pipe.toUtf8().constData(), &now) == 0 && S_ISFIFO(now.st_mode));
  EXPECT_TRUE(lstat(circle.toUtf8().constData(), &now) == 0 && S_ISLNK(now.st_mode));
  EXPECT_FALSE(QFile::exists(In("q.png")));
  Trigger("SaveAsx", link);
  EXPECT_TRUE(Read("linked.json").startsWith("{")) << "through a link to a file";
}

/// Another process truncates, removes and rewrites the file at the same time.
TEST_F(FilesTest, AFileThatChangesWhileItIsReadIsReadWholeOrRefused) {
  const QString name = In("restless");
  std::atomic<bool> goesOn = true;
  std::thread other([&] {
    for (int turn = 0; goesOn; ++turn) {
      QFile file(name);
      if (turn % 3 == 2) {
        file.remove();
      } else if (file.open(QFile::WriteOnly)) {
        file.write(turn % 3 == 0 ? QByteArray(kPuzzle) : QByteArray(kPuzzle).left(150));
      }
    }
  });
  int read = 0, refused = 0;
  const QDeadlineTimer enough(30'000);
  for (int attempt = 0; !enough.hasExpired() && (attempt < 300 || read == 0 || refused == 0);
       ++attempt) {
    try {
      const auto square = OpenSquare(name);
      const auto* whole = std::get_if<StoredSquare>(&square);
      ++(whole ? read : refused);
      EXPECT_TRUE(whole ? whole->Order() == 3 : !std::get<Unreadable>(square).Why.empty());
    } catch (const RuntimeError& error) {
      ++refused;
      EXPECT_NE(std::string(error.what()).find(name.toStdString()), std::string::npos);
    }
  }
  goesOn = false;
  other.join();
  EXPECT_GT(read, 0);
  EXPECT_GT(refused, 0);
}

TEST_F(FilesTest, AFileDroppedOntoTheWindowOpens) {
  const auto drop = [this](const QList<QUrl>& urls) {
    QMimeData data;
    data.setUrls(urls);
    QDragEnterEvent enter({9, 9}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QCoreApplication::sendEvent(&window_, &enter);
    if (!enter.isAccepted()) return false;
    QDropEvent event({9, 9}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&window_, &event);
    return true;
  };
  const QUrl puzzle = QUrl::fromLocalFile(Written("puzzle", kPuzzle));
  EXPECT_FALSE(drop({puzzle, puzzle}) || drop({}) || drop({QUrl("https://example.org/a.json")}));
  EXPECT_TRUE(drop({puzzle}));
  EXPECT_EQ(TheGrid().Text(3, 3), "2");
}

}  // namespace
}  // namespace numorra

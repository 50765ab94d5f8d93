#include <gtest/gtest.h>
#include <sstream>

#include <QFile>
#include <QTemporaryDir>

#include "app/program_arguments.h"
#include "app/write_sheets.h"

namespace numorra {
namespace {

TEST(ProgramArguments, SayWithWhatToBegin) {
  using Kind = ProgramRequest::Kind;
  struct Case {
    std::vector<std::string> Words;
    Kind Wanted;
    const char* What;
  };
  for (const Case& c : {Case{{}, Kind::Window, ""},
                        {{"a.json"}, Kind::Open, "a.json"},
                        {{"--", "-1.json"}, Kind::Open, "-1.json"},
                        {{"--new-puzzle"}, Kind::NewPuzzle, "--new-puzzle"},
                        {{"a.json", "--help"}, Kind::Help, "--help"},
                        {{"--sheets", "a.pdf", "--help"}, Kind::Help, "--help"},
                        {{"--", "--help"}, Kind::Open, "--help"},
                        {{"--bogus"}, Kind::Wrong, "unknown argument '--bogus'; try --help"},
                        {{"a", "b"},
                         Kind::Wrong,
                         "only one window can be opened, not one with 'b' too; try --help"}}) {
    const ProgramRequest request = ParseProgramArguments(c.Words);
    EXPECT_EQ(request.Wanted, c.Wanted) << c.What;
    EXPECT_EQ(request.What, c.What);
  }
}

std::vector<std::string> WordsIn(const std::string& line) {
  std::istringstream words(line);
  return {std::istream_iterator<std::string>(words), {}};
}

TEST(SheetsArguments, AreRefusedWithASentence) {
  const std::pair<const char*, const char*> cases[] = {
      {"--sheets", "'--sheets' needs a value; try --help"},
      {"--sheets= --size 4", "the file for the sheets is missing; try --help"},
      {"--sheets a.pdf", "the size is missing; try --help"},
      {"--sheets a.pdf --size 4 --per-page 3", "a page has 1, 2, 4 or 6 puzzles; try --help"},
      {"--sheets a.pdf --size 4 --paper a5", "the paper must be a4 or letter; try --help"},
      {"--sheets a.pdf --help", "'--help' does not go with '--sheets'; try --help"},
      {"--sheets a.pdf --size 4 --format=json",
       "'--format' does not go with '--sheets'; try --help"},
      {"--sheets a.pdf --size 4 --large", "unknown argument '--large'; try --help"},
      {"--sheets a.pdf --codes b --grade hard",
       "a list of codes can be combined with a format, a title and steps only; try --help"}};
  for (const auto& [line, why] : cases) {
    EXPECT_TRUE(AsksForSheets(WordsIn(line)));
    const auto parsed = ParseSheetsArguments(WordsIn(line));
    ASSERT_TRUE(std::holds_alternative<std::string>(parsed)) << line;
    EXPECT_EQ(std::get<std::string>(parsed), why);
  }
}

TEST(SheetsArguments, SayHowSheetsAre) {
  const auto plain =
      std::get<SheetsRequest>(ParseSheetsArguments(WordsIn("--sheets a.pdf --size 4")));
  EXPECT_EQ(plain.PerPage, 6);
  EXPECT_TRUE(plain.TotalGiven);
  EXPECT_FALSE(plain.Landscape || plain.Letter || plain.Answers);
  EXPECT_EQ(plain.Options, SheetOptions());
  const auto other = std::get<SheetsRequest>(ParseSheetsArguments(
      WordsIn("--sheets=a.pdf --answers b.pdf --title T --per-page 4 --paper letter --landscape "
              "--hide-totals --large-print --page-numbers --names --page-a-pupil --booklet "
              "--size 4")));
  EXPECT_EQ(other.File + *other.Answers + other.Title, "a.pdfb.pdfT");
  EXPECT_EQ(other.PerPage, 4);
  EXPECT_FALSE(other.TotalGiven);
  EXPECT_TRUE(other.Landscape && other.Letter);
  EXPECT_EQ(other.Options, (SheetOptions{true, true, true, true, true, true}));
}

TEST(Sheets, AreTheSameFromTheSameSeedAndHaveTheirAnswersApart) {
  const QTemporaryDir folder;
  const auto written = [&](const std::string& seed) {
    const std::string path = folder.path().toStdString() + "/";
    const auto parsed = ParseSheetsArguments(
        WordsIn("--sheets " + path + "a.pdf --answers=" + path + "b.pdf --booklet --per-page 2 " +
                "--landscape --size 4 --grades easy:3,hard:2 --seed " + seed));
    std::istringstream in;
    std::ostringstream out, err;
    EXPECT_TRUE(WriteSheets(std::get<SheetsRequest>(parsed), {in, out, err, ""}));
    EXPECT_EQ(out.str() + err.str(), "");
    QByteArrayList files;
    for (const char* name : {"a.pdf", "b.pdf"}) {
      QFile file(folder.filePath(name));
      EXPECT_TRUE(file.open(QFile::ReadOnly));
      files += file.readAll();
      EXPECT_EQ(files.back().count("/Type /Page\n"), 3) << name;
    }
    return files;
  };
  const QByteArrayList first = written("5");
  EXPECT_EQ(written("5"), first);
  EXPECT_NE(written("6"), first);
}

}  // namespace
}  // namespace numorra

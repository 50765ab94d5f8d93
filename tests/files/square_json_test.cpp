#include "files/square_json.h"

#include <gtest/gtest.h>
#include <sstream>

#include "files/block_reader.h"
#include "files/formats.h"

namespace numorra {
namespace {

std::string Replaced(std::string text, const std::string& from, const std::string& to) {
  return text.replace(text.find(from), from.size(), to);
}

const std::string kPuzzle =
    "{\"format\": \"numorra-square\", \"version\": 1, \"order\": 3, \"total\": 15, "
    "\"rules\": \"normal\", \"rows\": [[8, null, 6], [3, 5, 7], [4, 9, 2]], "
    "\"givens\": [[true, false, true], [false, false, false], [false, false, false]]}\n";

const StoredSquare kStored{
    .Cells = {3, {8, {}, 6, 3, 5, 7, 4, 9, 2}},
    .Givens = {3, {true, false, true, false, false, false, false, false, false}},
    .Total = 15,
    .Asked = Rules::Normal};

TEST(SquareJson, IsWrittenOnOneLineAndReadInAnyForm) {
  EXPECT_EQ(JsonOf(kStored), kPuzzle);
  for (const std::string& text :
       {kPuzzle, "\r\n " + kPuzzle, Replaced(kPuzzle, "]], \"g", "]]\n,\t\"g"),
        Replaced(kPuzzle, "\"order\": 3, ", ""), Replaced(kPuzzle, "15", "1.5e1"),
        Replaced(kPuzzle, "}", R"(, "solution": [[{"rows": [[1]]}], []], "why": "\"}é"})"),
        Replaced(kPuzzle, "{",
                 R"({"deep": )" + std::string(99'999, '[') + std::string(99'999, ']') + ", ")}) {
    const auto read = ReadSquareJson(text);
    ASSERT_TRUE(std::holds_alternative<StoredSquare>(read)) << std::get<Unreadable>(read).Why;
    EXPECT_EQ(std::get<StoredSquare>(read), kStored);
  }
  StoredSquare noted = kStored;
  noted.Noted.Set(3, 1, NoteSet(0b10));
  const std::string notes =
      Replaced(kPuzzle, "}", R"(, "notes": [["", "1", ""], ["", "", ""], ["", "", ""]]})");
  EXPECT_EQ(JsonOf(noted), notes);
  EXPECT_EQ(std::get<StoredSquare>(ReadSquareJson(notes)), noted);
  EXPECT_EQ(std::get<StoredSquare>(ReadSquareJson(Replaced(notes, "\"1\"", "\" 1-9\""))), noted)
      << "numbers on the board are no notes";
  const auto rows =
      ReadSquareJson(R"({"rows": [[-8, 0.5, 6], [3, 5, 7], [4, 9, 12345678901234]]})");
  EXPECT_EQ(std::get<StoredSquare>(rows),
            (StoredSquare{{3, {-8, 0.5, 6, 3, 5, 7, 4, 9, 12345678901234}}}));
}

TEST(SquareJson, ThatIsInvalidIsRefusedWithItsPlace) {
  const std::string none = "this JSON is not a Numorra square";
  const std::pair<std::string, std::string> cases[] = {
      {"{\n\n\"a\": [}", "line 5, column 7: this is not valid JSON"},
      {"{\n\"a\": [1, ", "line 4, column 10: the JSON ends too early"},
      {"{\"a\": 1e999}", "line 3, column 11: this number is too large"},
      {"{\"a\": \"\xFF\"}", "line 3, column 8: this is not valid JSON"},
      {kPuzzle + kPuzzle, "line 4, column 1: there is text after the square"},
      {"", "line 3, column 1: the JSON ends too early"},
      {"{}", none},
      {"[[1, 2, 3]]", none},
      {Replaced(kPuzzle, "-square", ""), none},
      {Replaced(kPuzzle, "\"version\": 1", "\"version\": 0"), none},
      {Replaced(kPuzzle, "\"version\": 1", "\"version\": 2"),
       "this square was written by a later version of Numorra"},
      {Replaced(kPuzzle, "r\": 3", "r\": 3000"), "\"order\" must be a whole number from 3 to 50"},
      {Replaced(kPuzzle, "r\": 3", "r\": 3.5"), "\"order\" must be a whole number from 3 to 50"},
      {Replaced(kPuzzle, "r\": 3", "r\": 4"), "\"rows\" has 3 rows, not 4"},
      {R"({"rows": [[1, 2], [3, 4]]})", "\"rows\" has 2 rows, not 3 to 50"},
      {R"({"answer": "none", "rows": null})", "\"rows\" contains no square"},
      {Replaced(kPuzzle, "3, 5, 7", "3, 5"), "row 2 of \"rows\" has 2 cells, not 3"},
      {Replaced(kPuzzle, "[3, 5, 7]", "7"), "row 2 of \"rows\" has 0 cells, not 3"},
      {Replaced(kPuzzle, "3, 5, 7", "3, \"x\", 7"), "row 2, column 2: this is not a number"},
      {Replaced(kPuzzle, "3, 5, 7", "3, [5], 7"), "row 2, column 2: this is not a number"},
      {Replaced(kPuzzle, "3, 5, 7", "3, 123456789012345, 7"),
       "row 2, column 2: the number has more than 14 digits"},
      {Replaced(kPuzzle, "15", "1e308"), "\"total\" has more than 16 digits"},
      {Replaced(kPuzzle, "15", "\"15\""), "\"total\" is not a number"},
      {Replaced(kPuzzle, "\"normal\"", "\"odd\""), "\"rules\" must be normal or positive"},
      {Replaced(kPuzzle, "[[true, false", "[[true, true"),
       "row 1, column 2: a gap cannot be given"},
      {Replaced(kPuzzle, "[[true", "[[1"), "row 1, column 1: \"givens\" must be true or false"}};
  const std::string before = kPuzzle.substr(0, kPuzzle.find("\"givens")) + R"("notes": [["", )";
  for (const char* const notes : {"1", "null", "\"10\"", "\"0\"", "\"1-\"", "\"3-2\"", "\"1,2\"",
                                  "\"1-2-3\"", "\"99999999999999999999\"", "\"-1\""}) {
    const auto read = ReadSquareJson(before + notes + R"(, ""], ["", "", ""], ["", "", ""]]})");
    EXPECT_EQ(
        std::get<Unreadable>(read).Why,
        "row 1, column 2: \"notes\" must be a text of numbers from 1 to 9 and ranges, such as "
        "\"1-3 7\"")
        << notes;
  }
  const auto full = ReadSquareJson(before + R"("", "1"], ["", "", ""], ["", "", ""]]})");
  EXPECT_EQ(std::get<Unreadable>(full).Why, "row 1, column 3: only a gap can have notes");
  for (const auto& [text, why] : cases) {
    const auto read = ReadSquareJson(text, 3);
    ASSERT_TRUE(std::holds_alternative<Unreadable>(read)) << text;
    EXPECT_EQ(std::get<Unreadable>(read).Why, why) << text;
  }
}

TEST(Formats, ReadWhatTheyWrite) {
  const StoredSquare broken{.Cells = {4, std::vector<std::optional<double>>(16, -2.5)}};
  for (const Format& format : kFormats) {
    EXPECT_EQ(FormatNamed(format.Name), format.Id);
    if (!format.Read) continue;
    for (const StoredSquare& stored : {kStored, broken}) {
      StoredSquare square = stored;
      if (format.Id != SquareFormat::Json) square = {.Cells = stored.Cells};
      for (const char* caption : {"", "hard, 50 % & {more}"}) {
        std::istringstream written(format.Write(square, caption));
        const auto read = ReadSquare(BlockReader(written).Next().value().Text);
        ASSERT_TRUE(std::holds_alternative<StoredSquare>(read)) << format.Name;
        EXPECT_EQ(std::get<StoredSquare>(read), square) << format.Name;
      }
    }
  }
  EXPECT_EQ(FormatNamed("xml"), std::nullopt);
  EXPECT_EQ(TextOf({.Cells = {3, {8, {}, 16, 3, 5, 7, 4, 9, 2}}, .Total = 15}),
            " 8  . 16\n 3  5  7\n 4  9  2\n\ntotal 15\n");
  const auto large = ReadSquare(std::string(kMostTextBytes, ' ') + kPuzzle);
  EXPECT_EQ(std::get<Unreadable>(large).Why, kTooLongForASquare);
}

TEST(Formats, AreReadAsOthersWriteThem) {
  const StoredCells loShu{3, {8, {}, 6, 3, 5, 7, 4, 9, 2}};
  for (const char* text :
       {"[[8, null, 6], [3, 5, 7], [4, 9, 2]]", " [ [8,None,6],\n  [3,5,7],\n  [4,9,2], ]\n",
        "{{8, Null, 6}, {3, 5, 7}, {4, 9, 2}}", "((8,,6),(3,5,7),(4,9,2))",
        "$\\begin{pmatrix}8 & & 6\\\\ 3 & 5 & 7\\\\[2pt]\n4 & 9 & 2\\end{pmatrix}$",
        ("% by hand\n\\begin{tabular}[t]{|c|c|c|}\\hline\n\\textbf{8} & & $6$ \\\\ \\cline{1-3} % "
         "9 "
         "& 9\n"
         "3 & 5 & 7 \\\\\n4 & 9 & \\boxed{2} \\\\ \\hline\n\\end{tabular}")}) {
    const auto read = ReadSquare(text);
    ASSERT_TRUE(std::holds_alternative<StoredSquare>(read))
        << text << ": " << std::get<Unreadable>(read).Why;
    EXPECT_EQ(std::get<StoredSquare>(read).Cells, loShu) << text;
  }
  const std::pair<const char*, const char*> wrong[] = {
      {"[[1, 2, 3], [4, 5, 6], [7, 8, 9]", "line 4: a bracket is not closed"},
      {"[[1, 2, 3],\n[4, 5, 6),\n[7, 8, 9]]", "line 5: the brackets do not match"},
      {"[[1, 2, 3],\n[4, [5], 6]]", "line 5: there are lists within the rows"},
      {"[[1, 2, 3]] + 1", "line 4: there is more after the list"},
      {"[[1, 2, 3], 4]", "line 4: there is something between the rows"},
      {"[[1, 2, 3], [4, 5, x],\n[7, 8, 9]]", "line 4: \"x\" is not a number"},
      {"\\begin{array}{ccc}\n1 & 2 & 3 \\\\\n4 & 5 & six \\\\\n7 & 8 & 9\\end{array}",
       "line 6: \"six\" is not a number"},
      {"\\begin{array}{ccc}\n1 & 2", "line 5: \\end is missing"},
      {"\\begin{array}{cc", "line 4: \\end is missing"}};
  for (const auto& [text, why] : wrong) {
    const auto read = ReadSquare(text, 4);
    ASSERT_TRUE(std::holds_alternative<Unreadable>(read)) << text;
    EXPECT_EQ(std::get<Unreadable>(read).Why, why) << text;
  }
}

TEST(Blocks, AreObjectsAndLinesInAnyOrder) {
  std::istringstream in(
      "\xEF\xBB\xBF{\"a\": 1}\n1 2\n3 4\n{\"b\":\r\n\"}\\\"\",\r{\"c\": {}\r\n}} {\"d\": 2}\n\n"
      "\t5\n\n\ntotal 3\n6");
  const std::pair<std::string, std::size_t> expected[] = {
      {"{\"a\": 1}", 1}, {"1 2\n3 4\n", 2}, {"{\"b\":\n\"}\\\"\",\n{\"c\": {}\n}}", 4},
      {"{\"d\": 2}", 7}, {"\t5\n", 9},      {"6\n", 13}};
  BlockReader blocks(in);
  for (const auto& [text, line] : expected) {
    const auto block = blocks.Next();
    ASSERT_TRUE(block) << text;
    EXPECT_EQ(block->Text, text);
    EXPECT_EQ(block->FirstLine, line) << text;
  }
  EXPECT_FALSE(blocks.Next() || blocks.TooLongFrom());
}

}  // namespace
}  // namespace numorra

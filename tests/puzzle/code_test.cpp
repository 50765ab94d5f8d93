#include "puzzle/code.h"

#include <cstdio>
#include <functional>
#include <gtest/gtest.h>
#include <map>

#include "files/square_json.h"
#include "puzzle/code_list.h"
#include "puzzle/code_text.h"
#include "puzzle/fresh_square.h"
#include "support/soak.h"
#include "support/stand_ins.h"

namespace numorra {
namespace {

constexpr const char* kAlphabet = "0123456789ABCDEFGHJKMNPQRSTVWXYZ";

/// A square of the order, normal or of a random total, with its first number and about half of the
/// others.
Puzzle PuzzleWithHoles(int order, bool normal, Random& random) {
  SilentStage stage;
  SquareWish wish{order};
  if (!normal) wish.Total = order * random.Between(4, 400) + 1;
  Puzzle puzzle = *FreshSquare(wish, random, stage);
  for (int cell = 1; cell < puzzle.Cells.Size(); ++cell) {
    if (random.Between(0, 1) == 1) puzzle.Cells[cell] = 0;
  }
  return puzzle;
}

std::string WhyBroken(const std::string& code) {
  const auto read = ReadSquareOrCode(code);
  const auto* unreadable = std::get_if<Unreadable>(&read);
  return unreadable ? unreadable->Why : "";
}

TEST(Code, HoldsEveryPuzzle) {
  SeededRandom random(2);
  for (int order = 3; order <= 20; ++order) {
    for (const bool normal : {true, false}) {
      Puzzle puzzle = PuzzleWithHoles(order, normal, random);
      if (!normal && order % 2 == 0) {
        puzzle = {Square<std::int64_t>(order), Puzzle::kMostTarget, Rules::Positive};
        puzzle.Cells[1] = puzzle.Most() - order % 4;
      }
      const std::string code = CodeOf(puzzle);
      const auto back = PuzzleOfCode(code);
      ASSERT_TRUE(std::holds_alternative<Puzzle>(back)) << code << std::get<Unreadable>(back).Why;
      EXPECT_EQ(std::get<Puzzle>(back).Cells, puzzle.Cells);
      EXPECT_EQ(std::get<Puzzle>(back).Target, puzzle.Target);
      EXPECT_EQ(std::get<Puzzle>(back).Asked, puzzle.Asked);
    }
  }
}

/// A slip of somebody who types or pastes a code. `At`: a random place in the code.
struct Slip {
  const char* Name;
  std::function<void(std::string& code, Random& random)> Make;
  bool AlwaysShows;  ///< in a code of less than 33 characters that keeps its version
};

const std::vector<Slip>& Slips() {
  static const auto place = [](const std::string& code, Random& random) {
    return static_cast<std::size_t>(random.Between(0, static_cast<int>(code.size()) - 1));
  };
  static const auto any = [](Random& random) { return kAlphabet[random.Between(0, 31)]; };
  static const std::vector<Slip> slips = {
      {"one wrong", [](auto& code, auto& random) { code[place(code, random)] = any(random); },
       true},
      {"two wrong",
       [](auto& code, auto& random) {
         code[place(code, random)] = any(random);
         code[place(code, random)] = any(random);
       },
       true},
      {"exchanged",
       [](auto& code, auto& random) {
         std::swap(code[place(code, random)], code[place(code, random)]);
       },
       true},
      {"lost", [](auto& code, auto& random) { code.erase(place(code, random), 1); }, true},
      {"doubled",
       [](auto& code, auto& random) {
         const std::size_t at = place(code, random);
         code.insert(at, 1, code[at]);
       },
       true},
      {"inserted",
       [](auto& code, auto& random) { code.insert(place(code, random) + 1, 1, any(random)); },
       true},
      {"cut short", [](auto& code, auto& random) { code.resize(place(code, random)); }, true},
      {"lost and inserted",
       [](auto& code, auto& random) {
         code.erase(place(code, random), 1);
         code.insert(place(code, random), 1, any(random));
       },
       false}};
  return slips;
}

/// Thousands of slips, and a hundred thousand in a soak: of 500 at most one opens a puzzle, and
/// none of those that the check and the length exclude.
TEST(Code, ShowsSlips) {
  const Soak soak;
  SeededRandom random(soak.Seed);
  const int codes = soak.Minutes > 0 ? 2500 : 100;
  std::map<std::string, int> opened;
  int made = 0;
  int open = 0;
  for (int i = 0; i < codes; ++i) {
    const std::string code = CodeOf(PuzzleWithHoles(3 + i % 18, i % 3 > 0, random));
    for (const Slip& slip : Slips()) {
      for (int draw = 0; draw < 5; ++draw) {
        std::string wrong = code;
        slip.Make(wrong, random);
        if (wrong == code) continue;
        ++made;
        if (!WhyBroken(wrong).empty()) continue;
        ++open;
        ++opened[slip.Name];
        EXPECT_FALSE(slip.AlwaysShows && code.size() < 33 && wrong.starts_with("NP2"))
            << slip.Name << ": " << wrong;
      }
    }
  }
  EXPECT_LE(open, made / 500);
  for (const auto& [name, count] : opened)
    std::printf("%s: %d of %d slips opened\n", name.c_str(), count, made);
}

/// Codes printed by earlier versions.
TEST(Code, OfVersion1IsReadForEver) {
  for (const auto& [code, rows] :
       {std::pair{"NP12S3W04", "[[null, null, null], [null, 5, null], [2, 9, null]]"},
        std::pair{
            "np1h 7fkr-sz\n",
            "[[1, 14, null, 4], [null, null, null, null], [null, null, 6, null], [null, null, "
            "null, null]]"}}) {
    const auto square = ReadSquareOrCode(code);
    ASSERT_TRUE(std::holds_alternative<StoredSquare>(square));
    EXPECT_EQ(JsonRowsOf(std::get<StoredSquare>(square).Cells), rows);
    EXPECT_FALSE(std::get<StoredSquare>(square).Givens.IsEmpty());
  }
}

TEST(Code, IsRefusedWithAReason) {
  const std::string broken = "this puzzle code has a mistake in it";
  const std::string length = broken + ": perhaps characters are missing or were added";
  const std::string code =
      CodeOf({SquareOf(3, [](int i) { return std::int64_t{i == 4 ? 5 : 0}; }), 15});
  ASSERT_EQ(WhyBroken(code), "");
  for (const auto& [text, why] :
       {std::pair<std::string, std::string>{"NP", broken},
        {"NP1", broken},
        {"NP2", length},
        {"NP1H7FKRS!", broken},
        {"NP1H7FKRS", broken},
        {"NP10H7FKRSZ", broken},
        {"NP3" + code.substr(3), broken + ", or is of a later version"},
        {"NPZ" + code.substr(3), broken},
        {code + "0", length},
        {CodeOfDigits({}), "the board of this puzzle code has no clue"},
        {CodeOfDigits({1}), "this puzzle code is of a kind that only a later version knows"}}) {
    EXPECT_EQ(WhyBroken(text), why) << text;
  }
}

/// What cannot be read back is not written either.
TEST(Code, IsNotWrittenForBoardsThatAreNoPuzzles) {
  const auto board = [](std::vector<std::int64_t> cells, std::int64_t total) {
    return Puzzle{Square<std::int64_t>(3, std::move(cells)), total, Rules::Positive};
  };
  EXPECT_EQ(CodeOf(board({0, 0, 0, 0, 0, 0, 0, 0, 0}, 15)), "") << "no clue";
  EXPECT_EQ(CodeOf(board({8, 1, 7, 0, 0, 0, 0, 0, 0}, 15)), "") << "a row adds up to 16";
  EXPECT_EQ(CodeOf(board({8, 7, 0, 0, 0, 0, 0, 0, 0}, 15)), "") << "nothing is left for a gap";
  EXPECT_NE(CodeOf(board({8, 6, 0, 0, 0, 0, 0, 0, 0}, 15)), "");
  EXPECT_EQ(CodeOf({Square<std::int64_t>(21, 1), 21, Rules::Positive}), "") << "too large";
}

/// In the texts, @ and # stand for two codes, and ~ for the first one in small letters and groups.
TEST(CodeList, FindsCodesAmongWords) {
  SeededRandom random(7);
  const std::string code = CodeOf(PuzzleWithHoles(4, true, random));
  const std::string other = CodeOf(PuzzleWithHoles(5, false, random));
  std::string groups = code.substr(0, 4) + " " + code.substr(4, 4) + "-" + code.substr(8);
  for (char& character : groups)
    character = static_cast<char>(std::tolower(character));
  const std::map<char, std::string> standsFor = {{'@', code}, {'#', other}, {'~', groups}};
  const std::string none = "there is no puzzle code here";
  const std::string mistake = "this puzzle code has a mistake in it";
  struct Case {
    const char* Text;
    const char* Codes;
    std::vector<std::string> Wrong;
  };
  for (const Case& c : std::initializer_list<Case>{
           {"", "", {}},
           {"@", "@", {}},
           {"\n \r\n~\r\n\n", "@", {}},
           {"Puzzle 12: ~ hard, 7 clues\n(#)", "@#", {}},
           {"@ #\n#, @", "@##@", {}},
           {R"({"code": "#"})", "#", {}},
           {"Puzzle 1\n@", "@", {"line 1: " + none}},
           {"@\n\n1: NP1H7FKRS.\n#", "@#", {"line 3: " + mistake}},
           {"@0\nNP3",
            "",
            {"line 1: " + mistake + ": perhaps characters are missing or were added",
             "line 2: " + mistake + ", or is of a later version"}}}) {
    std::string text, found;
    for (const char* character = c.Text; *character != '\0'; ++character) {
      const auto meant = standsFor.find(*character);
      text += meant == standsFor.end() ? std::string(1, *character) : meant->second;
    }
    const CodeList list = PuzzlesOfCodes(text);
    for (const ListedPuzzle& listed : list.Puzzles)
      found += CodeOf(listed.Clues) == code ? '@' : CodeOf(listed.Clues) == other ? '#' : '?';
    std::vector<std::string> wrong;
    for (const Unreadable& line : list.Wrong)
      wrong.push_back(line.Why);
    EXPECT_EQ(found, c.Codes) << text;
    EXPECT_EQ(wrong, c.Wrong) << text;
  }
}

}  // namespace
}  // namespace numorra

#include <algorithm>
#include <sstream>
#include <vector>

#include "cli/square_program.h"
#include "generate/construction.h"
#include "study/famous.h"
#include "study/kept_relatives.h"
#include "study/report.h"
#include "study/special.h"
#include "support/stand_ins.h"
#include "words/say.h"
#include "words/texts.h"

namespace numorra {
namespace {

constexpr int kMostWalked = 15;

/// Words of the companion's command line, and after a bar its input, with a slash between lines.
constexpr const char* kRuns[] = {
    "--help",
    "--version",
    "--completions sh",
    "--nonsense",
    "--size",
    "--size 2",
    "--size x",
    "",
    "--size 4 --sum -3",
    "--size 4 --sum 200000",
    "--size 5 --sum 60.5 --seed 1",
    "--size 5 --limit-to-9 --seed 1",
    "--size 4 --corner x",
    "--size 3 --corner 5 --sum 15",
    "--size 5 --corner 500 --sum 65",
    "--size 5 --corner 5 --limit-to-9 --sum 20",
    "--top-row 1,2,3",
    "--top-row 1,1,1,1",
    "--top-row 0,1,2,3 --seed 1",
    "--top-row 1,2,3,4 --size 5",
    "--top-row 9999,1,1,1",
    "--top-row nowhere.txt",
    "--top-row -|Anna 01.02.2003/Nobody/Bert 9,9,9,9",
    "--kind nonsense --size 4",
    "--kind most-perfect --size 5",
    "--kind bordered --size 4 --sum 9",
    "--kind pandiagonal --size 5 --vary --seed 1",
    "--construction nonsense --size 4",
    "--construction lux --size 5",
    "--construction composite --size 7",
    "--construction knight --size 6",
    "--construction borders --size 4",
    "--construction lux --size 6 --fresh",
    "--size 4 --fresh --corner 3",
    "--size 4 --fresh --top-row 1,2,3,4",
    "--size 4 --fresh --sum 34.5",
    "--size 4 --fresh --sum 40 --seed 2",
    "--size 4 --vary --corner 2",
    "--top-row 1,2,3,4 --vary",
    "--size 4 --count 0",
    "--size 4 --seed x",
    "--size 4 --format nonsense",
    "--size 4 --format svg --count 2",
    "study nowhere.txt",
    "study a b",
    "study --size 3",
    "study|1 2 3/4 5 6/7 8 x",
    "study|1 2 3/4 5",
    "study|1 2/3 4",
    "study|1 . 3/4 5 6/7 8 9",
    "study|NP2NONSENSE",
    "study|[[1, 2, 3], [4, 5, 6], [7, 8, 9]",
    "study|[[1, 2, 3], [4, 5, 6], [7, [8], 9]]",
    "study|[[1, 2, 3] 4 [4, 5, 6], [7, 8, 9]]",
    "study|[[1, 2, 3], [4, 5, 6], [7, 8, 9]] 3",
    "study|[[1, 2, 3], [4, 5, 6}, [7, 8, 9]]",
    R"(study|{"rows": null})",
    R"(study|{"rows": [[1]]})",
    R"(study|{"rows": [[1, 2, 3], [4, 5], [7, 8, 9]]})",
    R"(study|{"order": 3, "rows": [[1, 2, 3], [4, 5, 6]]})",
    R"(study|{"order": 99, "rows": [[1, 2, 3], [4, 5, 6]]})",
    R"(study|{"rows": [[1, 2, 3], [4, "x", 6], [7, 8, 9]]})",
    R"(study|{"rows": [[1, 2, 3], [4, 123456789012345, 6], [7, 8, 9]]})",
    R"(study|{"format": "numorra-square", "version": 9, "rows": [[1, 2, 3], [4, 5, 6], [7, 8, 9]]})",
    R"(study|{"rows": [[1, 2, 3], [4, null, 6], [7, 8, 9]], "givens": [[true, 2, true], [true, true, true], [true, true, true]]})",
    R"(study|{"rows": [[1, 2, 3], [4, null, 6], [7, 8, 9]], "givens": [[true, true, true], [true, true, true], [true, true, true]]})",
    R"(study|{"rows": [[1, 2, 3], [4, null, 6], [7, 8, 9]], "notes": [["", "", ""], ["", "77", ""], ["", "", ""]]})",
    R"(study|{"rows": [[1, 2, 3], [4, null, 6], [7, 8, 9]], "notes": [["1", "", ""], ["", "", ""], ["", "", ""]]})",
    R"(study|{"rows": [[1, 2, 3], [4, 5, 6], [7, 8, 9]], "total": "x"})",
    R"(study|{"rows": [[1, 2, 3], [4, 5, 6], [7, 8, 9]], "rules": "x"})",
    R"(study|\begin{tabular}{ccc} 1 & 2 & 3)",
    R"(study|\begin{tabular}{ccc} 1 & 2 & 3 \\ 4 & x & 6 \\ 7 & 8 & 9 \end{tabular})",
    "complete|. 1 ./. 5 ./. . 2",
    "complete|. . ./. . ./. . .",
    "complete|1 2 ./. . ./. . .",
    "complete|1 1 ./. . ./. . .",
    "complete|1 12 ./. . ./. . .",
    "complete --sum 15|8 1 6/3 5 7/4 9 3",
    "complete --rules nonsense",
    "complete --kind nonsense",
    "complete --kind pandiagonal|. . ./. . ./. . .",
    "complete --kind associative --rules positive|. . ./. . ./. . .",
    "complete --kind associative|1 . . ./. . . ./. . . ./. . . 2",
    "complete --kind most-perfect|1 2 . ./3 4 . ./. . . ./. . . .",
    "complete --kind pandiagonal|1 . . ./. 2 . ./. . 3 ./. . . 4",
    "complete --sum x",
    "complete --sum 14|. . ./. . ./. . .",
    "complete --sum 15.5|. . ./. . ./. . .",
    "complete --sum 2 --rules positive|. . ./. . ./. . .",
    "complete --limit-to-9|. . ./. . ./. . .",
    "complete --seconds 0",
    R"(complete --seconds 0.001|. . . . . . . . . ./. . . . . . . . . ./. . 5 . . . . . . ./. . . . . . . . . ./. . . . . . . . . ./. . . . . . 7 . . ./. . . . . . . . . ./. . . . . . . . . ./. . . . . . . . . ./. . . . . . . . . 9)",
    "complete --format tex",
    "puzzle",
    "puzzle --size 5 --grade nonsense",
    "puzzle --size 3 --grade expert --seed 1",
    "puzzle --size 3 --count 9 --seed 1",
    "puzzle --size 4 --clues 1 --seed 1",
    "puzzle --size 4 --clues 17 --seed 1",
    "puzzle --size 4 --clues 3 --grade easy --seed 1",
    "puzzle --size 3 --clues 4 --symmetric --seed 1",
    "puzzle --size 4 --clues x",
    "puzzle --size 4 --grades easy",
    "puzzle --size 4 --grades easy:1,hard:1 --count 3",
    "puzzle --size 4 --sum 34.5",
    "puzzle --size 4 --sum 35 --seed 1",
    "puzzle --size 5 --limit-to-9 --seed 1",
    "puzzle --size 4 --title x",
    "puzzle --size 4 --steps",
    "puzzle --size 4 --format python --seed 5",
    "puzzle --codes -|no code",
    "puzzle --codes -|1: NP2ABC/2: NP3ABCDE FGHIJ/",
    "puzzle --codes - --size 4|NP2",
    "puzzle --size 3 --count 8 --format json --steps --seed 1",
    "puzzle --size 4 --grades easy:3,medium:3,hard:3,expert:3 --format json --steps --seed 1",
    "puzzle --size 5 --grades medium:3,hard:4,expert:4 --format json --steps --seed 2",
    "puzzle --size 6 --grades hard:3,expert:3,extreme:2 --format json --steps --seed 3",
    R"(puzzle --size 4 --sum 40 --grades easy:2,medium:2,hard:2,expert:2 --format json --steps --seed 4)",
    "list --size 9",
    "list",
    "list --size 4 --kind nonsense",
    "list --size 3 --format json",
    "list --size 3 --given nowhere.txt",
    "list --size 3 --given -|1 . ./. . ./. . x",
    "list --size 3 --given -|1 . . ./. . . ./. . . ./. . . .",
    "count --size 3",
    "count --size 6",
    "count --size 6 --estimate --seed 1 --seconds 0.1",
    "count --size 5 --slice 9/3",
    "count --size 4 --slice 1/3",
    "count --merge",
    "count --merge nowhere.txt",
    "count --size 4 --merge x",
    "count --size 4 --kind associative --format json"};

/// The values of JSON that are sentences, or the line itself if it is no object.
void AddLineOfCompanion(Texts& texts, const std::string& line) {
  if (!line.starts_with('{')) return texts.Add(line);
  for (const std::string key : {R"("says": ")", R"("why": ")"}) {
    for (std::size_t at = line.find(key); at != std::string::npos; at = line.find(key, at)) {
      at += key.size();
      texts.Add(line.substr(at, line.find('"', at) - at));
    }
  }
}

void AddOutput(Texts& texts, const std::vector<std::string>& words, const std::string& input) {
  std::istringstream in(input);
  std::ostringstream out;
  std::ostringstream err;
  RunSquareProgram(words, {in, out, err});
  if (words == std::vector<std::string>{"--help"}) return texts.Add(out.str());
  std::istringstream told(out.str() + '\n' + err.str());
  for (std::string line; std::getline(told, line);)
    AddLineOfCompanion(texts, line);
}

Square<double> OfOrder3(std::vector<double> numbers) {
  return {3, std::move(numbers)};
}

/// The square, and others like it that lack some of its properties.
std::vector<Square<double>> Spoilt(const Square<double>& square) {
  std::vector<Square<double>> squares(8, square);
  const auto last = static_cast<int>(square.Size()) - 1;
  std::swap(squares[1][0], squares[1][1]);
  squares[2][last] = squares[2][0];
  squares[3][last] += 0.5;
  squares[4][last] = 0;
  const int half = last / 2 + 1;
  for (int i = 0; i <= last; ++i) {
    squares[5][i] -= half;
    squares[6][i] *= 3;
    squares[7][i] *= 1e12;
  }
  return squares;
}

void AddStudies(Texts& texts) {
  std::vector<Square<double>> squares = {
      OfOrder3({1, 2, 3, 8, 9, 4, 7, 6, 5}), OfOrder3({2, 1, 4, 3, 5, 7, 6, 9, 8}),
      OfOrder3({1, 1, 1, 1, 1, 1, 1, 1, 1}), OfOrder3({2, 9, 12, 36, 6, 1, 3, 4, 18}),
      OfOrder3({1, 2, 3, 2, 3, 1, 3, 1, 2}), OfOrder3({1e14, 1, 1, 1, 1, 1, 1, 1, 1})};
  SeededRandom random(7);
  for (const FamousSquare& famous : FamousSquares())
    squares.push_back(famous.Numbers);
  for (const SpecialKind& kind : kSpecialKinds) {
    for (int order = 3; order <= 10; ++order) {
      const std::string why = kind.WhyNone(order);
      texts.Add(why);
      if (why.empty()) squares.push_back(kind.Build(order, random));
    }
  }
  for (const Square<double>& square : squares) {
    for (const Square<double>& each : Spoilt(square)) {
      std::istringstream report(TextOf(Study(NumberSquare(each))));
      for (std::string line; std::getline(report, line);)
        texts.Add(line);
    }
  }
}

}  // namespace

std::string OnOneLine(const std::string& told) {
  std::string text;
  for (const char c : told) {
    const bool blank = c == ' ' || c == '\n' || c == '\t';
    const char shown = blank ? ' ' : c >= '0' && c <= '9' ? '#' : c;
    const bool joins = blank || shown == '#';
    if (!joins || !text.ends_with(shown)) text += shown;
  }
  return text;
}

void Texts::Add(const std::string& text) {
  const bool hasLetter = std::any_of(
      text.begin(), text.end(), [](unsigned char c) { return std::isalpha(c) != 0 || c >= 0x80; });
  const bool cut = text.ends_with("…");  // to its place; its tool-tip has it whole
  if (hasLetter && !cut) All.insert(OnOneLine(text));
}

void AddTextsOfLogic(Texts& texts) {
  AddStudies(texts);
  for (const Construction* construction : kConstructions) {
    texts.Add(Say(construction->Source));
    for (int order = kMinOrder; order <= kMostWalked; ++order) {
      const std::string why = construction->WhyNone(order);
      texts.Add(why);
      if (!why.empty()) continue;
      const Square<double> square = ExampleOf(*construction, order);
      for (const WalkStep& step : construction->StepsOf(PlacedNumbers(square)))
        texts.Add(step.Sentence);
    }
  }
  for (const WalkExample& example : WalkExamples())
    texts.Add(example.Caption);
}

void AddTextsOfCompanion(Texts& texts) {
  for (const std::string run : kRuns) {
    const std::size_t bar = std::min(run.find('|'), run.size());
    std::istringstream split(run.substr(0, bar));
    std::vector<std::string> words;
    for (std::string word; split >> word;)
      words.push_back(word);
    std::string input = run.substr(std::min(bar + 1, run.size()));
    std::replace(input.begin(), input.end(), '/', '\n');
    AddOutput(texts, words, input);
  }
}

}  // namespace numorra

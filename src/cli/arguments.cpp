#include "cli/arguments.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <initializer_list>
#include <limits>
#include <utility>

#include "app/board/numbers.h"
#include "app/board/orders.h"
#include "app/board/runtime_error.h"
#include "puzzle/rules.h"

namespace numorra {
namespace {

template <class Number>
std::optional<Number> NumberIn(const std::string& text) {
  Number number{};
  const char* end = text.data() + text.size();
  const auto result = std::from_chars(text.data(), end, number);
  if (result.ec != std::errc() || result.ptr != end) return std::nullopt;
  return number;
}

/// The names of the formats, or of those of answers alone: "text, csv or json".
std::string NamesOf(bool answersAlone, const std::string& between, const std::string& beforeLast) {
  std::vector<std::string> names;
  for (const Format& format : kFormats) {
    if (format.ForAnswers || !answersAlone) names.emplace_back(format.Name);
  }
  std::string text = names[0];
  for (std::size_t i = 1; i < names.size(); ++i)
    text += (i + 1 < names.size() ? between : beforeLast) + names[i];
  return text;
}

/// A line of the usage.
std::string OptionText(const std::string& option, const std::string& says) {
  constexpr std::size_t kSaysFrom = 25;
  std::string line = "  " + option;
  line.resize(std::max(line.size(), kSaysFrom), ' ');
  return line + "  " + says + "\n";
}

/// What each format is, a line each.
std::string FormatLines() {
  std::string lines;
  for (const Format& format : kFormats) {
    const bool usual = format.Id == SquareRequest().Format;
    lines += OptionText(
        "", std::string(format.Name) + ": " + format.Says + (usual ? " (the default)" : ""));
  }
  return lines;
}

/// A number as cells have them.
std::optional<double> DecimalIn(const std::string& text) {
  try {
    const double number = StrictVal(text);
    return DigitsOf(text) <= kMostCellDigits ? std::optional(number) : std::nullopt;
  } catch (const RuntimeError&) {
    return std::nullopt;
  }
}

/// Takes one word after the other; the first thing that is wrong is told.
class Reader {
 public:
  explicit Reader(const std::vector<std::string>& words) : words_(words) {}

  Arguments Read() {
    TakeCommand();
    while (next_ < words_.size() && error_.empty()) {
      if (IsFile(words_[next_])) {
        TakeFile();
        continue;
      }
      TakeOption();
      if (const auto handler = Handler()) {
        (this->*handler)();
      } else {
        Fail("unknown argument '" + option_ + "'");
      }
      if (attached_) Fail("'" + option_ + "' takes no value");
      if (error_.empty() && special_) return *special_;
    }
    CheckTogether();
    if (!error_.empty()) return BadArguments{error_ + "; try --help"};
    return request_;
  }

 private:
  using Member = void (Reader::*)();
  using Command = SquareCommand;

  void TakeCommand() {
    static constexpr std::pair<const char*, Command> kCommands[] = {
        {"study", Command::Study}, {"complete", Command::Complete}, {"puzzle", Command::Puzzle}};
    for (const auto& [name, command] : kCommands) {
      if (words_.empty() || words_[0] != name) continue;
      request_.Command = command;
      ++next_;
    }
  }

  bool IsFile(const std::string& word) const {
    const bool reads = request_.Command == Command::Study || request_.Command == Command::Complete;
    return reads && (word == "-" || !word.starts_with("-"));
  }

  void TakeFile() {
    if (fileNamed_) Fail("one file at a time, not '" + words_[next_] + "' too");
    fileNamed_ = true;
    request_.File = words_[next_++];
  }

  void CheckTogether() {
    if (request_.Command == Command::Puzzle) {
      if (request_.Size == 0) Fail("the size is missing");
      if (request_.Sum && *request_.Sum != std::floor(*request_.Sum)) {
        Fail("the sum of a puzzle is a whole number");
      }
      CheckSum();
      return;
    }
    if (request_.Command != Command::Build) {
      if (request_.LimitToNine && request_.RulesWanted == Rules::Normal) {
        Fail("the limit goes with the positive rules");
      }
      if (request_.LimitToNine) request_.RulesWanted = Rules::Positive;
      if (!Of(request_.Format).ForAnswers) Fail("the format is " + NamesOf(true, ", ", " or "));
      return;
    }
    CheckSum();
    const bool variable = request_.Sum || request_.LimitToNine || request_.Corner;
    if (request_.Top) {
      if (request_.Size != 0 || variable || request_.Kind) {
        Fail("a top row goes with no other wish");
      }
    } else if (request_.Size == 0) {
      Fail("the size is missing");
    }
    if (request_.Kind && variable) Fail("a kind goes with a size alone");
    if (request_.Corner && request_.LimitToNine) Fail("the limit does not go with a corner");
    CheckVary();
  }

  /// Squares are made of 16-bit shares of the sum; the limit lowers any larger one.
  void CheckSum() {
    const double bound = (std::numeric_limits<std::int16_t>::max() + 1.0) * request_.Size;
    if (request_.Size == 0 || !request_.Sum || request_.LimitToNine || *request_.Sum < bound)
      return;
    Fail("the sum for size " + std::to_string(request_.Size) + " is below " + Decimal(bound));
  }

  /// A relative of a square has lost what the order of its lines gave it.
  void CheckVary() {
    if (!request_.Vary) return;
    if (request_.Top) Fail("a square that is varied does not keep its top row");
    if (request_.Corner) Fail("a square that is varied does not keep its corner");
    if (request_.Kind && !request_.Kind->KeptByFamily) {
      Fail("a square that is varied does not stay " + std::string(request_.Kind->Term));
    }
  }

  void TakeOption() {
    const std::string& word = words_[next_++];
    const std::size_t equals = word.find('=');
    option_ = word.substr(0, equals);
    attached_.reset();
    if (equals != std::string::npos) attached_ = word.substr(equals + 1);
  }

  /// What takes the option, where the command has it.
  Member Handler() const {
    struct Option {
      const char* Name;
      Member Take;
      std::initializer_list<Command> Of;
    };
    constexpr auto kBuild = Command::Build;
    constexpr auto kStudy = Command::Study;
    constexpr auto kComplete = Command::Complete;
    constexpr auto kPuzzle = Command::Puzzle;
    static const Option kOptions[] = {
        {"--size", &Reader::Size, {kBuild, kPuzzle}},
        {"--sum", &Reader::Sum, {kBuild, kComplete, kPuzzle}},
        {"--limit-to-9", &Reader::LimitToNine, {kBuild, kComplete, kPuzzle}},
        {"--corner", &Reader::Corner, {kBuild}},
        {"--top-row", &Reader::TopRowOption, {kBuild}},
        {"--kind", &Reader::Kind, {kBuild}},
        {"--kind", &Reader::LineKindOption, {kComplete}},
        {"--vary", &Reader::Vary, {kBuild}},
        {"--count", &Reader::Count, {kBuild, kPuzzle}},
        {"--seed", &Reader::Seed, {kBuild, kPuzzle}},
        {"--grade", &Reader::GradeOption, {kPuzzle}},
        {"--clues", &Reader::Clues, {kPuzzle}},
        {"--rules", &Reader::RulesOption, {kComplete}},
        {"--seconds", &Reader::Seconds, {kComplete}},
        {"--format", &Reader::Format, {kBuild, kStudy, kComplete, kPuzzle}},
        {"--help", &Reader::Help, {kBuild, kStudy, kComplete, kPuzzle}},
        {"--version", &Reader::Version, {kBuild, kStudy, kComplete, kPuzzle}},
    };
    for (const Option& option : kOptions) {
      const bool has =
          std::find(option.Of.begin(), option.Of.end(), request_.Command) != option.Of.end();
      if (has && option_ == option.Name) return option.Take;
    }
    return nullptr;
  }

  std::string Value() {
    if (attached_) return *std::exchange(attached_, std::nullopt);
    if (next_ < words_.size()) return words_[next_++];
    Fail("'" + option_ + "' needs a value");
    return {};
  }

  void Size() {
    const auto size = NumberIn<int>(Value());
    if (!size || *size < kMinOrder || *size > kMaxOrder) {
      Fail("the size is a whole number from 3 to 50");
    } else {
      request_.Size = *size;
    }
  }

  void Sum() {
    request_.Sum = DecimalIn(Value());
    if (!request_.Sum || *request_.Sum <= 0) {
      Fail("the sum is a number above 0 of at most " + std::to_string(kMostCellDigits) + " digits");
    }
  }

  void LimitToNine() { request_.LimitToNine = true; }

  void Corner() {
    request_.Corner = NumberIn<int>(Value());
    if (!request_.Corner || *request_.Corner < 1) Fail("the corner is a whole number from 1 on");
  }

  void TopRowOption() {
    request_.Top = ParseTopRow(Value());
    if (!request_.Top) Fail("the top row is four whole numbers from 0 to 9999");
  }

  void Kind() {
    request_.Kind = FindSpecialKind(Value());
    if (request_.Kind) return;
    std::string kinds;
    for (const SpecialKind& kind : kSpecialKinds)
      kinds += (kinds.empty() ? "" : ", ") + std::string(kind.Term);
    Fail("the kind is one of " + kinds);
  }

  void LineKindOption() {
    if (const LineKind* const kind = FindLineKind(Value())) {
      request_.LinesWanted = *kind;
    } else {
      Fail("the kind is one of " + LineKindTerms());
    }
  }

  void GradeOption() {
    const auto grade = GradeNamed(Value());
    if (!grade) Fail("the grade is easy, medium, hard or expert");
    request_.Wanted = grade.value_or(Grade::Easy);
  }

  void Clues() {
    request_.Clues = NumberIn<int>(Value());
    if (!request_.Clues || *request_.Clues < 0) Fail("the clues are a whole number from 0 on");
  }

  void RulesOption() {
    const std::string name = Value();
    for (const Rules rules : {Rules::Normal, Rules::Positive}) {
      if (name == NameOf(rules)) request_.RulesWanted = rules;
    }
    if (!request_.RulesWanted) Fail("the rules are normal or positive");
  }

  void Seconds() {
    constexpr double kMost = 1'000'000;
    const auto seconds = NumberIn<double>(Value());
    if (seconds && *seconds > 0 && *seconds <= kMost) {
      request_.Seconds = *seconds;
    } else {
      Fail("the seconds are a plain number above 0, such as 0.5 or 30");
    }
  }

  void Vary() { request_.Vary = true; }

  void Count() {
    constexpr int kMost = 1'000'000;
    const auto count = NumberIn<int>(Value());
    if (!count || *count < 1 || *count > kMost)
      Fail("the count is a whole number from 1 to 1000000");
    request_.Count = count.value_or(1);
  }

  void Format() {
    const auto format = FormatNamed(Value());
    if (!format) Fail("the format is " + NamesOf(false, ", ", " or "));
    request_.Format = format.value_or(request_.Format);
  }

  void Seed() {
    request_.Seed = NumberIn<std::uint64_t>(Value());
    if (!request_.Seed) Fail("the seed is a whole number from 0 on");
  }

  void Help() { special_ = HelpRequest{}; }
  void Version() { special_ = VersionRequest{}; }

  void Fail(std::string message) {
    if (error_.empty()) error_ = std::move(message);
  }

  const std::vector<std::string>& words_;
  std::size_t next_ = 0;
  bool fileNamed_ = false;
  std::string option_;
  std::optional<std::string> attached_;
  SquareRequest request_;
  std::optional<Arguments> special_;
  std::string error_;
};

}  // namespace

std::string Usage() {
  const std::string all = NamesOf(false, "|", "|");
  const std::string ofAnswers = NamesOf(true, "|", "|");
  return R"(usage: numorra-square --size N [options]
       numorra-square --top-row A,B,C,D [options]
       numorra-square --kind TERM --size N [options]
       numorra-square study [FILE|-] [--format )" +
         ofAnswers + R"(]
       numorra-square complete [FILE|-] [options]
       numorra-square puzzle --size N [options]

Prints magic squares and the total of their lines: of the numbers 1 to N x N, of
any total, 4 x 4 with a top row of your choice, or of a special kind.

  --size N                 how many cells a side has, 3 to 50
  --sum T                  the total wanted instead of that of 1 to N x N, below
                           32768 x N
  --limit-to-9             no number above 9; the total is then at most 5 x N
  --corner V               the number wanted at the top left, from size 4 on
  --top-row A,B,C,D        the top row of a 4 x 4 square, such as a date
  --kind TERM              associative, pandiagonal, most-perfect, ultramagic or
                           bordered
  --vary                   another square of the family of the one that is built;
                           of the kinds only associative squares stay what they
                           are, and no corner or top row stays where it is
  --count M                so many squares, 1 to 1000000
)" + OptionText("--format " + all, "how squares are written:") +
         FormatLines() +
         R"(  --seed N                 start random numbers from N, so that a run can be
                           repeated
  --help                   this page
  --version                the program's version

study says what squares are, and why. It reads rows of numbers from a file or
from the standard input, squares separated by empty lines, and all that this program
writes: JSON objects are told by their first brace, and their "rows" are the square.
Each is answered as soon as it is read, however many come; reading ends at one that
takes more than a megabyte. JSON says the same to programs, one object a line.

complete fills the gaps (nothing, or one of - . _ between separators) of squares
that it reads as study does, and says whether there is one way, several or none.
Its exit status is 3 for none and 4 for what was not settled in time.

  --rules normal|positive  each of 1 to N x N once, or any whole numbers of 1 or
                           more; without it what the square suggests
  --sum T                  the total, instead of the one that the square tells
  --limit-to-9             no number above 9, by the positive rules
  --kind TERM              associative, pandiagonal, most-perfect or ultramagic: the
                           filled square is to be that, too
  --seconds S              how long to search for each square: 3
)" +
         OptionText("--format " + ofAnswers,
                    "JSON is one object a line, with what else is to be said") +
         R"(                           as "why"

puzzle makes squares with gaps that have one solution. Their codes, up to size
10, are read by study, complete and the window.

  --size N                 how many cells a side has
  --grade easy|medium|hard|expert
                           the hardest rules that it needs
  --clues K                how many numbers are given; without it as few as can be
  --sum T, --limit-to-9    squares of any total, of any whole numbers of 1 or more
  --count M, --seed N      so many; the same seed gives the same ones
)" + OptionText("--format " + all, "JSON is one object a line, with its solution") +
         R"(
The exit status is 0 when all was done, 1 when there is no such square or something
could not be read or written, 2 for bad arguments, 3 and 4 as complete has them, and
5 when there was not enough memory.
)";
}

Arguments ParseArguments(const std::vector<std::string>& words) {
  return Reader(words).Read();
}

}  // namespace numorra

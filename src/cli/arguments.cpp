#include "cli/arguments.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "app/board/numbers.h"
#include "app/board/orders.h"
#include "app/board/runtime_error.h"
#include "cli/argument_checks.h"
#include "cli/count_arguments.h"
#include "cli/option_words.h"
#include "words/say.h"

namespace numorra {
namespace {

/// A number as a cell may hold it.
std::optional<double> DecimalIn(const std::string& text) {
  try {
    const double number = StrictVal(text);
    return DigitsOf(text) <= kMostCellDigits ? std::optional(number) : std::nullopt;
  } catch (const RuntimeError&) {
    return std::nullopt;
  }
}

/// Reads the words one by one and reports the first error.
class Reader {
 public:
  explicit Reader(const std::vector<std::string>& words)
      : request_{CommandIn(words)}, words_(words, *CommandOf(request_).Name == '\0' ? 0 : 1) {}

  Arguments Read() {
    while (words_.Next()) {
      if (CommandOf(request_).ReadsFile && words_.IsFile()) {
        TakeFile();
        continue;
      }
      if (const auto handler = Handler()) {
        (this->*handler)();
      } else {
        Fail(Say("unknown argument '%1'", words_.Option()));
      }
      words_.CheckValueTaken();
      if (words_.Error().empty() && special_) return *special_;
      wishes_ |= !IsAboutOutput(words_.Option());
    }
    CheckTogether();
    if (!words_.Error().empty()) return BadArguments{Say("%1; try --help", words_.Error())};
    return request_;
  }

 private:
  using Member = void (Reader::*)();
  static constexpr int kMostCount = 1'000'000;
  using Command = SquareCommand;

  /// The command in the first word.
  static SquareRequest CommandIn(const std::vector<std::string>& words) {
    SquareRequest request;
    for (const CommandEntry& command : Commands()) {
      if (!words.empty() && !words[0].empty() && words[0] == command.Name) {
        request.Command = command.Id;
      }
    }
    return request;
  }

  static const CommandEntry& CommandOf(const SquareRequest& request) {
    return Commands()[static_cast<std::size_t>(request.Command)];
  }

  /// Not about what is to be made.
  static bool IsAboutOutput(const std::string& option) {
    static const std::string_view kOptions[] = {"--codes", "--format", "--steps", "--title"};
    return std::find(std::begin(kOptions), std::end(kOptions), option) != std::end(kOptions);
  }

  void TakeFile() {
    if (fileNamed_) Fail(Say("only one file can be read, not '%1' too", words_.Option()));
    fileNamed_ = true;
    request_.File = words_.Option();
  }

  void CheckTogether() {
    Fail(WhyNotTogether(request_, {wishes_, counted_, wanted_.has_value()}));
    if (request_.Grades.empty()) {
      request_.Grades = {{wanted_.value_or(Grade::Easy), request_.Count}};
    }
    if (request_.LimitToNine) request_.RulesWanted = Rules::Positive;
  }

  /// The function that reads the option; null if the command does not have it.
  Member Handler() const {
    static const std::pair<std::string_view, Member> kHandlers[] = {
        {"--size", &Reader::Size},
        {"--sum", &Reader::Sum},
        {"--limit-to-9", &Reader::LimitToNine},
        {"--corner", &Reader::Corner},
        {"--top-row", &Reader::TopRowOption},
        {"--kind", &Reader::Kind},
        {"--construction", &Reader::ConstructionOption},
        {"--vary", &Reader::Vary},
        {"--fresh", &Reader::Fresh},
        {"--count", &Reader::Count},
        {"--seed", &Reader::Seed},
        {"--grade", &Reader::GradeOption},
        {"--grades", &Reader::GradesOption},
        {"--clues", &Reader::Clues},
        {"--symmetric", &Reader::Symmetric},
        {"--steps", &Reader::Steps},
        {"--title", &Reader::Title},
        {"--codes", &Reader::Codes},
        {"--rules", &Reader::RulesOption},
        {"--seconds", &Reader::Seconds},
        {"--format", &Reader::Format},
        {"--completions", &Reader::Completions},
        {"--help", &Reader::Help},
        {"--version", &Reader::Version},
    };
    if (!OptionNamed(words_.Option(), request_.Command)) return nullptr;
    for (const auto& [name, take] : kHandlers) {
      if (words_.Option() == name) return take;
    }
    return nullptr;
  }

  std::string Value() { return words_.Value(); }

  void Size() {
    const auto size = WholeTextAs<int>(Value());
    if (!size || *size < kMinOrder || *size > kMaxOrder) {
      Fail(Say("the size must be a whole number from 3 to 50"));
    } else {
      request_.Size = *size;
    }
  }

  void Sum() {
    request_.Sum = DecimalIn(Value());
    if (!request_.Sum || *request_.Sum <= 0) {
      Fail(Say("the sum must be a number above 0 with at most %1 digits", kMostCellDigits));
    }
  }

  void LimitToNine() { request_.LimitToNine = true; }

  void Corner() {
    request_.Corner = WholeTextAs<int>(Value());
    if (!request_.Corner || *request_.Corner < 1)
      Fail(Say("the corner must be a whole number of 1 or more"));
  }

  /// Four numbers, or a file with a top row on each line. What has digits and commas only is meant
  /// for numbers.
  void TopRowOption() {
    const std::string value = Value();
    request_.Top = ParseTopRow(value);
    if (request_.Top) return;
    if (value.empty() || value.find_first_not_of("0123456789,. /-+") == std::string::npos) {
      if (value != "-") return Fail(Say("the top row must be four whole numbers from 0 to 9999"));
    }
    request_.TopRows = value;
  }

  void Kind() {
    if (request_.Command == Command::Complete) return LineKindOption();
    request_.Kind = FindSpecialKind(Value());
    if (request_.Kind) return;
    Fail(Say("the kind must be one of %1", Listed(Choices())));
  }

  void ConstructionOption() {
    request_.By = FindConstruction(Value());
    if (!request_.By) Fail(Say("the construction must be one of %1", Listed(Choices())));
  }

  const std::vector<std::string>& Choices() const {
    return OptionNamed(words_.Option(), request_.Command)->Choices;
  }

  void LineKindOption() {
    if (const LineKind* const kind = FindLineKind(Value())) {
      request_.LinesWanted = *kind;
    } else {
      Fail(Say("the kind is one of %1", Listed(Choices())));
    }
  }

  void GradeOption() {
    wanted_ = GradeNamed(Value());
    if (!wanted_) Fail(Say("the grade must be easy, medium, hard, expert or extreme"));
  }

  /// "easy:10,medium:10"
  void GradesOption() {
    std::string shares = Value() + ",";
    for (std::size_t comma = 0; (comma = shares.find(',')) != std::string::npos;) {
      const std::string share = shares.substr(0, comma);
      shares.erase(0, comma + 1);
      const std::size_t colon = share.find(':');
      const auto grade = GradeNamed(share.substr(0, colon));
      const std::string number = colon == std::string::npos ? "" : share.substr(colon + 1);
      const int count = WholeTextAs<int>(number).value_or(0);
      if (!grade || count < 1 || count > kMostCount) {
        Fail(Say("the grades must be grades with counts, such as %1, not '%2'", "easy:10,medium:5",
                 share));
        return;
      }
      request_.Grades.push_back({*grade, count});
    }
  }

  void Symmetric() { request_.Symmetric = true; }
  void Steps() { request_.Steps = true; }
  void Title() { request_.Title = Value(); }

  void Clues() {
    request_.ClueCount = WholeTextAs<int>(Value());
    if (!request_.ClueCount || *request_.ClueCount < 0)
      Fail(Say("the number of clues must be a whole number of 0 or more"));
  }

  void Codes() { request_.Codes = Value(); }

  void RulesOption() {
    const std::string name = Value();
    for (const Rules rules : {Rules::Normal, Rules::Positive}) {
      if (name == NameOf(rules)) request_.RulesWanted = rules;
    }
    if (!request_.RulesWanted) Fail(Say("the rules must be normal or positive"));
  }

  void Seconds() {
    constexpr double kMost = 1'000'000;
    const auto seconds = WholeTextAs<double>(Value());
    if (seconds && *seconds > 0 && *seconds <= kMost) {
      request_.Seconds = *seconds;
    } else {
      Fail(Say("the number of seconds must be above 0 and at most 1000000, such as 0.5"));
    }
  }

  void Vary() { request_.Vary = true; }
  void Fresh() { request_.Fresh = true; }

  void Count() {
    const auto count = WholeTextAs<int>(Value());
    counted_ = true;
    if (!count || *count < 1 || *count > kMostCount)
      Fail(Say("the count must be a whole number from 1 to 1000000"));
    request_.Count = count.value_or(1);
  }

  void Format() {
    const auto format = FormatNamed(Value());
    if (!format) Fail(Say("the format must be %1", FormatNames(false)));
    request_.Format = format.value_or(request_.Format);
  }

  void Seed() {
    request_.Seed = WholeTextAs<std::uint64_t>(Value());
    if (!request_.Seed) Fail(Say("the seed must be a whole number of 0 or more"));
  }

  void Completions() {
    const std::string shell = Value();
    if (CompletionsFor(shell).empty()) Fail(Say("the shell must be bash, zsh or fish"));
    special_ = CompletionsRequest{shell};
  }

  void Help() { special_ = HelpRequest{}; }
  void Version() { special_ = VersionRequest{}; }

  void Fail(std::string message) { words_.Fail(std::move(message)); }

  SquareRequest request_;
  OptionWords words_;
  bool fileNamed_ = false;
  bool wishes_ = false;  ///< there are options that say what is to be made
  std::optional<Grade> wanted_;
  bool counted_ = false;
  std::optional<Arguments> special_;
};

}  // namespace

Arguments ParseArguments(const std::vector<std::string>& words) {
  if (ListsOrCounts(words)) return ParseCountArguments(words);
  return Reader(words).Read();
}

}  // namespace numorra

#include "cli/arguments.h"

#include <charconv>
#include <utility>

#include "app/board/orders.h"

namespace numorra {

const char* const kUsage =
    R"(usage: numorra-square --size N [options]
       numorra-square --top-row A,B,C,D [options]

Prints a magic square and the total of its lines: of the numbers 1 to N x N, of
any total, or 4 x 4 with a top row of your choice.

  --size N                 how many cells a side has, 3 to 50
  --sum T                  the total wanted instead of that of 1 to N x N
  --limit-to-9             no number above 9; the total is then at most 5 x N
  --corner V               the number wanted at the top left
  --top-row A,B,C,D        the top row of a 4 x 4 square, such as a date
  --format text|csv|json   aligned columns and the total (the default), rows of
                           comma-separated numbers, or an object with both
  --seed N                 start random numbers from N, so that a run can be
                           repeated
  --help                   this page
  --version                the program's version
)";

namespace {

template <class Number>
std::optional<Number> Whole(const std::string& text) {
  Number number{};
  const char* end = text.data() + text.size();
  const auto result = std::from_chars(text.data(), end, number);
  if (result.ec != std::errc() || result.ptr != end) return std::nullopt;
  return number;
}

/// Takes one option after the other from the words; `Error` says what went wrong.
class Reader {
 public:
  explicit Reader(const std::vector<std::string>& words) : words_(words) {}

  Arguments Read() {
    while (next_ < words_.size() && error_.empty()) {
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

  void CheckTogether() {
    const bool variable = request_.Sum || request_.LimitToNine || request_.Corner;
    if (request_.Top) {
      if (request_.Size != 0 || variable) Fail("a top row goes with no other wish");
    } else if (request_.Size == 0) {
      Fail("the size is missing");
    }
    if (request_.Corner && request_.LimitToNine) Fail("the limit does not go with a corner");
  }

  void TakeOption() {
    const std::string& word = words_[next_++];
    const std::size_t equals = word.find('=');
    option_ = word.substr(0, equals);
    attached_.reset();
    if (equals != std::string::npos) attached_ = word.substr(equals + 1);
  }

  Member Handler() const {
    static constexpr std::pair<const char*, Member> kHandlers[] = {
        {"--size", &Reader::Size},
        {"--sum", &Reader::Sum},
        {"--limit-to-9", &Reader::LimitToNine},
        {"--corner", &Reader::Corner},
        {"--top-row", &Reader::TopRowOption},
        {"--format", &Reader::Format},
        {"--seed", &Reader::Seed},
        {"--help", &Reader::Help},
        {"--version", &Reader::Version},
    };
    for (const auto& [name, handler] : kHandlers) {
      if (option_ == name) return handler;
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
    const auto size = Whole<int>(Value());
    if (!size || *size < kMinOrder || *size > kMaxOrder) {
      Fail("the size is a whole number from 3 to 50");
    } else {
      request_.Size = *size;
    }
  }

  void Sum() {
    request_.Sum = Whole<std::int16_t>(Value());
    if (!request_.Sum || *request_.Sum < 1) Fail("the sum is a whole number from 1 to 32767");
  }

  void LimitToNine() { request_.LimitToNine = true; }

  void Corner() {
    request_.Corner = Whole<std::int16_t>(Value());
    if (!request_.Corner || *request_.Corner < 1) Fail("the corner is a whole number from 1 on");
  }

  void TopRowOption() {
    request_.Top = ParseTopRow(Value());
    if (!request_.Top) Fail("the top row is four whole numbers from 0 to 9999");
  }

  void Format() {
    const std::string name = Value();
    if (name == "text") {
      request_.Format = SquareFormat::Text;
    } else if (name == "csv") {
      request_.Format = SquareFormat::Csv;
    } else if (name == "json") {
      request_.Format = SquareFormat::Json;
    } else {
      Fail("the format is text, csv or json");
    }
  }

  void Seed() {
    request_.Seed = Whole<std::uint64_t>(Value());
    if (!request_.Seed) Fail("the seed is a whole number from 0 on");
  }

  void Help() { special_ = HelpRequest{}; }
  void Version() { special_ = VersionRequest{}; }

  void Fail(std::string message) {
    if (error_.empty()) error_ = std::move(message);
  }

  const std::vector<std::string>& words_;
  std::size_t next_ = 0;
  std::string option_;
  std::optional<std::string> attached_;
  SquareRequest request_;
  std::optional<Arguments> special_;
  std::string error_;
};

}  // namespace

Arguments ParseArguments(const std::vector<std::string>& words) {
  return Reader(words).Read();
}

}  // namespace numorra

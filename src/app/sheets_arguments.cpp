#include "app/sheets_arguments.h"

#include <algorithm>
#include <utility>

namespace numorra {
namespace {

constexpr const char* kSheets = "--sheets";

constexpr std::pair<const char*, bool SheetOptions::*> kOptions[] = {
    {"--large-print", &SheetOptions::LargePrint},
    {"--page-numbers", &SheetOptions::PageNumbers},
    {"--names", &SheetOptions::NameLines},
    {"--page-a-pupil", &SheetOptions::PageAPupil},
    {"--booklet", &SheetOptions::Booklet}};

/// Takes the options of sheets, and leaves the other words.
class SheetsReader {
 public:
  explicit SheetsReader(const std::vector<std::string>& words) : words_(words) {}

  std::variant<SheetsRequest, std::string> Read() {
    while (next_ < words_.size()) {
      const std::string& word = words_[next_++];
      const std::size_t equals = word.find('=');
      attached_.reset();
      if (equals != std::string::npos) attached_ = word.substr(equals + 1);
      if (!Take(word.substr(0, equals))) others_.push_back(word);
    }
    if (error_.empty() && request_.File.empty()) error_ = "the file for the sheets is missing";
    if (!error_.empty()) return error_ + "; try --help";
    const Arguments puzzles = ParseArguments(others_);
    if (const auto* bad = std::get_if<BadArguments>(&puzzles)) return bad->Message;
    if (const auto* made = std::get_if<SquareRequest>(&puzzles)) request_.Puzzles = *made;
    return request_;
  }

 private:
  bool Take(const std::string& option) {
    for (const auto& [name, member] : kOptions) {
      if (option == name) return Set(request_.Options.*member, true);
    }
    if (option == "--landscape") return Set(request_.Landscape, true);
    if (option == "--hide-totals") return Set(request_.TotalGiven, false);
    if (option == kSheets) return Set(request_.File, Value(option));
    if (option == "--answers") return Set(request_.Answers, Value(option));
    if (option == "--title") return Set(request_.Title, Value(option));
    if (option == "--per-page") return TakePerPage(Value(option));
    return option == "--paper" && TakePaper(Value(option));
  }

  template <class T, class Value>
  static bool Set(T& member, Value&& value) {
    member = std::forward<Value>(value);
    return true;
  }

  bool TakePerPage(const std::string& value) {
    constexpr const char* kNumbers[] = {"1", "2", "4", "6"};
    if (std::find(std::begin(kNumbers), std::end(kNumbers), value) == std::end(kNumbers)) {
      Fail("a page has 1, 2, 4 or 6 puzzles");
    } else {
      request_.PerPage = std::stoi(value);
    }
    return true;
  }

  bool TakePaper(const std::string& value) {
    if (value != "a4" && value != "letter") Fail("the paper must be a4 or letter");
    request_.Letter = value == "letter";
    return true;
  }

  std::string Value(const std::string& option) {
    if (attached_) return *attached_;
    if (next_ < words_.size()) return words_[next_++];
    Fail("'" + option + "' needs a value");
    return {};
  }

  void Fail(std::string why) {
    if (error_.empty()) error_ = std::move(why);
  }

  const std::vector<std::string>& words_;
  std::size_t next_ = 0;
  std::optional<std::string> attached_;
  std::vector<std::string> others_ = {"puzzle"};
  SheetsRequest request_;
  std::string error_;
};

}  // namespace

bool AsksForSheets(const std::vector<std::string>& words) {
  return std::any_of(words.begin(), words.end(), [](const std::string& word) {
    return word == kSheets || word.starts_with(std::string(kSheets) + "=");
  });
}

std::variant<SheetsRequest, std::string> ParseSheetsArguments(
    const std::vector<std::string>& words) {
  return SheetsReader(words).Read();
}

}  // namespace numorra

#include "app/sheets_arguments.h"

#include <algorithm>
#include <utility>

#include "cli/option_words.h"
#include "words/say.h"

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
  explicit SheetsReader(const std::vector<std::string>& words) : words_(words, 0) {}

  std::variant<SheetsRequest, std::string> Read() {
    while (words_.Next()) {
      if (!Take(words_.Option())) others_.push_back(words_.Whole());
    }
    if (request_.File.empty()) words_.Fail(Say("the file for the sheets is missing"));
    if (!words_.Error().empty()) return Say("%1; try --help", words_.Error());
    const Arguments puzzles = ParseArguments(others_);
    if (const auto* bad = std::get_if<BadArguments>(&puzzles)) return bad->Message;
    request_.Puzzles = std::get<SquareRequest>(puzzles);
    return request_;
  }

 private:
  bool Take(const std::string& option) {
    for (const auto& [name, member] : kOptions) {
      if (option == name) return Set(request_.Options.*member, true);
    }
    if (option == "--landscape") return Set(request_.Landscape, true);
    if (option == "--hide-totals") return Set(request_.TotalGiven, false);
    if (option == kSheets) return Set(request_.File, words_.Value());
    if (option == "--answers") {
      request_.Options.AnswersApart = true;
      return Set(request_.Answers, words_.Value());
    }
    if (option == "--title") return Set(request_.Title, words_.Value());
    if (option == "--per-page") return TakePerPage(words_.Value());
    for (const char* other : {"--format", "--steps", "--help", "--version"}) {
      if (option == other) words_.Fail(Say("'%1' does not go with '%2'", option, kSheets));
    }
    return option == "--paper" && TakePaper(words_.Value());
  }

  template <class T, class Value>
  static bool Set(T& member, Value&& value) {
    member = std::forward<Value>(value);
    return true;
  }

  bool TakePerPage(const std::string& value) {
    constexpr const char* kNumbers[] = {"1", "2", "4", "6"};
    if (std::find(std::begin(kNumbers), std::end(kNumbers), value) == std::end(kNumbers)) {
      words_.Fail(Say("a page has 1, 2, 4 or 6 puzzles"));
    } else {
      request_.PerPage = std::stoi(value);
    }
    return true;
  }

  bool TakePaper(const std::string& value) {
    if (value != "a4" && value != "letter") words_.Fail(Say("the paper must be a4 or letter"));
    request_.Letter = value == "letter";
    return true;
  }

  OptionWords words_;
  std::vector<std::string> others_ = {"puzzle"};
  SheetsRequest request_;
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

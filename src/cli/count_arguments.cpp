#include "cli/count_arguments.h"

#include <algorithm>

#include "app/board/orders.h"
#include "cli/option_words.h"
#include "words/say.h"

namespace numorra {
namespace {

class CountReader {
 public:
  explicit CountReader(const std::vector<std::string>& words)
      : words_(words, 1),
        command_(words[0] == "list" ? SquareCommand::List : SquareCommand::Count) {
    request_.Lists = command_ == SquareCommand::List;
  }

  Arguments Read() {
    while (words_.Next()) {
      if (Is("--help")) return HelpRequest{};
      if (Is("--version")) return VersionRequest{};
      const bool isFile = words_.IsFile() && request_.Merges;
      if (isFile) {
        request_.Files.push_back(words_.Option());
      } else if (OptionNamed(words_.Option(), command_)) {
        Take();
      } else {
        words_.Fail(Say("unknown argument '%1'", words_.Option()));
      }
    }
    words_.Fail(WhyNotTogether());
    if (!words_.Error().empty()) return BadArguments{Say("%1; try --help", words_.Error())};
    return request_;
  }

 private:
  bool Is(const char* option) const { return words_.Option() == option; }

  void Take() {
    if (Is("--size")) {
      request_.Size = WholeTextAs<int>(words_.Value()).value_or(0);
      if (WhyNoBoardHas(request_.Size))
        words_.Fail(Say("the size must be a whole number from 3 to 50"));
    } else if (Is("--kind") || Is("--term")) {
      TakeKind(words_.Value());
    } else if (Is("--given")) {
      request_.Given = words_.Value();
    } else if (Is("--format")) {
      TakeFormat(words_.Value());
    } else if (Is("--all-images")) {
      request_.AllImages = true;
    } else if (Is("--count")) {
      request_.Most = WholeTextAs<std::int64_t>(words_.Value());
      if (request_.Most.value_or(0) < 1) {
        words_.Fail(Say("the count must be a whole number of 1 or more"));
      }
    } else if (Is("--semi-magic")) {
      request_.SemiMagic = true;
      TakeName("semi-magic");
    } else if (Is("--slice")) {
      request_.Part = SliceNamed(words_.Value());
      if (!request_.Part) {
        words_.Fail(Say("the slice must be its number and their count, such as 17/512"));
      }
    } else if (Is("--estimate")) {
      request_.Estimates = true;
    } else if (Is("--seconds")) {
      TakeSeconds();
    } else if (Is("--merge")) {
      request_.Merges = true;
    }
  }

  void TakeSeconds() {
    constexpr double kMost = 1'000'000;
    request_.Seconds = WholeTextAs<double>(words_.Value());
    if (!(request_.Seconds.value_or(0) > 0 && *request_.Seconds <= kMost)) {
      words_.Fail(Say("the number of seconds must be above 0 and at most 1000000, such as 0.5"));
    }
  }

  void TakeName(const std::string& name) {
    const bool first = request_.KindNames == CountRequest().KindNames;
    request_.KindNames = first ? name : request_.KindNames + "," + name;
  }

  /// The first kind that lines define is searched for by its lines; all others are judged.
  void TakeKind(const std::string& name) {
    TakeName(name);
    const LineKind* const kind = FindLineKind(name);
    if (kind && request_.Kind == LineKind::Magic) {
      request_.Kind = *kind;
      return;
    }
    const auto& terms = Terms();
    const auto term =
        std::find_if(terms.begin(), terms.end(), [&](const Term& one) { return one.Name == name; });
    if (term != terms.end()) {
      request_.Terms.push_back(&*term);
    } else {
      words_.Fail(Say("there is no term '%1'", name));
    }
  }

  void TakeFormat(const std::string& name) {
    const auto format = FormatNamed(name);
    if (format && (request_.Lists || Of(*format).ForAnswers)) {
      request_.Format = *format;
    } else {
      words_.Fail(Say("the format must be %1", FormatNames(!request_.Lists)));
    }
  }

  std::string WhyNotTogether() const {
    const bool conditions = request_.KindNames != CountRequest().KindNames || request_.Given;
    if (request_.Merges) {
      if (request_.Files.empty()) return Say("the files with the slices are missing");
      const bool more = conditions || request_.Size != 0 || request_.Part || request_.Estimates;
      return more ? Say("the slices to merge can be combined with a format only") : "";
    }
    if (request_.Size == 0 && !request_.Given) return Say("the size is missing");
    if (request_.Format == SquareFormat::Svg && request_.Most != 1) {
      return Say("a picture has room for one square, not several");
    }
    if (request_.SemiMagic && request_.Kind != LineKind::Magic) {
      return Say("the diagonals cannot be left free for a kind, which needs them");
    }
    if (request_.Part && (request_.Size != kSlicedOrder || conditions || request_.Estimates)) {
      return Say("slices are cut from all magic squares of size 5, without conditions");
    }
    if (request_.Seconds && !request_.Estimates) return Say("only an estimate takes seconds");
    return {};
  }

  OptionWords words_;
  SquareCommand command_;
  CountRequest request_;
};

}  // namespace

bool ListsOrCounts(const std::vector<std::string>& words) {
  return !words.empty() && (words[0] == "list" || words[0] == "count");
}

Arguments ParseCountArguments(const std::vector<std::string>& words) {
  return CountReader(words).Read();
}

}  // namespace numorra

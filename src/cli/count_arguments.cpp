#include "cli/count_arguments.h"

#include <algorithm>

#include "app/board/orders.h"
#include "cli/option_words.h"

namespace numorra {
namespace {

class CountReader {
 public:
  explicit CountReader(const std::vector<std::string>& words) : words_(words, 1) {
    request_.Lists = words[0] == "list";
  }

  Arguments Read() {
    while (words_.Next()) {
      if (Is("--help")) return HelpRequest{};
      if (Is("--version")) return VersionRequest{};
      if (!TakeShared() && !(request_.Lists ? TakeListing() : TakeCounting())) {
        words_.Fail("unknown argument '" + words_.Option() + "'");
      }
    }
    words_.Fail(WhyNotTogether());
    if (!words_.Error().empty()) return BadArguments{words_.Error() + "; try --help"};
    return request_;
  }

 private:
  bool Is(const char* option) const { return words_.Option() == option; }

  bool TakeShared() {
    if (Is("--size")) {
      request_.Size = WholeTextAs<int>(words_.Value()).value_or(0);
      if (WhyNoBoardHas(request_.Size)) words_.Fail("the size must be a whole number from 3 to 50");
    } else if (Is("--kind") || Is("--term")) {
      TakeKind(words_.Value());
    } else if (Is("--given")) {
      request_.Given = words_.Value();
    } else if (Is("--format")) {
      TakeFormat(words_.Value());
    } else {
      return false;
    }
    return true;
  }

  bool TakeListing() {
    if (Is("--all-images")) {
      request_.AllImages = true;
    } else if (Is("--count")) {
      request_.Most = WholeTextAs<std::int64_t>(words_.Value());
      if (request_.Most.value_or(0) < 1) {
        words_.Fail("the count must be a whole number of 1 or more");
      }
    } else {
      return false;
    }
    return true;
  }

  bool TakeCounting() {
    if (!Is("--semi-magic")) return false;
    request_.SemiMagic = true;
    return true;
  }

  /// The first kind that lines define is searched for by its lines; all others are judged.
  void TakeKind(const std::string& name) {
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
      words_.Fail("there is no term '" + name + "'");
    }
  }

  void TakeFormat(const std::string& name) {
    const auto format = FormatNamed(name);
    if (format && (request_.Lists || Of(*format).ForAnswers)) {
      request_.Format = *format;
    } else {
      words_.Fail("the format must be " + FormatNames(!request_.Lists, ", ", " or "));
    }
  }

  std::string WhyNotTogether() const {
    if (request_.Size == 0 && !request_.Given) return "the size is missing";
    if (request_.SemiMagic && request_.Kind != LineKind::Magic) {
      return "the diagonals cannot be left free for a kind, which needs them";
    }
    return {};
  }

  OptionWords words_;
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

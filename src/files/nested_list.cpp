#include "files/nested_list.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "app/board/numbers.h"
#include "files/field_rows.h"
#include "words/say.h"

namespace numorra {
namespace {

constexpr std::string_view kOpening = "[{(";
constexpr std::string_view kClosing = "]})";

/// One line with `brackets`, an opening and a closing one, and `gap` for a gap.
std::string NestedListOf(const StoredSquare& square, const char* brackets, const char* gap) {
  std::string text(1, brackets[0]);
  const int order = square.Order();
  for (int cell = 0; cell < square.Cells.Size(); ++cell) {
    const auto& number = square.Cells[cell];
    if (cell > 0) text += ", ";
    if (cell % order == 0) text += brackets[0];
    text += number ? Decimal(*number) : gap;
    if ((cell + 1) % order == 0) text += brackets[1];
  }
  return text + brackets[1] + "\n";
}

/// Reads a list character by character.
class ListReader {
 public:
  explicit ListReader(std::size_t line) : line_(line) {}

  std::vector<FieldRow> Read(const std::string& text) {
    for (const char character : text)
      Take(character);
    if (!ended_) Fail(Say("a bracket is not closed"));
    return std::move(rows_);
  }

 private:
  [[noreturn]] void Fail(const std::string& why) const {
    throw Unreadable{Say("line %1: %2", line_, why), true};
  }

  void Take(char character) {
    const bool inRow = open_.size() == 2;
    if (std::string_view(" \t\r\n").find(character) != std::string_view::npos) {
      if (inRow) field_ += ' ';
      line_ += character == '\n' ? 1 : 0;
    } else if (ended_) {
      Fail(Say("there is more after the list"));
    } else if (kOpening.find(character) != std::string_view::npos) {
      if (inRow) Fail(Say("there are lists within the rows"));
      open_ += character;
      if (open_.size() == 2) rows_.push_back({line_, {}});
    } else if (kClosing.find(character) != std::string_view::npos) {
      Close(character);
    } else if (inRow && character == ',') {
      EndField();
    } else if (inRow) {
      field_ += character;
    } else if (character != ',') {
      Fail(Say("there is something between the rows"));
    }
  }

  void Close(char character) {
    const std::size_t kind = kClosing.find(character);
    if (open_.empty() || open_.back() != kOpening[kind]) Fail(Say("the brackets do not match"));
    if (open_.size() == 2 && !(Trim(field_).empty() && rows_.back().Fields.empty())) EndField();
    open_.pop_back();
    ended_ = open_.empty();
  }

  void EndField() {
    constexpr std::string_view kGaps[] = {"null", "Null", "None", "nan"};
    std::string field = Trim(field_);
    field_.clear();
    if (std::find(std::begin(kGaps), std::end(kGaps), field) != std::end(kGaps)) field.clear();
    rows_.back().Fields.push_back(std::move(field));
  }

  std::size_t line_;
  std::string open_;  ///< the brackets that are open
  std::string field_;
  std::vector<FieldRow> rows_;
  bool ended_ = false;
};

}  // namespace

std::string PythonListOf(const StoredSquare& square, const std::string&) {
  return NestedListOf(square, "[]", "None");
}

std::string MathematicaListOf(const StoredSquare& square, const std::string&) {
  return NestedListOf(square, "{}", "Null");
}

bool LooksLikeNestedList(const std::string& text) {
  constexpr const char* kBlanks = " \t\r\n";
  const auto opens = [&](std::size_t at) {
    return at != std::string::npos && kOpening.find(text[at]) != std::string_view::npos;
  };
  const std::size_t first = text.find_first_not_of(kBlanks);
  return opens(first) && opens(text.find_first_not_of(kBlanks, first + 1));
}

std::variant<StoredSquare, Unreadable> ReadNestedList(const std::string& text,
                                                      std::size_t firstLine) {
  try {
    CheckText(text);
    return SquareOfFields(ListReader(firstLine).Read(text));
  } catch (const Unreadable& unreadable) {
    return unreadable;
  }
}

}  // namespace numorra

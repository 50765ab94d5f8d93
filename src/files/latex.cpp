#include "files/latex.h"

#include <algorithm>
#include <cctype>
#include <string_view>
#include <utility>
#include <vector>

#include "app/board/numbers.h"
#include "files/field_rows.h"
#include "words/say.h"

namespace numorra {
namespace {

/// The text with the characters escaped that LaTeX takes for its own.
std::string Escaped(const std::string& text) {
  std::string escaped;
  for (const char character : text) {
    if (std::string_view("#$%&_{}").find(character) != std::string_view::npos) escaped += '\\';
    switch (character) {
      case '\\':
        escaped += "\\textbackslash{}";
        break;
      case '^':
        escaped += "\\textasciicircum{}";
        break;
      case '~':
        escaped += "\\textasciitilde{}";
        break;
      default:
        escaped += character;
    }
  }
  return escaped;
}

/// Reads the rows of an environment.
class LatexReader {
 public:
  LatexReader(const std::string& text, std::size_t line) : text_(text), line_(line) {}

  std::vector<FieldRow> Read() {
    SkipTo(text_.find("\\begin{"));
    SkipTo(text_.find('}', at_));
    ++at_;
    SkipGroups();
    while (at_ < text_.size()) {
      if (StartsWith("\\end{")) {
        EndField();
        return WithoutEmptyEnd();
      }
      Take();
    }
    throw Unreadable{Say("line %1: %2 is missing", line_, "\\end"), true};
  }

 private:
  bool StartsWith(std::string_view word) const {
    return text_.compare(at_, word.size(), word) == 0;
  }

  void SkipTo(std::size_t to) {
    to = std::min(to, text_.size());
    line_ +=
        static_cast<std::size_t>(std::count(text_.begin() + static_cast<std::ptrdiff_t>(at_),
                                            text_.begin() + static_cast<std::ptrdiff_t>(to), '\n'));
    at_ = to;
  }

  /// Skips what stands in brackets or braces here: the columns of a tabular, a place, a distance.
  void SkipGroups() {
    while (at_ < text_.size() && (text_[at_] == '{' || text_[at_] == '[')) {
      int open = 0;
      do {
        const char character = text_[at_];
        open += character == '{' || character == '[' ? 1 : 0;
        open -= character == '}' || character == ']' ? 1 : 0;
        SkipTo(at_ + 1);
      } while (open > 0 && at_ < text_.size());
    }
  }

  void Take() {
    if (StartsWith("\\\\")) {
      EndField();
      rows_.push_back({line_, {}});
      at_ += 2;
      SkipGroups();
    } else if (text_[at_] == '\\') {
      TakeCommand();
    } else if (text_[at_] == '%') {
      SkipTo(text_.find('\n', at_));
    } else if (text_[at_] == '&') {
      EndField();
      ++at_;
    } else {
      const char character = text_[at_];
      if (std::string_view("${}").find(character) == std::string_view::npos) Add(character);
      SkipTo(at_ + 1);
    }
  }

  /// A command's letters; the places of a line between some columns go with them.
  void TakeCommand() {
    const bool line = StartsWith("\\cline") || StartsWith("\\cmidrule");
    SkipTo(at_ + 2);
    while (at_ < text_.size() && std::isalpha(static_cast<unsigned char>(text_[at_])) != 0)
      SkipTo(at_ + 1);
    if (line) SkipGroups();
  }

  void Add(char character) {
    if (field_.empty() && rows_.back().Fields.empty()) rows_.back().Line = line_;
    if (!field_.empty() || std::isspace(static_cast<unsigned char>(character)) == 0) {
      field_ += character;
    }
  }

  void EndField() { rows_.back().Fields.push_back(Trim(std::exchange(field_, {}))); }

  /// The rows without what follows the last line end.
  std::vector<FieldRow> WithoutEmptyEnd() {
    if (rows_.back().Fields == std::vector<std::string>{""}) rows_.pop_back();
    return std::move(rows_);
  }

  const std::string& text_;
  std::size_t at_ = 0;
  std::size_t line_;
  std::string field_;
  std::vector<FieldRow> rows_ = {{}};
};

}  // namespace

std::string LatexOf(const StoredSquare& square, const std::string& caption) {
  const int order = square.Order();
  const std::string below = Escaped(TotalAnd(caption, square));
  std::string text = caption.empty() && !below.empty() ? "% " + below + "\n" : "";
  text += "\\begin{tabular}{|*{" + std::to_string(order) + "}{c|}}\n\\hline\n";
  for (int cell = 0; cell < square.Cells.Size(); ++cell) {
    const auto& number = square.Cells[cell];
    if (number) text += Decimal(*number);
    text += (cell + 1) % order == 0 ? " \\\\ \\hline\n" : " & ";
  }
  text += "\\end{tabular}\n";
  return caption.empty() ? text : text + "\\par\\smallskip " + below + "\n";
}

bool LooksLikeLatex(const std::string& text) {
  return text.find("\\begin{") != std::string::npos;
}

std::variant<StoredSquare, Unreadable> ReadLatex(const std::string& text, std::size_t firstLine) {
  try {
    CheckText(text);
    return SquareOfFields(LatexReader(text, firstLine).Read());
  } catch (const Unreadable& unreadable) {
    return unreadable;
  }
}

}  // namespace numorra

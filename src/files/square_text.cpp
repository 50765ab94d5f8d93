#include "files/square_text.h"

#include <algorithm>
#include <sstream>
#include <string_view>
#include <utility>

#include "app/board/numbers.h"
#include "app/board/orders.h"
#include "app/board/runtime_error.h"

namespace numorra {
namespace {

/// One line of a text and its number, from 1.
struct Line {
  std::size_t Number;
  std::string Text;
};

void ReplaceAll(std::string& text, const std::string& from, const std::string& to) {
  std::size_t at = text.find(from);
  if (at == std::string::npos) return;
  std::string replaced;
  std::size_t done = 0;
  for (; at != std::string::npos; at = text.find(from, done)) {
    replaced.append(text, done, at - done).append(to);
    done = at + from.size();
  }
  text = replaced.append(text, done);
}

/// The text in the plainest form: one kind of line end, blank and minus, no brackets.
std::string Plain(std::string text) {
  constexpr std::pair<const char*, const char*> kPlainForms[] = {
      {"\xEF\xBB\xBF", ""},  {"\r\n", "\n"},    {"\r", "\n"},
      {"\xE2\x88\x92", "-"}, {"\xC2\xA0", " "}, {"\xE2\x80\xAF", " "}};
  for (const auto& [from, to] : kPlainForms)
    ReplaceAll(text, from, to);
  const std::size_t open = text.find_first_not_of(" \t\n");
  const std::size_t close = text.find_last_not_of(" \t\n");
  if (open < close && text[open] == '[' && text[close] == ']') {
    text[open] = text[close] = ' ';
    std::replace(text.begin(), text.end(), ';', '\n');
  }
  return text;
}

/// The lines from the first that is written on to the last.
std::vector<Line> Lines(const std::string& text) {
  std::vector<Line> lines;
  std::istringstream input(text);
  std::size_t number = 0;
  for (std::string line; std::getline(input, line);) {
    ++number;
    if (!lines.empty() || !Trim(line).empty()) lines.push_back({number, line});
  }
  while (!lines.empty() && Trim(lines.back().Text).empty())
    lines.pop_back();
  return lines;
}

/// The fields of a line. Blanks separate as many as they are, other separators each for itself.
std::vector<std::string> Fields(const std::string& line) {
  std::vector<std::string> fields;
  constexpr std::string_view kSeparators = "\t;,";
  const auto* const kind =
      std::find_if(kSeparators.begin(), kSeparators.end(),
                   [&](char separator) { return line.find(separator) != std::string::npos; });
  std::istringstream parts(line);
  if (kind == kSeparators.end()) {
    for (std::string word; parts >> word;)
      fields.push_back(word);
    return fields;
  }
  for (std::string part; std::getline(parts, part, *kind);)
    fields.push_back(Trim(part));
  if (line.back() == *kind) fields.emplace_back();
  return fields;
}

/// Takes the empty field at every line's end away that a separator leaves there.
void DropTrailingSeparators(std::vector<std::vector<std::string>>& rows) {
  const auto endsEmpty = [&](const std::vector<std::string>& fields) {
    return fields.size() == rows.size() + 1 && fields.back().empty();
  };
  if (!std::all_of(rows.begin(), rows.end(), endsEmpty)) return;
  for (auto& fields : rows)
    fields.pop_back();
}

double NumberIn(const std::string& field, std::size_t line) {
  const std::string where = "line " + std::to_string(line) + ": ";
  constexpr std::size_t kMostShown = 20;
  const std::string shown =
      field.size() <= kMostShown ? field : field.substr(0, kMostShown) + "...";
  try {
    const double number = StrictVal(field);
    if (DigitsOf(field) <= kMostCellDigits) return number;
  } catch (const RuntimeError& error) {
    if (error.Kind() == Fault::TypeMismatch) {
      throw Unreadable{where +
                       (field.empty() ? "a number is missing" : "\"" + shown + "\" is no number")};
    }
  }
  throw Unreadable{where + shown + " has more than " + std::to_string(kMostCellDigits) + " digits"};
}

NumberRows Read(const std::string& text) {
  if (text.size() > kMostTextBytes) throw Unreadable{kTooLongForASquare};
  const std::vector<Line> lines = Lines(Plain(text));
  const auto order = lines.size();
  if (order < static_cast<std::size_t>(kMinOrder) || order > static_cast<std::size_t>(kMaxOrder)) {
    throw Unreadable{
        "this is no square of numbers\ncopy 3x3 to 50x50 numbers from a table or a "
        "text"};
  }
  std::vector<std::vector<std::string>> fields;
  fields.reserve(order);
  for (const Line& line : lines)
    fields.push_back(Fields(line.Text));
  DropTrailingSeparators(fields);
  NumberRows rows;
  for (std::size_t row = 0; row < order; ++row) {
    if (fields[row].size() != order) {
      throw Unreadable{"line " + std::to_string(lines[row].Number) + " has " +
                       std::to_string(fields[row].size()) + " numbers, not " +
                       std::to_string(order) + " as there are lines"};
    }
    rows.emplace_back();
    for (const std::string& field : fields[row])
      rows.back().push_back(NumberIn(field, lines[row].Number));
  }
  return rows;
}

}  // namespace

std::variant<NumberRows, Unreadable> ReadSquareText(const std::string& text) {
  try {
    return Read(text);
  } catch (const Unreadable& unreadable) {
    return unreadable;
  }
}

}  // namespace numorra

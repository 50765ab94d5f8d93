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
struct TextLine {
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

/// The text with one kind of line end, blank and minus, and without brackets.
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

constexpr std::string_view kSeparators = "\t;,";

bool IsEmpty(const TextLine& line) {
  return IsEmptyLine(line.Text);
}

/// The lines from the first to the last that is not empty. The text's first line has the number
/// `first`.
std::vector<TextLine> Lines(const std::string& text, std::size_t first) {
  std::vector<TextLine> lines;
  std::istringstream input(text);
  for (std::string line; std::getline(input, line);)
    lines.push_back({first++, line});
  const auto last = std::find_if_not(lines.rbegin(), lines.rend(), IsEmpty).base();
  lines.erase(last, lines.end());
  lines.erase(lines.begin(), std::find_if_not(lines.begin(), lines.end(), IsEmpty));
  return lines;
}

/// The fields of a line. Several blanks count as one separator, every other separator counts by
/// itself.
std::vector<std::string> Fields(const std::string& line) {
  std::vector<std::string> fields;
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

/// Removes the empty field at the end of every line if all lines end with a separator.
void DropTrailingSeparators(std::vector<std::vector<std::string>>& rows) {
  const auto tooLong = [&](const auto& fields) { return fields.size() > rows.size(); };
  const auto endsEmpty = [](const auto& fields) {
    return !fields.empty() && fields.back().empty();
  };
  if (!std::any_of(rows.begin(), rows.end(), tooLong) ||
      !std::all_of(rows.begin(), rows.end(), endsEmpty)) {
    return;
  }
  for (auto& fields : rows)
    fields.pop_back();
}

/// The number in a field; nothing for a gap.
std::optional<double> CellIn(const std::string& field, std::size_t line) {
  if (field.empty() || field == "-" || field == "." || field == "_") return std::nullopt;
  const std::string where = "line " + std::to_string(line) + ": ";
  constexpr std::size_t kMostShown = 20;
  const std::string shown =
      field.size() <= kMostShown ? field : field.substr(0, kMostShown) + "...";
  try {
    const double number = StrictVal(field);
    if (DigitsOf(field) <= kMostCellDigits) return number;
  } catch (const RuntimeError& error) {
    if (error.Kind() == Fault::TypeMismatch) {
      throw Unreadable{where + "\"" + shown + "\" is not a number"};
    }
  }
  throw Unreadable{where + shown + " has more than " + std::to_string(kMostCellDigits) + " digits"};
}

/// The square in a text whose first line has the number `firstLine`.
StoredSquare Read(const std::string& text, std::size_t firstLine) {
  if (text.size() > kMostTextBytes) throw Unreadable{kTooLongForASquare};
  if (text.starts_with("\xFF\xFE") || text.starts_with("\xFE\xFF")) {
    throw Unreadable{"this text is in UTF-16: save it as UTF-8"};
  }
  if (text.find('\0') != std::string::npos) {
    throw Unreadable{"this is not UTF-8 text: it contains characters with code 0"};
  }
  const std::vector<TextLine> lines = Lines(Plain(text), firstLine);
  const auto order = lines.size();
  if (order < static_cast<std::size_t>(kMinOrder) || order > static_cast<std::size_t>(kMaxOrder)) {
    throw Unreadable{
        "this is not a square of numbers\ncopy 3x3 to 50x50 numbers from a table or a text"};
  }
  std::vector<std::vector<std::string>> rows;
  rows.reserve(order);
  for (const TextLine& line : lines) {
    if (IsEmpty(line)) throw Unreadable{"line " + std::to_string(line.Number) + " is empty"};
    rows.push_back(Fields(line.Text));
  }
  DropTrailingSeparators(rows);
  StoredCells cells(static_cast<int>(order));
  auto cell = cells.begin();
  for (std::size_t row = 0; row < order; ++row) {
    if (rows[row].size() > order) {
      throw Unreadable{"line " + std::to_string(lines[row].Number) + " has " +
                       std::to_string(rows[row].size()) + " numbers, but there are " +
                       std::to_string(order) + " lines"};
    }
    rows[row].resize(order);
    for (const std::string& field : rows[row])
      *cell++ = CellIn(field, lines[row].Number);
  }
  return {.Cells = std::move(cells)};
}

/// One line per row, each cell written by textOf(cell).
template <class TextOf>
std::string Written(const StoredSquare& square, char between, TextOf textOf) {
  std::string text;
  for (int cell = 0; cell < square.Cells.Size(); ++cell) {
    text += textOf(square.Cells[cell]);
    text += (cell + 1) % square.Order() == 0 ? '\n' : between;
  }
  return text;
}

std::string CellOf(const std::optional<double>& cell, const char* gap) {
  return cell ? Decimal(*cell) : gap;
}

}  // namespace

bool IsEmptyLine(const std::string& line) {
  return Trim(line).empty() && line.find_first_of(kSeparators) == std::string::npos;
}

std::variant<StoredSquare, Unreadable> ReadSquareText(const std::string& text,
                                                      std::size_t firstLine) {
  try {
    return Read(text, firstLine);
  } catch (const Unreadable& unreadable) {
    return unreadable;
  }
}

std::string TextOf(const StoredSquare& square) {
  std::size_t width = 0;
  for (const auto& cell : square.Cells)
    width = std::max(width, CellOf(cell, ".").size());
  std::string text = Written(square, ' ', [&](const auto& cell) {
    const std::string number = CellOf(cell, ".");
    return std::string(width - number.size(), ' ') + number;
  });
  return square.Total ? text + "\ntotal " + Decimal(*square.Total) + "\n" : text;
}

std::string CsvOf(const StoredSquare& square) {
  return Written(square, ',', [](const auto& cell) { return CellOf(cell, ""); });
}

}  // namespace numorra

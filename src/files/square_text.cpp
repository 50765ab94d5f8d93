#include "files/square_text.h"

#include <algorithm>
#include <sstream>
#include <string_view>
#include <utility>

#include "app/board/numbers.h"
#include "files/field_rows.h"
#include "words/say.h"

namespace numorra {
namespace {

/// One line of a text and its number, from 1.
struct TextLine {
  std::size_t Number;
  std::string Text;
};

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

/// The lines from the first to the last that is not empty, without comments and the lines that have
/// nothing else. The text's first line has the number `first`.
std::vector<TextLine> Lines(const std::string& text, std::size_t first) {
  std::vector<TextLine> lines;
  std::istringstream input(text);
  for (std::string line; std::getline(input, line); ++first) {
    const std::string told = line.substr(0, line.find('#'));
    if (told.size() == line.size() || !IsEmptyLine(told)) lines.push_back({first, told});
  }
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
void DropTrailingSeparators(std::vector<FieldRow>& rows) {
  const auto tooLong = [&](const FieldRow& row) { return row.Fields.size() > rows.size(); };
  const auto endsEmpty = [](const FieldRow& row) {
    return !row.Fields.empty() && row.Fields.back().empty();
  };
  if (!std::any_of(rows.begin(), rows.end(), tooLong) ||
      !std::all_of(rows.begin(), rows.end(), endsEmpty)) {
    return;
  }
  for (FieldRow& row : rows)
    row.Fields.pop_back();
}

/// Writes points for decimal commas, unless there is a doubt: 1,234 may be a large number too, and
/// a square with points has no other decimals.
void TakeDecimalCommas(std::vector<FieldRow>& rows) {
  constexpr std::size_t kThousands = 3;
  bool decimal = false;
  for (const FieldRow& row : rows) {
    for (const std::string& field : row.Fields) {
      if (field.find('.') != std::string::npos && field != ".") return;
      const std::size_t comma = field.find(',');
      decimal |= comma != std::string::npos && field.size() - comma - 1 != kThousands;
    }
  }
  if (!decimal) return;
  for (FieldRow& row : rows) {
    for (std::string& field : row.Fields)
      std::replace(field.begin(), field.end(), ',', '.');
  }
}

/// The square in a text whose first line has the number `firstLine`.
StoredSquare Read(const std::string& text, std::size_t firstLine) {
  CheckText(text);
  std::vector<FieldRow> rows;
  const std::vector<TextLine> lines = Lines(Plain(text), firstLine);
  CheckOrder(lines.size());
  for (const TextLine& line : lines) {
    if (IsEmpty(line)) throw Unreadable{Say("line %1 is empty", line.Number), true};
    rows.push_back({line.Number, Fields(line.Text)});
  }
  DropTrailingSeparators(rows);
  TakeDecimalCommas(rows);
  return SquareOfFields(rows);
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

std::string TextOf(const StoredSquare& square, const std::string& caption) {
  std::size_t width = 0;
  for (const auto& cell : square.Cells)
    width = std::max(width, CellOf(cell, ".").size());
  std::string text = Written(square, ' ', [&](const auto& cell) {
    const std::string number = CellOf(cell, ".");
    return std::string(width - number.size(), ' ') + number;
  });
  const std::string below = TotalAnd(caption, square);
  return below.empty() ? text : text + "\n" + below + "\n";
}

std::string CsvOf(const StoredSquare& square, const std::string&) {
  return Written(square, ',', [](const auto& cell) { return CellOf(cell, ""); });
}

}  // namespace numorra

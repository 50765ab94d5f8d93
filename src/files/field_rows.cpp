#include "files/field_rows.h"

#include <utility>

#include "app/board/numbers.h"
#include "app/board/orders.h"
#include "app/board/runtime_error.h"
#include "files/square_text.h"
#include "words/say.h"

namespace numorra {
namespace {

/// The number in a field; nothing for a gap.
std::optional<double> CellIn(const std::string& field, std::size_t line) {
  if (field.empty() || field == "-" || field == "." || field == "_") return std::nullopt;
  constexpr std::size_t kMostShown = 20;
  const std::string shown =
      field.size() <= kMostShown ? field : field.substr(0, kMostShown) + "...";
  try {
    const double number = StrictVal(field);
    if (DigitsOf(field) <= kMostCellDigits) return number;
  } catch (const RuntimeError& error) {
    if (error.Kind() == Fault::TypeMismatch) {
      throw Unreadable{Say("line %1: \"%2\" is not a number", line, shown), true};
    }
  }
  throw Unreadable{Say("line %1: %2 has more than %3 digits", line, shown, kMostCellDigits), true};
}

}  // namespace

void CheckText(const std::string& text) {
  if (text.size() > kMostTextBytes) throw Unreadable{Say(kTooLongForASquare)};
  if (text.starts_with("\xFF\xFE") || text.starts_with("\xFE\xFF")) {
    throw Unreadable{Say("this text is in UTF-16: save it as UTF-8")};
  }
  if (text.find('\0') != std::string::npos) {
    throw Unreadable{Say("this is not UTF-8 text: it contains characters with code 0")};
  }
}

void CheckOrder(std::size_t rows) {
  if (rows < static_cast<std::size_t>(kMinOrder) || rows > static_cast<std::size_t>(kMaxOrder)) {
    throw Unreadable{
        Say("this is not a square of numbers\ncopy 3x3 to 50x50 numbers from a table or a text")};
  }
}

StoredSquare SquareOfFields(const std::vector<FieldRow>& rows) {
  const std::size_t order = rows.size();
  CheckOrder(order);
  StoredCells cells(static_cast<int>(order));
  auto cell = cells.begin();
  for (const auto& [line, fields] : rows) {
    if (fields.size() > order) {
      throw Unreadable{
          Say("line %1 has %2 numbers, but there are %3 lines", line, fields.size(), order), true};
    }
    for (std::size_t i = 0; i < order; ++i, ++cell) {
      if (i < fields.size()) *cell = CellIn(fields[i], line);
    }
  }
  return {.Cells = std::move(cells)};
}

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

}  // namespace numorra

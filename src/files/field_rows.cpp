#include "files/field_rows.h"

#include <utility>

#include "app/board/numbers.h"
#include "app/board/orders.h"
#include "app/board/runtime_error.h"
#include "files/square_text.h"

namespace numorra {
namespace {

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

}  // namespace

void CheckText(const std::string& text) {
  if (text.size() > kMostTextBytes) throw Unreadable{kTooLongForASquare};
  if (text.starts_with("\xFF\xFE") || text.starts_with("\xFE\xFF")) {
    throw Unreadable{"this text is in UTF-16: save it as UTF-8"};
  }
  if (text.find('\0') != std::string::npos) {
    throw Unreadable{"this is not UTF-8 text: it contains characters with code 0"};
  }
}

void CheckOrder(std::size_t rows) {
  if (rows < static_cast<std::size_t>(kMinOrder) || rows > static_cast<std::size_t>(kMaxOrder)) {
    throw Unreadable{
        "this is not a square of numbers\ncopy 3x3 to 50x50 numbers from a table or a text"};
  }
}

StoredSquare SquareOfFields(std::vector<FieldRow> rows) {
  const std::size_t order = rows.size();
  CheckOrder(order);
  StoredCells cells(static_cast<int>(order));
  auto cell = cells.begin();
  for (auto& [line, fields] : rows) {
    if (fields.size() > order) {
      throw Unreadable{"line " + std::to_string(line) + " has " + std::to_string(fields.size()) +
                       " numbers, but there are " + std::to_string(order) + " lines"};
    }
    fields.resize(order);
    for (const std::string& field : fields)
      *cell++ = CellIn(field, line);
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

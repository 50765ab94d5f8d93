#include "files/stored_square.h"

#include "app/board/numbers.h"

namespace numorra {
namespace {

/// The rows of the square, each cell as textOf(index) has it.
template <class TextOf>
std::string Rows(int order, const std::string& open, const std::string& between,
                 const std::string& close, const std::string& betweenRows, TextOf textOf) {
  std::string text;
  std::size_t cell = 0;
  for (int row = 0; row < order; ++row) {
    if (row > 0) text += betweenRows;
    text += open;
    for (int column = 0; column < order; ++column) {
      if (column > 0) text += between;
      text += textOf(cell++);
    }
    text += close;
  }
  return text;
}

template <class TextOf>
std::string JsonRows(int order, TextOf textOf) {
  return "[" + Rows(order, "[", ", ", "]", ", ", textOf) + "]";
}

}  // namespace

const char* NameOf(Rules rules) {
  return rules == Rules::Normal ? "normal" : "positive";
}

std::string JsonOf(const StoredSquare& square) {
  std::string json = R"({"format": ")" + std::string(kJsonFormat) + R"(", "version": )" +
                     std::to_string(kJsonVersion) + R"(, "order": )" + std::to_string(square.Order);
  if (square.Total) json += R"(, "total": )" + Decimal(*square.Total);
  json += R"(, "rules": ")" + std::string(NameOf(square.Asked)) + R"(", "rows": )";
  json += JsonRowsOf(square);
  if (!square.Givens.empty()) {
    json += R"(, "givens": )" + JsonRows(square.Order, [&](std::size_t cell) {
              return std::string(square.Givens[cell] ? "true" : "false");
            });
  }
  return json + "}\n";
}

std::string JsonRowsOf(const StoredSquare& square) {
  return JsonRows(square.Order, [&](std::size_t cell) {
    return square.Cells[cell] ? Decimal(*square.Cells[cell]) : "null";
  });
}

std::string CsvOf(const StoredSquare& square) {
  return Rows(square.Order, "", ",", "\n", "", [&](std::size_t cell) {
    return square.Cells[cell] ? Decimal(*square.Cells[cell]) : "";
  });
}

}  // namespace numorra

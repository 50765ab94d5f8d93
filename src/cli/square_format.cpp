#include "cli/square_format.h"

#include <algorithm>
#include <iomanip>
#include <ostream>

#include "app/board/board.h"
#include "app/board/numbers.h"
#include "files/stored_square.h"

namespace numorra {
namespace {

std::size_t WidestNumber(const CellTable& square, int order) {
  std::size_t widest = 0;
  ForEachCell(order, [&](int row, int column) {
    widest = std::max(widest, Decimal(square(row, column)).size());
  });
  return widest;
}

}  // namespace

void WriteSquare(std::ostream& out, const CellTable& square, int order, double total, Rules rules,
                 SquareFormat format) {
  if (format != SquareFormat::Text) {
    StoredSquare stored{.Order = order, .Total = total, .Asked = rules};
    ForEachCell(order, [&](int r, int c) { stored.Cells.emplace_back(square(r, c)); });
    out << (format == SquareFormat::Json ? JsonOf(stored) : CsvOf(stored));
    return;
  }
  const std::size_t width = WidestNumber(square, order);
  for (int row = 1; row <= order; ++row) {
    for (int column = 1; column <= order; ++column) {
      out << (column > 1 ? " " : "") << std::setw(static_cast<int>(width))
          << Decimal(square(row, column));
    }
    out << "\n";
  }
  out << "\ntotal " << Decimal(total) << "\n";
}

}  // namespace numorra

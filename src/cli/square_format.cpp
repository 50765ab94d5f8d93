#include "cli/square_format.h"

#include <algorithm>
#include <iomanip>
#include <ostream>

#include "app/board/board.h"
#include "app/board/numbers.h"

namespace numorra {
namespace {

void WriteRow(std::ostream& out, const CellTable& square, int order, int row, const char* between,
              std::size_t width = 0) {
  for (int column = 1; column <= order; ++column) {
    out << (column > 1 ? between : "") << std::setw(static_cast<int>(width))
        << Decimal(square(row, column));
  }
}

std::size_t WidestNumber(const CellTable& square, int order) {
  std::size_t widest = 0;
  ForEachCell(order, [&](int row, int column) {
    widest = std::max(widest, Decimal(square(row, column)).size());
  });
  return widest;
}

}  // namespace

void WriteSquare(std::ostream& out, const CellTable& square, int order, double total,
                 SquareFormat format) {
  if (format == SquareFormat::Json) {
    out << "{\"order\": " << order << ", \"total\": " << Decimal(total) << ", \"rows\": [";
    for (int row = 1; row <= order; ++row) {
      out << (row > 1 ? ", [" : "[");
      WriteRow(out, square, order, row, ", ");
      out << "]";
    }
    out << "]}\n";
    return;
  }
  const bool csv = format == SquareFormat::Csv;
  const std::size_t width = csv ? 0 : WidestNumber(square, order);
  for (int row = 1; row <= order; ++row) {
    WriteRow(out, square, order, row, csv ? "," : " ", width);
    out << "\n";
  }
  if (!csv) out << "\ntotal " << Decimal(total) << "\n";
}

}  // namespace numorra

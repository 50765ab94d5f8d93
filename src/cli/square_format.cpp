#include "cli/square_format.h"

#include <algorithm>
#include <iomanip>
#include <ostream>

#include "app/board/numbers.h"

namespace numorra {
namespace {

std::string TextOf(const std::optional<double>& cell) {
  return cell ? Decimal(*cell) : ".";
}

}  // namespace

void WriteSquare(std::ostream& out, const StoredSquare& square, SquareFormat format,
                 const std::string& remark) {
  if (format != SquareFormat::Text) {
    out << (format == SquareFormat::Json ? JsonOf(square) : CsvOf(square));
    return;
  }
  std::size_t width = 0;
  for (const auto& cell : square.Cells)
    width = std::max(width, TextOf(cell).size());
  for (std::size_t cell = 0; cell < square.Cells.size(); ++cell) {
    const bool first = cell % static_cast<std::size_t>(square.Order) == 0;
    out << (first ? (cell > 0 ? "\n" : "") : " ") << std::setw(static_cast<int>(width))
        << TextOf(square.Cells[cell]);
  }
  out << "\n\ntotal " << Decimal(square.Total.value_or(0)) << (remark.empty() ? "" : ", ") << remark
      << "\n";
}

}  // namespace numorra
